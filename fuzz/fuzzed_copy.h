// A whole program in memory. Its user dismisses every box, unless told otherwise; its peer does
// what the fuzz target says. To make one takes longer than what most inputs do with it: a target
// makes one and starts it again for each input.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform_fake/fake_platform.h"
#include "shell/program/program.h"

namespace verlume::fuzz {

// It logs its dialogues, has a macros folder and shows one of the two stamps.
inline constexpr std::string_view kSettings =
    "[General]\r\nNickname=Ann\r\nTimeStamp=False\r\nMacrosfolder=/macros/\r\n"
    "[Logging]\r\nLogfolder=/logs/\r\nLogdialogue=True\r\n";

enum class Role { Caller, Callee };

class FuzzedCopy {
 public:
  // Starts the program with these bytes as Verlume.ini.
  explicit FuzzedCopy(std::string_view settings = kSettings);

  // Makes it what a new one would be: no connection, no files but its settings, no lines.
  void StartAgain(std::string_view settings = kSettings);

  // Connects with the peer, in the given role, unless the program has ended. Does not send the
  // peer's part of the handshake.
  void Connect(Role role);
  // A text of the peer arrives; handles all events that follow.
  void Receive(std::string_view bytes);
  // The peer's part of the handshake, under a nickname.
  void ShakeHands(Role role, std::string_view nickname);

  // The user's next answer, given once, and the file chosen then.
  void AnswerNext(Answer answer, const std::u16string& path);

  // Puts the line into the pane at once: typing it key by key would be too slow.
  void Enter(std::u16string_view line) {
    platform.window.rtbCommands.SetText(line);
    Type(u"\r");
  }
  void Type(std::u16string_view keys) { platform.window.rtbCommands.Type(keys); }
  bool HasEnded() const { return platform.application.ended || platform.window.window.unloaded; }
  bool IsConnected() const { return platform.socket.State() == SocketState::Connected; }
  std::u16string Pane() const { return platform.window.rtbCommands.Text(); }
  std::u16string Settings() const { return platform.files.ReadText(u"/verlume/Verlume.ini"); }

  fake::FakeNetwork network;
  fake::FakePlatform platform{network};
  fake::FakeSocket peer{network};
  Program program{platform.platform};

 private:
  // Answers the open box. Fails the run if the box reports an internal error of the program.
  void AnswerBox();
  Answer AnswerTo(const Message& message);
  void CancelDialog();
  void Clean();
  void Start(std::string_view settings);

  // The format of a pane in a new program.
  const SelectionFormat newPane_ = platform.window.rtbData.SelFormat();

  // Of the last start.
  std::string settings_;
  std::string writtenByStart_;
  std::optional<AppState> started_;

  bool accepts_ = false;  // the peer's call
  std::optional<Answer> next_;
};

}  // namespace verlume::fuzz
