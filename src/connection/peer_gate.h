// Who the peer is, and whether it is let in. What is not as it was stops the conversation until the
// user has answered the bar across the command pane: nothing that the peer sends is shown
// meanwhile, and no line is sent. In clear the same is asked each time.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "connection/wire_protocol.h"
#include "people/lock_texts.h"
#include "people/peer_verdict.h"
#include "people/people.h"
#include "platform/platform.h"
#include "shell/app_state.h"
#include "shell/error_report.h"

namespace verlume {

class PeerGate {
 public:
  // `hangUp` closes the connection as if the user had chosen that.
  PeerGate(AppState& state, Platform& platform, ErrorReport& errors, People& people,
           WireProtocol& wire, std::function<void()> hangUp);

  void privacy_State() { ShowLock(); }
  // Lets the peer in, or stops.
  void privacy_PeerKnown();
  void cmdKeyGoOn_Click();
  void cmdKeyHangUp_Click();

  // The peer begins the conversation under this nickname, at the beginning or anew. False if the
  // user is asked about it first: then the wire keeps the message until WireProtocol::GoOn.
  bool MayBegin(std::u16string_view nickname);

  // Shows the lock in the language in force.
  void ShowLock();
  // The same for the bar, if it asks.
  void ShowBar();

 private:
  struct Stop {
    PeerVerdict verdict;
    std::u16string name;  // with which the peer would be let in
    bool atHandshake = false;
  };

  LockState StateOfLock() const;
  void Ask(Stop stop);
  void LetIn(const Stop& stop);
  // Writes the meeting into the book of keys; nothing in clear.
  void Remember(std::u16string_view name, bool isNameAccepted);
  PeerVerdict Judge(std::u16string_view name, std::u16string_view called) const;
  // Where this side has called ("host port"); "" if it was called.
  std::u16string CalledPlace() const;

  AppState& state_;
  Platform& platform_;
  ErrorReport& errors_;
  People& people_;
  WireProtocol& wire_;
  std::function<void()> hangUp_;

  // Of the current connection.
  std::u16string name_;                      // as the peer called itself before it was let in
  bool wasKnown_ = false;                    // its key, before this conversation
  std::vector<std::u16string> judgedNames_;  // nothing is asked about these any more
  Stop stop_;                                // while AppState::PeerStops
};

}  // namespace verlume
