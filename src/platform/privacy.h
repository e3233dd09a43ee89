// Private conversations: who the peer is, and whether anybody between can read what is said. Two
// programs that both can make their conversation private by themselves; with any other peer it
// goes in clear.
//
// Keys stand for people: each folder of the program has a key of its own, and the peer proves that
// it has the one it shows. Events are raised on the user-interface thread, never from inside an
// operation.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace verlume {

// Names a key: SHA-256 over the public key.
using KeyFingerprint = std::array<std::uint8_t, 32>;

// What the program offers to its peers.
enum class PrivacyOffer {
  WhenPossible,  // private with who can, in clear with others
  Only,          // who cannot is hung up on
  Never,         // in clear with everybody; nothing on the wire tells of this program's abilities
};

// How the connection goes.
enum class Privacy {
  None,      // there is no connection, or it is not known yet what the peer can do
  Becoming,  // both can, and they are proving their keys
  Private,   // nobody between can read or change what is said
  Clear,     // anybody between can
};

// Why a connection ended before anybody was let in.
enum class PrivacyFailure {
  None,
  NotOffered,  // the peer cannot, and it has to: Only, or a key is expected
  OtherKey,    // not the expected one
  Broken,      // the peer, or somebody between, did not keep to the protocol
  Late,        // the keys were not proved in time
  NoKey,       // it has to be private, and this program has no key to show
};

// What is known about the peer before it is let in.
struct Peer {
  std::optional<KeyFingerprint> key;  // nothing in clear
  std::u16string name;                // what it calls itself; "" if it has not said
};

// The key of this folder of the program.
enum class OwnKey {
  Ready,
  Unreadable,   // the file is there and cannot be read: it is not replaced
  Unwritable,   // there is none, and it cannot be made
  Unavailable,  // the system cannot encrypt
};

class PeerPrivacy {
 public:
  virtual ~PeerPrivacy() = default;

  // For connections that begin from now on. Never until it is called.
  virtual void SetOffer(PrivacyOffer offer) = 0;
  // What this program's user is called, told to the peer in private. For connections that begin
  // from now on.
  virtual void SetOwnName(std::u16string_view name) = 0;
  // The key that the next calls accept, and no other; nothing for any.
  virtual void ExpectKey(const std::optional<KeyFingerprint>& key) = 0;

  // Reads the own key, or makes it if there is none. Unless it is Ready, conversations go in clear
  // (and with Only not at all). Reads again each time it is not Ready.
  virtual OwnKey PrepareOwnKey() = 0;
  // Puts another key in the place of one that is Unreadable; the old file is kept beside it.
  virtual OwnKey ReplaceOwnKey() = 0;
  // Nothing unless the own key is Ready.
  virtual std::optional<KeyFingerprint> OwnFingerprint() const = 0;

  virtual Privacy State() const = 0;
  // The peer of the connection; nothing before onPeerKnown, and after the connection.
  virtual std::optional<Peer> CurrentPeer() const = 0;
  // Lets the peer in: what it has sent is raised, and what waits is sent. Does nothing if there is
  // none that waits for it.
  virtual void AdmitPeer() = 0;
  // Why the last connection ended before its peer was known; None if it did not.
  virtual PrivacyFailure LastFailure() const = 0;
  // While the socket raises onClose: whether the connection was private, and its peer has said that
  // it ends it. Without that the line broke, or somebody has cut it. In clear nobody can know:
  // false.
  virtual bool HasPeerSaidGoodbye() const = 0;
  // Sixty digits, the same on both sides, which prove to two people who compare them that nobody is
  // between; "" unless Private. Takes some milliseconds.
  virtual std::u16string SafetyDigits() const = 0;

  // State is another.
  std::function<void()> onState;
  // It is settled how the connection goes, and CurrentPeer is known. Until AdmitPeer nothing that
  // the peer sends is raised and no text is sent but the first one of the side that was called.
  // Without a receiver the peer is let in at once. With the offer Never it is not raised.
  std::function<void()> onPeerKnown;
};

}  // namespace verlume
