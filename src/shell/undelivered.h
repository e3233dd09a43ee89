// What the user has said and the peer has not confirmed. It is kept in memory only, and ends with
// the program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "platform/privacy.h"
#include "platform/socket.h"

namespace verlume {

// By what the peer of a conversation is recognised.
struct PeerTrace {
  std::optional<KeyFingerprint> key = {};  // if the conversation is private
  std::u16string called;   // the place that was called (CalledPlace); "" if the peer has called
  std::u16string address;  // of its machine
  std::u16string nickname;

  bool operator==(const PeerTrace&) const = default;
};

// Whether what was said to one peer may be offered for the other. What was said in private is only
// for the same key. In clear nothing proves who somebody is: there it is the nickname, with the
// place that was called both times, or else the address.
bool IsSamePeer(const PeerTrace& said, const PeerTrace& now);

// The lines of each conversation, in the order in which they were said. Of too many the oldest
// leave; they are still counted.
class UndeliveredLines {
 public:
  static constexpr std::size_t kMostLines = 1000;
  static constexpr std::size_t kMostBytes = std::size_t{8} << 20;

  // A conversation has begun over this connection, or its peer has another nickname.
  void Meet(ConnectionNumber connection, PeerTrace peer);
  // The peer of the conversation that began last.
  const PeerTrace& Current() const { return current_.peer; }

  // The user has said a line in that conversation. Not `isSent` if the connection had ended by
  // then: such a line is lost in any case.
  void Add(ConnectionNumber connection, std::u16string_view line, bool isSent);
  // Only the last `lines` of those sent are not confirmed yet.
  void Keep(ConnectionNumber connection, std::size_t lines);
  // The connection has ended with so many lines that were not confirmed: from now on they are
  // offered. Without a conversation they were for nobody, and are forgotten. Said twice of a
  // connection, only the first counts.
  void Lose(ConnectionNumber connection, std::size_t lines);

  // How many lines this peer has not got, with those that are no longer kept.
  std::size_t CountFor(const PeerTrace& peer) const;
  std::size_t KeptFor(const PeerTrace& peer) const;
  // The oldest line that is kept for the peer; nothing if there is none.
  const std::u16string* FirstFor(const PeerTrace& peer) const;
  std::optional<std::u16string> TakeFirstFor(const PeerTrace& peer);
  void DropFor(const PeerTrace& peer);

 private:
  struct Talk {
    ConnectionNumber connection = 0;
    std::optional<PeerTrace> peer;  // once the conversation has begun
    std::deque<std::u16string> lines;
    std::size_t unsent = 0;  // how many of the last lines came after the end
    std::size_t gone = 0;    // how many lines before these are no longer kept
    bool isLost = false;     // what is here is for another conversation
  };
  struct Meeting {
    ConnectionNumber connection = 0;
    PeerTrace peer;
  };

  static bool IsFor(const Talk& talk, const PeerTrace& peer);
  Talk* Find(ConnectionNumber connection);
  void PopFront(Talk& talk);
  void Forget(Talk& talk);
  void LimitSize();

  Meeting current_;
  std::deque<Talk> talks_;  // oldest first
  std::size_t lines_ = 0;   // of all of them
  std::size_t bytes_ = 0;
};

}  // namespace verlume
