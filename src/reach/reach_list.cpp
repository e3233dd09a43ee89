#include "reach/reach_list.h"

#include "people/invitation.h"
#include "reach/address_rows.h"
#include "reach/advice.h"
#include "reach/reach_words.h"
#include "shell/text_pair.h"

namespace verlume {

void ReachList::mnuCommReach_Click() {
  errors_.Guard(Procedure::ReachWindow, [this] {
    firewalls_ = platform_.network.Firewalls();
    if (platform_.router.Port() == 0) AskRouter();
    isOpen_ = true;
    shown_.reset();
    Refresh();
    platform_.frmReach.window.ShowModal();
  });
  isOpen_ = false;
  platform_.frmMain.rtbCommands.SetFocus();
}

void ReachList::AskRouter() {
  if (state_.AskRouter != RouterChoice::Yes) return;
  const std::int32_t port = platform_.router.Port();
  port != 0 ? platform_.router.MapPort(port) : platform_.router.AskAddress();
}

void ReachList::cmdReachAgain_Click() {
  errors_.Guard(Procedure::ReachWindow, [this] {
    firewalls_ = platform_.network.Firewalls();
    AskRouter();
    Refresh();
  });
}

void ReachList::Refresh() {
  if (!isOpen_) return;
  errors_.Guard(Procedure::ReachWindow, [this] {
    Contents contents = Current();
    if (contents == shown_) return;
    Show(contents);
    shown_ = std::move(contents);
  });
}

ReachList::Contents ReachList::Current() const {
  const ReachFacts facts = FactsOf(state_, platform_, firewalls_);
  const bool isGreek = state_.IsGreek;
  const bool hasPlace = !facts.place.host.empty();
  return {.rows = AddressRows(facts, isGreek),
          .router = RouterText(facts, isGreek),
          .firewall = FirewallText(facts.firewalls, isGreek),
          .advice = AdviceText(facts, isGreek),
          .place = hasPlace ? facts.place.host + u" " + DecimalText(facts.place.port) : u"",
          .invitation = hasPlace ? InvitationTo(facts.place) : u""};
}

std::u16string ReachList::InvitationTo(const PlaceToCall& place) const {
  const auto key = platform_.privacy.OwnFingerprint();
  if (!key || state_.Offer == PrivacyOffer::Never) return {};
  return InvitationText({place.host, place.port, *key});
}

// The rows only if they are others: the user may have selected one.
void ReachList::Show(const Contents& contents) {
  const ReachWindow& frmReach = platform_.frmReach;
  if (!shown_ || shown_->rows != contents.rows) frmReach.lstReachAddresses.SetRows(contents.rows);
  frmReach.lblReachRouter.SetCaption(contents.router);
  frmReach.lblReachFirewall.SetCaption(contents.firewall);
  frmReach.lblReachAdvice.SetCaption(contents.advice);
  frmReach.txtReachAddress.SetText(contents.place);
  frmReach.cmdReachCopyAddress.SetEnabled(!contents.place.empty());
  frmReach.cmdReachCopyInvitation.SetEnabled(!contents.invitation.empty());
}

void ReachList::cmdReachCopyAddress_Click() {
  if (shown_) platform_.clipboard.SetText(shown_->place);
}

void ReachList::cmdReachCopyInvitation_Click() {
  if (shown_) platform_.clipboard.SetText(shown_->invitation);
}

void ReachList::cmdReachClose_Click() {
  platform_.frmReach.window.Unload();
}

}  // namespace verlume
