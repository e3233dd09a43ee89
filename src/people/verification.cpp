#include "people/verification.h"

#include "shell/nickname.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr TextPair kVerifyTitle = {u"Verify", u"Επαλήθευση"};
constexpr TextPair kNotInPrivate = {
    u"There are digits to compare only during a private conversation.",
    u"Ψηφία για σύγκριση υπάρχουν μόνο κατά τη διάρκεια ιδιωτικής συνομιλίας."};
// %1 a name
constexpr TextPair kCompare = {u"Compare these digits with %1.",
                               u"Συγκρίνετε αυτά τα ψηφία με: %1."};
constexpr TextPair kCompareWithNobody = {u"Compare these digits with the other side.",
                                         u"Συγκρίνετε αυτά τα ψηφία με την άλλη πλευρά."};
constexpr TextPair kVerifiedBefore = {u" You have verified this key before.",
                                      u" Έχετε ήδη επαληθεύσει αυτό το κλειδί."};

}  // namespace

std::optional<Peer> Verification::PrivatePeer() const {
  const std::optional<Peer> peer = platform_.privacy.CurrentPeer();
  const bool isPrivate = platform_.privacy.State() == Privacy::Private && peer && peer->key;
  return isPrivate ? peer : std::nullopt;
}

void Verification::mnuCommVerify_Click() {
  errors_.Guard(Procedure::VerifyWindow, [this] {
    const std::optional<Peer> peer = PrivatePeer();
    if (peer) return Show(*peer);
    platform_.dialogs.ShowMessage(
        Note(kNotInPrivate.In(state_.IsGreek), kVerifyTitle.In(state_.IsGreek)));
  });
  platform_.frmMain.rtbCommands.SetFocus();
}

void Verification::lblLock_MouseDown(MouseButton button) {
  if (button == MouseButton::Left) mnuCommVerify_Click();
}

void Verification::Show(const Peer& peer) {
  const bool isGreek = state_.IsGreek;
  shownKey_ = *peer.key;
  shownName_ = state_.RemoteNickname.empty() ? ShowableNickname(peer.name) : state_.RemoteNickname;
  const KnownPeer* known = people_.Book().Find(shownKey_);
  const bool isVerified = known && known->isVerified;
  const std::u16string& name = isVerified ? NameOf(*known) : shownName_;
  std::u16string who = name.empty() ? std::u16string(kCompareWithNobody.In(isGreek))
                                    : kCompare.Fill(isGreek, {name});
  if (isVerified) who += kVerifiedBefore.In(isGreek);
  const VerifyWindow& frmVerify = platform_.frmVerify;
  const std::u16string digits = platform_.privacy.SafetyDigits();
  frmVerify.lblVerifyWho.SetCaption(who);
  frmVerify.lblVerifyDigits.SetDigits(digits);
  frmVerify.picVerifyCode.SetCode(digits);
  frmVerify.window.ShowModal();
}

void Verification::cmdVerifyCopy_Click() {
  platform_.clipboard.SetText(platform_.frmVerify.lblVerifyDigits.Digits());
}

void Verification::cmdVerifyMatch_Click() {
  errors_.Guard(Procedure::VerifyWindow, [this] {
    people_.Change([this](PeerBook& book) { book.Verify(shownKey_, shownName_, people_.Today()); });
    platform_.frmVerify.window.Unload();
  });
}

void Verification::cmdVerifyClose_Click() {
  platform_.frmVerify.window.Unload();
}

}  // namespace verlume
