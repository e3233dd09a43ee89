#include "fuzz/fuzzed_copy.h"

#include <utility>

#include "connection/wire_protocol.h"
#include "fuzz/check.h"
#include "platform/run_time_failure.h"
#include "richtext/code_pages.h"

namespace verlume::fuzz {
namespace {

constexpr std::int32_t kPort = 4000;
// More dialogs than any input opens.
constexpr std::size_t kDialogs = 200;

}  // namespace

FuzzedCopy::FuzzedCopy(std::string_view settings) {
  platform.files.MakeFolder(u"/macros");
  platform.files.MakeFolder(u"/logs");
  platform.files.files[u"/verlume/Verlume.ini"] = settings;
  platform.dialogs.whileOpen = [this] { AnswerBox(); };
  platform.macros.window.whileModal = [this] { platform.macros.window.Unload(); };
  CancelDialogs();
  program.Start();
  if (!HasEnded()) platform.window.freeSizer1.onPostLayout();
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

void FuzzedCopy::CancelDialogs() {
  fake::FakeCommonDialog& dialog = platform.commonDialog;
  dialog.files.assign(kDialogs, std::nullopt);
  dialog.folders.assign(kDialogs, std::nullopt);
  dialog.colors.assign(kDialogs, std::nullopt);
  dialog.fonts.assign(kDialogs, std::nullopt);
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

void FuzzedCopy::PeerSends(std::string_view bytes) {
  peer.SendData(richtext::DecodeGreek(bytes), TextKind::Line);
  network.RunUntilIdle();
}

void FuzzedCopy::ShakeHands(Role role, std::string_view nickname) {
  std::string message = richtext::EncodeGreek(BuildProtocolMarker());
  message += role == Role::Callee ? 'C' : 'S';
  message += nickname;
  message += '\0';
  PeerSends(message);
}

}  // namespace verlume::fuzz
