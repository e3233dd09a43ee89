#include "connection/peer_gate.h"

#include <algorithm>
#include <utility>

#include "connection/connection_state.h"
#include "connection/peer_gate_texts.h"
#include "shell/called_hosts.h"
#include "shell/nickname.h"
#include "shell/resend_bar.h"

namespace verlume {
namespace {

Acquaintance AcquaintanceOf(const KnownPeer* peer, bool wasKnown) {
  if (peer && peer->isVerified) return Acquaintance::Verified;
  if (peer && peer->isInvited) return Acquaintance::Invited;
  return peer && wasKnown ? Acquaintance::Known : Acquaintance::First;
}

}  // namespace

PeerGate::PeerGate(AppState& state, Platform& platform, ErrorReport& errors, People& people,
                   WireProtocol& wire, std::function<void()> hangUp)
    : state_(state),
      platform_(platform),
      errors_(errors),
      people_(people),
      wire_(wire),
      hangUp_(std::move(hangUp)) {}

std::u16string PeerGate::CalledPlace() const {
  if (StateOf(state_) != ConnectionState::Calling) return {};
  return verlume::CalledPlace(state_);
}

PeerVerdict PeerGate::Judge(std::u16string_view name, std::u16string_view called) const {
  const std::optional<Peer> peer = platform_.privacy.CurrentPeer();
  return JudgePeer(people_.Book(), peer ? peer->key : std::nullopt, name, called);
}

void PeerGate::privacy_PeerKnown() {
  errors_.Guard(Procedure::PeerKnown, [this] {
    const std::optional<Peer> peer = platform_.privacy.CurrentPeer();
    if (!peer) return;
    name_ = ShowableNickname(peer->name);
    judgedNames_.clear();
    wasKnown_ = peer->key && people_.Book().Find(*peer->key);
    const PeerVerdict verdict = Judge(name_, CalledPlace());
    if (verdict.stop == StopReason::None) {
      LetIn({.verdict = {}, .name = name_});
    } else {
      Ask({.verdict = verdict, .name = name_});
    }
    ShowLock();
  });
}

bool PeerGate::MayBegin(std::u16string_view nickname) {
  if (!platform_.privacy.CurrentPeer()) return true;
  const std::u16string name = ShowableNickname(nickname);
  if (std::ranges::find(judgedNames_, name) != judgedNames_.end()) return true;
  const PeerVerdict verdict = Judge(name, {});
  if (verdict.stop != StopReason::None) {
    Ask({.verdict = verdict, .name = name, .atHandshake = true});
    return false;
  }
  // Only the name with which a conversation begins is kept: a peer could send any number.
  if (StateOf(state_) != ConnectionState::Connected) Remember(name, false);
  return true;
}

void PeerGate::Ask(Stop stop) {
  stop_ = std::move(stop);
  state_.PeerStops = true;
  // Before AdmitPeer nothing arrives anyway.
  if (stop_.atHandshake) platform_.sckControl.PauseArrivals();
  ShowResendBar(state_, platform_);
  ShowBar();
  platform_.attention.Announce(platform_.frmMain.keyBar.lblKey.Caption());
  platform_.frmMain.window.FlagForAttention();
}

void PeerGate::cmdKeyGoOn_Click() {
  if (!state_.PeerStops) return;
  errors_.Guard(Procedure::PeerKnown, [this] {
    EndStop(state_, platform_);
    const Stop stop = stop_;
    const StopReason reason = stop.verdict.stop;
    const bool isAboutAddress =
        reason == StopReason::OtherKeyAtAddress || reason == StopReason::ClearAtAddress;
    // The place is settled; what is about the name is asked by itself, unless the user has just
    // read the same about the same person.
    const PeerVerdict rest = isAboutAddress ? Judge(stop.name, {}) : PeerVerdict();
    const bool isSaid = rest.stop == StopReason::ClearForName && rest.known == stop.verdict.known;
    if (rest.stop == StopReason::None || isSaid) {
      LetIn(stop);
      ShowResendBar(state_, platform_);
    } else {
      Ask({.verdict = rest, .name = stop.name, .atHandshake = stop.atHandshake});
    }
    ShowLock();
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void PeerGate::LetIn(const Stop& stop) {
  judgedNames_.push_back(stop.name);
  Remember(stop.name, stop.verdict.stop == StopReason::OtherKeyForName);
  if (stop.atHandshake) {
    wire_.GoOn();
    platform_.sckControl.ResumeArrivals();
  } else {
    platform_.privacy.AdmitPeer();
  }
  if (stop.verdict.stop != StopReason::None) wire_.TellNickname();
}

void PeerGate::Remember(std::u16string_view name, bool isNameAccepted) {
  const std::optional<Peer> peer = platform_.privacy.CurrentPeer();
  if (!peer || !peer->key) return;
  const std::u16string called = CalledPlace();
  people_.Change([&](PeerBook& book) {
    book.Meet({.key = *peer->key,
               .name = std::u16string(name),
               .address = called.empty() ? platform_.sckControl.RemoteHostIP() : called,
               .isInvited = !called.empty() && state_.ExpectedKey == peer->key,
               .isNameAccepted = isNameAccepted,
               .day = people_.Today()});
  });
}

void PeerGate::cmdKeyHangUp_Click() {
  if (state_.PeerStops) hangUp_();
}

LockState PeerGate::StateOfLock() const {
  const PeerPrivacy& privacy = platform_.privacy;
  LockState lock;
  lock.privacy = privacy.State();
  if (state_.Offer == PrivacyOffer::Never) {
    lock.clear = ClearReason::TurnedOff;
  } else if (state_.OwnKeyFound != OwnKey::Ready) {
    lock.clear = ClearReason::NoOwnKey;
  }
  const std::optional<Peer> peer = privacy.CurrentPeer();
  if (!peer) return lock;
  lock.callsSelf = state_.RemoteNickname.empty() ? name_ : state_.RemoteNickname;
  const KeyFingerprint* key = peer->key ? &*peer->key : nullptr;
  lock.isAnotherKnown = people_.Book().AnotherNamed(lock.callsSelf, key) != nullptr;
  const KnownPeer* known = key ? people_.Book().Find(*key) : nullptr;
  lock.acquaintance = AcquaintanceOf(known, wasKnown_);
  if (!known) return lock;
  lock.since = known->first;
  lock.name = NameOf(*known);
  return lock;
}

void PeerGate::ShowLock() {
  const LockState state = StateOfLock();
  LockLabel& lblLock = platform_.frmMain.lblLock;
  lblLock.SetPicture(PictureOfLock(state));
  lblLock.SetCaption(WordsOfLock(state, state_.IsGreek));
}

void PeerGate::ShowBar() {
  if (!state_.PeerStops) return;
  const KeyBar& bar = platform_.frmMain.keyBar;
  const PeerVerdict& verdict = stop_.verdict;
  const std::u16string text =
      peer_gate_texts::BarText(verdict.stop).Fill(state_.IsGreek, {verdict.known});
  bar.lblKey.SetCaption(text);
  bar.fraKey.SetAccessibleName(text);
  bar.cmdKeyGoOn.SetCaption(peer_gate_texts::GoOnText(verdict.stop).In(state_.IsGreek));
  bar.fraKey.SetVisible(true);
}

}  // namespace verlume
