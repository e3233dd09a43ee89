#include "benchmarks/chat.h"

#include <QApplication>
#include <QWidget>
#include <map>

#include "connection/connection_state.h"
#include "shell/who_is_who.h"

namespace verlume {
namespace {

// The main window that was created last.
QWidget* LastWindow() {
  static int made = 0;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() != "frmMain") continue;
    window->setObjectName(QStringLiteral("frmMain of chat %1").arg(++made));
    return window;
  }
  return nullptr;
}

}  // namespace

Chat::Chat(std::int64_t lines) : window_(LastWindow()) {
  state_.ProtocolMarker = BuildProtocolMarker();
  state_.RemoteNickname = u"nickname";
  state_.DateStamp = state_.TimeStamp = true;
  SetAuthorWords(Pane(), false);
  platform_.View().frmMain.window.Show();
  for (std::int64_t line = 0; line < lines; ++line) {
    WriteLine();
    // Without events in between, the pane would insert only the first lines at once.
    if (line % 64 == 0) QApplication::processEvents();
  }
  QApplication::processEvents();
}

void Chat::Resize(int width, int height) {
  window_->findChild<QWidget*>("rtbData")->resize(width, height);
}

void Chat::Paint() {
  window_->findChild<QWidget*>("rtbData")->repaint();
}

void Chat::SetPainted(bool isPainted) {
  window_->setUpdatesEnabled(isPainted);
}

void Chat::OpenFindBar(std::u16string_view words) {
  platform_.View().frmMain.findBar.txtFind.SetText(words);
  find_.mnuToolsFind_Click();
}

std::int32_t Chat::Listen() {
  Socket& socket = platform_.View().sckControl;
  socket.onConnectionRequest = [this, &socket](std::int64_t id) {
    socket.Accept(id);
    EnterState(state_, ConnectionState::Connected);
  };
  socket.onDataArrival = [this, &socket](std::int32_t) {
    wire_.OnDataArrival(socket.GetData());
    ++arrivals_;
  };
  socket.SetLocalPort(0);
  socket.Listen();
  return socket.LocalPort();
}

Chat& ChatOf(std::int64_t lines) {
  static auto& chats = *new std::map<std::int64_t, Chat>;
  return chats.try_emplace(lines, lines).first->second;
}

}  // namespace verlume
