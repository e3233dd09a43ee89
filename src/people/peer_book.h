// The keys that this program has met, and what is known of those who have them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "people/day.h"
#include "platform/privacy.h"
#include "shell/look_alikes.h"

namespace verlume {

// The keys that are kept; and the names and the addresses of each.
inline constexpr std::size_t kMostPeers = 1000;
inline constexpr std::size_t kMostOfPeer = 8;

// All names are showable (shell/nickname.h), and none is empty but givenName.
struct KnownPeer {
  KeyFingerprint key{};
  std::u16string givenName;  // by the user; "" for none
  // What it called itself, and where it was called ("host port") or came from ("address"); newest
  // first.
  std::vector<std::u16string> names;
  std::vector<std::u16string> addresses;
  // Names with which the user has let it in although they are another's.
  std::vector<std::u16string> acceptedNames;
  Day first;
  Day last;
  bool isInvited = false;
  bool isVerified = false;  // the users have compared the digits

  bool operator==(const KnownPeer&) const = default;
};

// What the person is called: by the user, else by itself; "" if there is no name.
const std::u16string& NameOf(const KnownPeer& peer);

class PeerBook {
 public:
  // A peer that is let in.
  struct Meeting {
    KeyFingerprint key{};
    std::u16string name;
    std::u16string address;
    bool isInvited = false;
    bool isNameAccepted = false;
    Day day;
  };

  // Who was not met for the longest time comes first.
  const std::vector<KnownPeer>& Peers() const { return peers_; }
  // Null if the key is not known.
  const KnownPeer* Find(const KeyFingerprint& key) const;
  // Who answered last where it was called ("host port"); null if nobody.
  const KnownPeer* AnsweredAt(std::u16string_view called) const;
  // Somebody with a name that reads like this one, and another key than `key`; null if nobody. The
  // verified come first, then the invited.
  const KnownPeer* AnotherNamed(std::u16string_view name, const KeyFingerprint* key) const;

  // Writes down a meeting. Where it was called, nobody else has answered last then. Beyond
  // kMostPeers the one leaves that was not met for the longest time and is not verified.
  void Meet(const Meeting& meeting);
  // The users have compared the digits of the key. Who has no given name is called `name` from now
  // on.
  void Verify(const KeyFingerprint& key, std::u16string_view name, Day day);
  // Do nothing if the key is not known.
  void SetVerified(const KeyFingerprint& key, bool isVerified);
  void SetGivenName(const KeyFingerprint& key, std::u16string_view name);
  void Forget(const KeyFingerprint& key);

  // As it stood in a file: makes its texts and numbers of them fit. False, and nothing is added, if
  // the key is known already or there are kMostPeers.
  bool Add(KnownPeer peer);

 private:
  KnownPeer* FindMutable(const KeyFingerprint& key);
  KnownPeer& FindOrAdd(const KeyFingerprint& key, Day day);
  void Changed(const KnownPeer& peer);
  void RemoveAt(std::size_t index);
  void MakeRoom();

  std::vector<KnownPeer> peers_;
  std::vector<std::vector<ReadName>> readings_;  // of each peer: all its names
};

}  // namespace verlume
