// A whole program in memory, before a user who refuses whatever is asked, and beside a peer that
// does as a fuzz target likes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform_fake/fake_platform.h"
#include "shell/program/program.h"

namespace verlume::fuzz {

// Records its dialogues, has a folder for macros and shows one stamp.
inline constexpr std::string_view kSettings =
    "[General]\r\nNickname=Ann\r\nTimeStamp=False\r\nMacrosfolder=/macros/\r\n"
    "[Logging]\r\nLogfolder=/logs/\r\nLogdialogue=True\r\n";

enum class Role { Caller, Callee };

class FuzzedCopy {
 public:
  // The bytes of Verlume.ini, with which the program is started.
  explicit FuzzedCopy(std::string_view settings = kSettings);

  // Connects with the peer, in the given role, unless the program has ended. The handshake is the
  // peer's affair.
  void Connect(Role role);
  // Whatever the peer sends arrives by itself, and what follows from it happens.
  void PeerSends(std::string_view bytes);
  // The peer's part of the handshake, under a nickname.
  void ShakeHands(Role role, std::string_view nickname);

  // What the user answers next, for once, and the file chosen then.
  void AnswerNext(Answer answer, const std::u16string& path);

  // A line that is not typed key by key, which costs the most of all.
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
  // Answers the box that is open. None of them may tell of a failure of the program itself.
  void AnswerBox();
  Answer AnswerTo(const Message& message);
  void CancelDialogs();

  bool accepts_ = false;  // the peer's call
  std::optional<Answer> next_;
};

}  // namespace verlume::fuzz
