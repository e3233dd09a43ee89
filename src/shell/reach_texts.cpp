#include "shell/reach_texts.h"

#include "shell/setters.h"

namespace verlume {

std::vector<FixedText> ReachTexts(const MainWindow& frmMain) {
  const RouterBar& bar = frmMain.routerBar;
  return {
      {Caption(frmMain.mnuCommReach), {u"Can I be called?", u"Μπορούν να με καλέσουν;"}},
      {ToolTip(frmMain.mnuCommReach),
       {u"Shows who can call this computer, and what to do if nobody can",
        u"Δείχνει ποιος μπορεί να καλέσει αυτόν τον υπολογιστή και τι να κάνετε αν δεν μπορεί "
        u"κανείς"}},
      {Caption(frmMain.mnuCommAskRouter),
       {u"Ask the router for the port", u"Άνοιγμα θύρας στον δρομολογητή"}},
      {ToolTip(frmMain.mnuCommAskRouter),
       {u"Asks the router to pass calls on to this computer while you wait and talk",
        u"Ζητά από τον δρομολογητή να προωθεί τις κλήσεις σε αυτόν τον υπολογιστή όσο περιμένετε "
        u"και συνομιλείτε"}},
      {Caption(bar.cmdRouterYes), {u"Yes", u"Ναι"}},
      {Caption(bar.cmdRouterNo), {u"No", u"Όχι"}},
      {Caption(bar.cmdRouterClose), {u"Close", u"Κλείσιμο"}},
      {ToolTip(bar.cmdRouterClose), {u"Close this bar (Esc)", u"Κλείσιμο της γραμμής (Esc)"}},
  };
}

std::vector<FixedText> ReachWindowTexts(const ReachWindow& frmReach) {
  const auto heading = [&frmReach](ReachColumn column) {
    return [&table = frmReach.lstReachAddresses, column](std::u16string_view text) {
      table.SetHeading(static_cast<int>(column), text);
    };
  };
  constexpr TextPair kRouter = {u"Router", u"Δρομολογητής"};
  constexpr TextPair kFirewall = {u"Firewall", u"Τείχος προστασίας"};
  constexpr TextPair kAdvice = {u"What to do", u"Τι να κάνετε"};
  constexpr TextPair kAddress = {u"Address to give", u"Διεύθυνση να δώσετε"};
  return {
      {Title(frmReach.window), {u"Can I be called?", u"Μπορούν να με καλέσουν;"}},
      {AccessibleName(frmReach.lstReachAddresses),
       {u"Addresses of this computer", u"Διευθύνσεις αυτού του υπολογιστή"}},
      {heading(ReachColumn::Address), {u"Address", u"Διεύθυνση"}},
      {heading(ReachColumn::WhoCanCall), {u"Who can call it", u"Ποιος μπορεί να την καλέσει"}},
      {Caption(frmReach.lblReachRouterCaption), kRouter},
      {AccessibleName(frmReach.lblReachRouter), kRouter},
      {Caption(frmReach.lblReachFirewallCaption), kFirewall},
      {AccessibleName(frmReach.lblReachFirewall), kFirewall},
      {Caption(frmReach.lblReachAdviceCaption), kAdvice},
      {AccessibleName(frmReach.lblReachAdvice), kAdvice},
      {Caption(frmReach.lblReachAddressCaption), kAddress},
      {AccessibleName(frmReach.txtReachAddress), kAddress},
      {Caption(frmReach.cmdReachCopyAddress), {u"Copy address", u"Αντιγραφή διεύθυνσης"}},
      {Caption(frmReach.cmdReachCopyInvitation), {u"Copy invitation", u"Αντιγραφή πρόσκλησης"}},
      {ToolTip(frmReach.cmdReachCopyInvitation),
       {u"Whoever calls with it talks to you, and to nobody else",
        u"Όποιος καλεί με αυτήν μιλά με εσάς και με κανέναν άλλον"}},
      {Caption(frmReach.cmdReachAgain), {u"Look again", u"Νέος έλεγχος"}},
      {ToolTip(frmReach.cmdReachAgain),
       {u"Looks at the addresses and asks the router again",
        u"Ελέγχει ξανά τις διευθύνσεις και ρωτά ξανά τον δρομολογητή"}},
      {Caption(frmReach.cmdReachClose), {u"Close", u"Κλείσιμο"}},
  };
}

}  // namespace verlume
