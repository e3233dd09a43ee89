#include "shell/private_texts.h"

#include "shell/setters.h"

namespace verlume {

std::vector<FixedText> PrivateTexts(const MainWindow& frmMain) {
  const PrivateMenu& menu = frmMain.privateMenu;
  const KeyBar& bar = frmMain.keyBar;
  return {
      {Caption(frmMain.mnuCommInvite), {u"Invite", u"Πρόσκληση"}},
      {ToolTip(frmMain.mnuCommInvite),
       {u"Copies an invitation: whoever calls with it talks to you, and to nobody else",
        u"Αντιγράφει μια πρόσκληση: όποιος καλεί με αυτήν μιλά με εσάς και με κανέναν άλλον"}},
      {Caption(frmMain.mnuCommVerify), {u"Verify", u"Επαλήθευση"}},
      {ToolTip(frmMain.mnuCommVerify),
       {u"Make sure that nobody is between you",
        u"Βεβαιωθείτε ότι κανείς δεν βρίσκεται ανάμεσά σας"}},
      {Caption(frmMain.mnuCommPeople), {u"People", u"Άτομα"}},
      {ToolTip(frmMain.mnuCommPeople),
       {u"With whom you have talked in private", u"Με ποιους έχετε συνομιλήσει ιδιωτικά"}},
      {Caption(menu.mnuPrivate), {u"Private conversations", u"Ιδιωτικές συνομιλίες"}},
      {Caption(menu.mnuPrivateWhenPossible),
       {u"When the other side can", u"Όταν μπορεί και η άλλη πλευρά"}},
      {Caption(menu.mnuPrivateOnly), {u"Only", u"Μόνο αυτές"}},
      {ToolTip(menu.mnuPrivateOnly),
       {u"Hangs up when the other side cannot",
        u"Τερματίζει τη σύνδεση όταν η άλλη πλευρά δεν μπορεί"}},
      {Caption(menu.mnuPrivateNever), {u"Never", u"Ποτέ"}},
      {ToolTip(menu.mnuPrivateNever),
       {u"Whoever is between you can read and change everything",
        u"Όποιος βρίσκεται ανάμεσά σας μπορεί να διαβάσει και να αλλάξει τα πάντα"}},
      {ToolTip(frmMain.lblLock), {u"Click to verify", u"Κάντε κλικ για επαλήθευση"}},
      {Caption(bar.cmdKeyGoOn), {u"Go on with this key", u"Συνέχεια με αυτό το κλειδί"}},
      {Caption(bar.cmdKeyHangUp), {u"Hang up", u"Τερματισμός σύνδεσης"}},
  };
}

std::vector<FixedText> PeopleWindowTexts(const PeopleWindow& frmPeople) {
  const auto heading = [&frmPeople](PeopleColumn column) {
    return [&table = frmPeople.lstPeople, column](std::u16string_view text) {
      table.SetHeading(static_cast<int>(column), text);
    };
  };
  return {
      {Title(frmPeople.window), {u"People", u"Άτομα"}},
      {AccessibleName(frmPeople.lstPeople), {u"People", u"Άτομα"}},
      {heading(PeopleColumn::Name), {u"Name", u"Όνομα"}},
      {heading(PeopleColumn::CallsItself), {u"Calls itself", u"Συστήνεται ως"}},
      {heading(PeopleColumn::Since), {u"Since", u"Από"}},
      {heading(PeopleColumn::Last), {u"Last", u"Τελευταία"}},
      {heading(PeopleColumn::Verified), {u"Verified", u"Επαλήθευση"}},
      {Caption(frmPeople.lblPeopleNameCaption),
       {u"Your name for them", u"Το όνομα που τους δίνετε"}},
      {AccessibleName(frmPeople.txtPeopleName),
       {u"Your name for them", u"Το όνομα που τους δίνετε"}},
      {Caption(frmPeople.chkPeopleVerified),
       {u"Verified: this key belongs to them", u"Επαληθευμένο: αυτό το κλειδί τους ανήκει"}},
      {Caption(frmPeople.lblPeopleKeyCaption), {u"Key", u"Κλειδί"}},
      {Caption(frmPeople.cmdPeopleForget), {u"Forget", u"Διαγραφή"}},
      {ToolTip(frmPeople.cmdPeopleForget),
       {u"Removes this key from the list; next time it is a new one",
        u"Αφαιρεί το κλειδί από τον κατάλογο· την επόμενη φορά θα είναι νέο"}},
      {Caption(frmPeople.cmdPeopleClose), {u"Close", u"Κλείσιμο"}},
  };
}

std::vector<FixedText> VerifyWindowTexts(const VerifyWindow& frmVerify) {
  return {
      {Title(frmVerify.window), {u"Verify", u"Επαλήθευση"}},
      {AccessibleName(frmVerify.lblVerifyDigits), {u"Safety digits", u"Ψηφία ασφαλείας"}},
      {AccessibleName(frmVerify.picVerifyCode),
       {u"The digits as a QR code", u"Τα ψηφία ως κωδικός QR"}},
      {Caption(frmVerify.lblVerifyMeaning),
       {u"Read these digits to each other over a telephone or face to face. Do not compare them in "
        u"this conversation: whoever is between you could change them. If all of them are the same "
        u"on both screens, nobody else can read or change what you write. If a single one "
        u"differs, hang up.",
        u"Διαβάστε αυτά τα ψηφία ο ένας στον άλλον από το τηλέφωνο ή από κοντά. Μην τα συγκρίνετε "
        u"μέσα σε αυτή τη συνομιλία: όποιος βρίσκεται ανάμεσά σας θα μπορούσε να τα αλλάξει. Αν "
        u"είναι όλα ίδια στις δύο οθόνες, κανείς άλλος δεν μπορεί να διαβάσει ή να αλλάξει όσα "
        u"γράφετε. Αν έστω και ένα διαφέρει, τερματίστε τη σύνδεση."}},
      {Caption(frmVerify.cmdVerifyCopy), {u"Copy digits", u"Αντιγραφή ψηφίων"}},
      {Caption(frmVerify.cmdVerifyMatch), {u"They match", u"Ταιριάζουν"}},
      {Caption(frmVerify.cmdVerifyClose), {u"Close", u"Κλείσιμο"}},
  };
}

}  // namespace verlume
