// The messages between two copies of the program: what is sent, and what an arrival does.
#pragma once

#include <string>
#include <string_view>

#include "commands/dialogue/dialogue.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/status_panel.h"

namespace verlume {

// The fixed text that opens every protocol message: NUL, 67 characters, NUL. All of them are in
// Windows-1253, so that it crosses the wire unchanged. It never changes: it is what two copies of
// the program know each other by.
std::u16string BuildProtocolMarker();

class WireProtocol {
 public:
  struct Collaborators {
    Dialogue& dialogue;
    DialogueLog& log;
    StatusPanel& statusPanel;
  };

  WireProtocol(AppState& state, Platform& platform, ErrorReport& errors,
               Collaborators collaborators)
      : state_(state), platform_(platform), errors_(errors), with_(collaborators) {}

  // The only way anything is sent: one send, counted in lblBytesSent. Does nothing unless the
  // socket is connected. A failure is reported (227), not thrown; only then is the result false.
  bool SendToPeer(std::u16string_view text, TextKind kind);

  void SendStart();                              // "S", right after accepting a call
  void SendNickname();                           // "N"
  void SendActionLine(std::u16string_view rtf);  // "M"
  void SendChatLine(std::u16string_view rtf) { SendToPeer(rtf, TextKind::Line); }

  // One arrival of data is one message: it is counted in lblBytesReceived, and either changes the
  // connection (handshake), or the peer's nickname, or is a line for the dialogue. Throws
  // RunTimeFailure 5 when a handshake or nickname message has no end, 6 when the count overflows.
  void OnDataArrival(std::u16string_view data);

  // Shows the lines that the peer's machine has not acknowledged yet.
  void ShowLinesWaiting();
  // A connection ended before these lines arrived: the status line's tool tip and the log of its
  // conversation say so, also when another one is on by then.
  void OnUndelivered(std::size_t lines);

 private:
  void OnStart(std::u16string_view data);
  void OnConfirm(std::u16string_view data);
  // Becomes Connected; returns what the status line says of it.
  std::u16string EnterConversation();
  void OpenLog(std::u16string_view statusText);
  void TakeNickname(std::u16string_view data);
  void WriteRemoteLine(std::u16string_view text, Sender sender);
  bool SendWithNickname(char16_t kind);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
};

}  // namespace verlume
