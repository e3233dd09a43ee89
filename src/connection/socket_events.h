// What the program does at each event of its socket. Each procedure reports its own failures.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "connection/refused_callers.h"
#include "connection/wire_protocol.h"
#include "platform/platform.h"
#include "records/dialogue_log.h"
#include "shell/app_state.h"
#include "shell/error_report.h"
#include "shell/text_pair.h"

namespace verlume {

// How long a caller that was accepted may say nothing at all.
inline constexpr int kLongestSilence = 30;  // seconds

class SocketEvents {
 public:
  SocketEvents(AppState& state, Platform& platform, ErrorReport& errors, WireProtocol& wire,
               DialogueLog& log)
      : state_(state), platform_(platform), errors_(errors), wire_(wire), log_(log) {}

  // Asks the user in a modal box, and acts on the answer only if this side is still listening then.
  // No ends the wait, unless "Keep waiting" is ticked. While it is, who was refused again and again
  // is not asked about (refused_callers.h).
  void sckControl_ConnectionRequest(std::int64_t requestId);
  void sckControl_Connect();
  void sckControl_DataArrival(std::int32_t bytesTotal);
  void sckControl_Close();
  // Once a second: lets a caller go that has been accepted and says nothing for kLongestSilence, as
  // if it had closed the connection. One that has said something may stay silent. And shows which
  // callers are still turned away.
  void tmrTimer_Timer();

  // Raised with the caller's address when the user is about to be asked about a call.
  std::function<void(std::u16string_view address)> onIncomingCall;

 private:
  // The status when a connection has ended because the keys could not be proved.
  std::u16string NotPrivateText() const;
  bool IsSilentCaller() const;
  bool HasProvedItself() const;
  bool AskWhetherToAccept(const std::u16string& ip);
  void AcceptCaller(std::int64_t requestId);
  void RejectCaller(std::int64_t requestId, const std::u16string& ip);
  void ShowTurnedAway();
  // A new peer has no nickname until it sends one.
  void ForgetRemoteNickname();
  // Shows that a connection to this peer is being established.
  void ShowPeer(const std::u16string& ip);
  // Shows a text in which %1 is the host and %2 the port.
  void SetStatus(const TextPair& text, const std::u16string& host, std::int32_t port);

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  WireProtocol& wire_;
  DialogueLog& log_;
  bool keepsWaiting_ = false;  // after a No, as the user ticked last
  RefusedCallers refused_;
  RefusedCallers::Seconds now_{0};
  bool isSilent_ = false;  // the accepted caller has said nothing yet
  int silence_ = 0;        // for so many seconds
};

}  // namespace verlume
