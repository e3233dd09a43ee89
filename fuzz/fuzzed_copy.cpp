#include "fuzz/fuzzed_copy.h"

#include <algorithm>
#include <utility>

#include "connection/wire_protocol.h"
#include "fuzz/check.h"
#include "platform/run_time_failure.h"
#include "richtext/code_pages.h"

namespace verlume::fuzz {
namespace {

constexpr std::int32_t kPort = 4000;
constexpr std::u16string_view kSettingsPath = u"/verlume/Verlume.ini";

// The settings without the style of what is typed: nearly every macro that is run changes it.
std::string WithoutStyle(std::string file) {
  const std::size_t start = std::min(file.find("\n[FontLocal]"), file.size());
  const std::size_t next = file.find("\n[", start + 1);
  return file.erase(start, next == file.npos ? file.npos : next - start);
}

}  // namespace

FuzzedCopy::FuzzedCopy(std::string_view settings) {
  platform.files.MakeFolder(u"/macros");
  platform.files.MakeFolder(u"/logs");
  platform.dialogs.whileOpen = [this] { AnswerBox(); };
  platform.commonDialog.whileOpen = [this] { CancelDialog(); };
  Clean();
  Start(settings);
}

void FuzzedCopy::StartAgain(std::string_view settings) {
  const std::string& file = platform.files.files[std::u16string(kSettingsPath)];
  // Whatever changes for good is written into the settings file.
  const bool isStyleChanged = file != writtenByStart_;
  const bool isChanged = HasEnded() || settings != settings_ ||
                         (isStyleChanged && WithoutStyle(file) != WithoutStyle(writtenByStart_));
  Clean();
  if (isChanged) return Start(settings);
  platform.files.files[std::u16string(kSettingsPath)] = writtenByStart_;
  const_cast<AppState&>(program.State()) = *started_;
  // In the style that the program has started with.
  platform.window.rtbCommands.SetText(u"");
  if (isStyleChanged) platform.window.freeSizer1.onPostLayout();
}

// What the program does not set when it starts.
void FuzzedCopy::Clean() {
  peer.onConnectionRequest = nullptr;
  peer.Close();
  platform.socket.Close();
  platform.socket.ResumeArrivals();
  network.RunUntilIdle();
  for (RichTextBox* pane : {&platform.window.rtbData, &platform.window.rtbCommands}) {
    pane->SetText(u"");
    pane->SetSelFormat(newPane_);
  }
  platform.socket.sent.clear();
  peer.sent.clear();
  platform.files.files.clear();
  platform.dialogs.messages.clear();
  platform.dialogs.asked.clear();
  platform.commonDialog.files.clear();
  platform.commonDialog.filesShown.clear();
  platform.commonDialog.foldersShown.clear();
  platform.commonDialog.colorsShown.clear();
  platform.commonDialog.fontsShown.clear();
  platform.application.loggedErrors.clear();
  platform.tools.started.clear();
  for (fake::FakeLabel* counter : {&platform.window.lblChatDuration, &platform.window.lblBytesSent,
                                   &platform.window.lblBytesReceived}) {
    counter->tag.clear();
  }
  platform.application.ended = false;
  platform.window.window.unloaded = false;
  platform.window.fraFind.visible = false;
  platform.window.txtFind.text.clear();
  accepts_ = false;
  next_.reset();
  platform.macros.window.whileModal = [this] { platform.macros.window.Unload(); };
}

void FuzzedCopy::Start(std::string_view settings) {
  // A program that starts finds these values as they are declared.
  const_cast<AppState&>(program.State()) = AppState();
  platform.files.files[std::u16string(kSettingsPath)] = settings;
  program.Start();
  if (!HasEnded()) platform.window.freeSizer1.onPostLayout();
  const std::string& written = platform.files.files[std::u16string(kSettingsPath)];
  const bool isAlike = !started_ || settings != settings_ || written == writtenByStart_;
  Check(isAlike, "a start is like the one before, whatever was done in between");
  settings_ = settings;
  writtenByStart_ = written;
  started_ = program.State();
}

void FuzzedCopy::AnswerBox() {
  const auto& messages = platform.dialogs.messages;
  if (!messages.empty()) platform.dialogs.answers = {AnswerTo(messages.back())};
  platform.dialogs.typed = {u""};
}

Answer FuzzedCopy::AnswerTo(const Message& message) {
  const std::u16string_view text = message.text;
  const bool isInternal = text.find(DescriptionOf(FailureNumber::InternalError)) != text.npos;
  Check(!isInternal, "no failure but those that are foreseen");
  if (message.buttons == MessageButtons::Ok) return Answer::Ok;
  if (next_) return *std::exchange(next_, std::nullopt);
  if (accepts_) return Answer::Yes;
  return message.buttons == MessageButtons::YesNoCancel ? Answer::Cancel : Answer::No;
}

void FuzzedCopy::AnswerNext(Answer answer, const std::u16string& path) {
  next_ = answer;
  FileChoice choice;
  choice.fileName = path;
  platform.commonDialog.files.push_front(choice);
}

// Each dialog is cancelled, unless its answer is given.
void FuzzedCopy::CancelDialog() {
  fake::FakeCommonDialog& dialog = platform.commonDialog;
  dialog.files.resize(std::max<std::size_t>(dialog.files.size(), 1));
  dialog.folders.resize(1);
  dialog.colors.resize(1);
  dialog.fonts.resize(1);
}

void FuzzedCopy::Connect(Role role) {
  if (HasEnded()) return;
  if (role == Role::Callee) {
    Enter(u"/wait 4000");
    peer.SetRemotePort(kPort);
    peer.Connect();
  } else {
    peer.onConnectionRequest = [this](std::int64_t request) {
      peer.Close();
      peer.Accept(request);
    };
    peer.SetLocalPort(kPort);
    peer.Listen();
    Enter(u"/call peer 4000");
  }
  accepts_ = true;
  network.RunUntilIdle();
  accepts_ = false;
}

void FuzzedCopy::Receive(std::string_view bytes) {
  platform.socket.Receive(richtext::DecodeGreek(bytes));
  network.RunUntilIdle();
}

void FuzzedCopy::ShakeHands(Role role, std::string_view nickname) {
  std::string message = richtext::EncodeGreek(BuildProtocolMarker());
  message += role == Role::Callee ? 'C' : 'S';
  message += nickname;
  message += '\0';
  Receive(message);
}

}  // namespace verlume::fuzz
