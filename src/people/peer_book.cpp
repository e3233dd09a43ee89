#include "people/peer_book.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "shell/nickname.h"

namespace verlume {
namespace {

// A host name of the network, a blank, and a port.
constexpr std::size_t kLongestPlace = 260;

// The text comes first; a newest text more than kMostOfPeer lets the oldest go.
void PutFirst(std::vector<std::u16string>& texts, std::u16string text) {
  if (text.empty()) return;
  std::erase(texts, text);
  texts.insert(texts.begin(), std::move(text));
  if (texts.size() > kMostOfPeer) texts.pop_back();
}

std::vector<std::u16string> Fitting(const std::vector<std::u16string>& texts,
                                    std::u16string (*fit)(std::u16string_view)) {
  std::vector<std::u16string> fitting;
  for (auto text = texts.rbegin(); text != texts.rend(); ++text) PutFirst(fitting, fit(*text));
  return fitting;
}

std::u16string ShowableAddress(std::u16string_view address) {
  if (address.size() > kLongestPlace) return {};
  for (std::u16string_view rest = address; !rest.empty();) {
    const std::u16string_view character = FirstCharacter(rest);
    if (!IsShowable(character)) return {};
    rest.remove_prefix(character.size());
  }
  return std::u16string(address);
}

int TrustIn(const KnownPeer& peer) {
  return peer.isVerified ? 2 : peer.isInvited ? 1 : 0;
}

}  // namespace

const std::u16string& NameOf(const KnownPeer& peer) {
  const bool isGiven = !peer.givenName.empty() || peer.names.empty();
  return isGiven ? peer.givenName : peer.names.front();
}

const KnownPeer* PeerBook::Find(const KeyFingerprint& key) const {
  const auto found = std::ranges::find(peers_, key, &KnownPeer::key);
  return found == peers_.end() ? nullptr : &*found;
}

KnownPeer* PeerBook::FindMutable(const KeyFingerprint& key) {
  return const_cast<KnownPeer*>(std::as_const(*this).Find(key));
}

const KnownPeer* PeerBook::AnsweredAt(std::u16string_view called) const {
  const auto found = std::ranges::find_if(peers_, [called](const KnownPeer& peer) {
    return std::ranges::find(peer.addresses, called) != peer.addresses.end();
  });
  return called.empty() || found == peers_.end() ? nullptr : &*found;
}

const KnownPeer* PeerBook::AnotherNamed(std::u16string_view name, const KeyFingerprint* key) const {
  const ReadName wanted(name);
  const KnownPeer* best = nullptr;
  for (std::size_t i = 0; i < peers_.size(); ++i) {
    if (key && peers_[i].key == *key) continue;
    if (best && TrustIn(*best) >= TrustIn(peers_[i])) continue;
    const bool hasName = std::ranges::any_of(
        readings_[i], [&](const ReadName& read) { return read.ReadsLike(wanted); });
    if (hasName) best = &peers_[i];
  }
  return best;
}

void PeerBook::Meet(const Meeting& meeting) {
  const std::u16string address = ShowableAddress(meeting.address);
  const bool wasCalled = address.find(u' ') != address.npos;
  for (KnownPeer& peer : peers_) {
    if (wasCalled) std::erase(peer.addresses, address);
  }
  const std::u16string name = ShowableNickname(meeting.name);
  KnownPeer& peer = FindOrAdd(meeting.key, meeting.day);
  PutFirst(peer.names, name);
  PutFirst(peer.addresses, address);
  if (meeting.isNameAccepted) PutFirst(peer.acceptedNames, name);
  peer.isInvited |= meeting.isInvited;
  peer.last = std::max(peer.last, meeting.day);
  // The clock may have been wrong.
  peer.first = std::min(peer.first, meeting.day);
  Changed(peer);
  MakeRoom();
}

KnownPeer& PeerBook::FindOrAdd(const KeyFingerprint& key, Day day) {
  const auto found = std::ranges::find(peers_, key, &KnownPeer::key);
  if (found == peers_.end()) {
    peers_.push_back({});
    readings_.emplace_back();
    peers_.back().key = key;
    peers_.back().first = peers_.back().last = day;
    return peers_.back();
  }
  // The newest stands last.
  const auto place = found - peers_.begin();
  std::rotate(found, found + 1, peers_.end());
  std::rotate(readings_.begin() + place, readings_.begin() + place + 1, readings_.end());
  return peers_.back();
}

void PeerBook::Verify(const KeyFingerprint& key, std::u16string_view name, Day day) {
  KnownPeer* peer = FindMutable(key);
  if (!peer) peer = &FindOrAdd(key, day);
  peer->isVerified = true;
  if (peer->givenName.empty()) peer->givenName = ShowableNickname(name);
  Changed(*peer);
  MakeRoom();
}

void PeerBook::SetVerified(const KeyFingerprint& key, bool isVerified) {
  if (KnownPeer* peer = FindMutable(key)) peer->isVerified = isVerified;
}

void PeerBook::SetGivenName(const KeyFingerprint& key, std::u16string_view name) {
  KnownPeer* peer = FindMutable(key);
  if (!peer) return;
  peer->givenName = ShowableNickname(name);
  Changed(*peer);
}

void PeerBook::Forget(const KeyFingerprint& key) {
  const KnownPeer* peer = Find(key);
  if (peer) RemoveAt(static_cast<std::size_t>(peer - peers_.data()));
}

bool PeerBook::Add(KnownPeer peer) {
  if (peers_.size() >= kMostPeers || Find(peer.key)) return false;
  peer.givenName = ShowableNickname(peer.givenName);
  peer.names = Fitting(peer.names, ShowableNickname);
  peer.addresses = Fitting(peer.addresses, ShowableAddress);
  peer.acceptedNames = Fitting(peer.acceptedNames, ShowableNickname);
  const auto place = static_cast<std::ptrdiff_t>(
      std::ranges::upper_bound(peers_, peer.last, std::less<>(), &KnownPeer::last) -
      peers_.begin());
  peers_.insert(peers_.begin() + place, std::move(peer));
  readings_.insert(readings_.begin() + place, std::vector<ReadName>());
  Changed(peers_[static_cast<std::size_t>(place)]);
  return true;
}

void PeerBook::Changed(const KnownPeer& peer) {
  std::vector<ReadName>& readings = readings_[static_cast<std::size_t>(&peer - peers_.data())];
  readings.clear();
  if (!peer.givenName.empty()) readings.emplace_back(peer.givenName);
  for (const std::u16string& name : peer.names) readings.emplace_back(name);
}

void PeerBook::RemoveAt(std::size_t index) {
  peers_.erase(peers_.begin() + static_cast<std::ptrdiff_t>(index));
  readings_.erase(readings_.begin() + static_cast<std::ptrdiff_t>(index));
}

void PeerBook::MakeRoom() {
  if (peers_.size() <= kMostPeers) return;
  const auto leaves = std::ranges::find(peers_, false, &KnownPeer::isVerified);
  if (leaves != peers_.end()) RemoveAt(static_cast<std::size_t>(leaves - peers_.begin()));
}

}  // namespace verlume
