// The messages between two copies of the program: how they are sent, and what an arriving one does.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "commands/dialogue/dialogue.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/status_panel.h"

namespace verlume {

// The fixed text that opens every protocol message: NUL, 67 characters, NUL. All of them are in
// Windows-1253, so that they cross the wire unchanged. Two copies of the program recognise each
// other by this text, so it never changes.
std::u16string BuildProtocolMarker();

class WireProtocol {
 public:
  struct Collaborators {
    Dialogue& dialogue;
    DialogueLog& log;
    StatusPanel& statusPanel;
    // A conversation has begun, and the peer's nickname is known.
    std::function<void()> onConversation = {};
    // Whether a conversation may begin with a peer of this nickname. If not, the message waits for
    // GoOn.
    std::function<bool(std::u16string_view nickname)> mayBegin = {};
    // The peer has another nickname.
    std::function<void()> onNickname = {};
  };

  WireProtocol(AppState& state, Platform& platform, ErrorReport& errors,
               Collaborators collaborators)
      : state_(state), platform_(platform), errors_(errors), with_(std::move(collaborators)) {}

  // Everything is sent by this function: in one send, counted in lblBytesSent. Does nothing unless
  // the socket is connected. A failure is reported (227), not thrown; only then is the result
  // false.
  bool SendToPeer(std::u16string_view text, TextKind kind);

  void SendStart();                              // "S", right after accepting a call
  void SendNickname();                           // "N"
  void SendActionLine(std::u16string_view rtf);  // "M"
  void SendChatLine(std::u16string_view rtf) { SendLine(rtf); }
  // A line as it crosses the wire: of one of the two kinds. It is kept until the peer has got it
  // (AppState::Undelivered).
  void SendLine(std::u16string_view line) { SendToPeer(line, TextKind::Line); }

  // Takes one arrival, which is one message, and counts it in lblBytesReceived. The message is part
  // of the handshake, or the peer's new nickname, or a line for the dialogue. Throws RunTimeFailure
  // 5 when a handshake or nickname message has no end, 6 when the count overflows.
  void OnDataArrival(std::u16string_view data);

  // Takes the message that mayBegin has stopped; only while the connection waits for that.
  void GoOn();
  // Sends "N" if the nickname has changed while the user was asked about the peer.
  void TellNickname();

  // Appends to the log which nickname is whose, if they read alike. Does nothing if it would say
  // what `before` says.
  void SayWhoIsWho(std::u16string_view before);

  // Shows how many lines the peer's machine has not acknowledged yet.
  void ShowLinesWaiting();
  // A connection ended before these lines were delivered: says so in the tool tip of the status
  // line and in the log of that conversation, even if the next one has begun. They are offered for
  // sending when the same peer is there.
  void OnUndelivered(std::size_t lines, ConnectionNumber connection);

 private:
  // Whether the handshake may go on; keeps it if not.
  bool MayBegin(std::u16string_view data);
  void OnHandshake(std::u16string_view data);
  void OnStart(std::u16string_view data);
  void OnConfirm(std::u16string_view data);
  void OnNickname(std::u16string_view data);
  // Enters the state Connected; returns the text of the status line.
  std::u16string EnterConversation();
  // Names the log of a new conversation after the peer.
  void NameLog();
  void TakeNickname(std::u16string_view data);
  void OfferUndelivered();
  void WriteRemoteLine(std::u16string_view text, Sender sender);
  bool SendWithNickname(char16_t kind);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  Collaborators with_;
  std::u16string stopped_;       // a handshake that waits for GoOn
  std::u16string nicknameTold_;  // to the peer
};

}  // namespace verlume
