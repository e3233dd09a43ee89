// All captions of the menu bar, in both languages.
#include <gtest/gtest.h>

#include "shell/language.h"
#include "shell/shell_fixture.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

class MenuCaptionsTest : public ShellTest {
 protected:
  struct Row {
    const std::u16string& shown;
    TextPair expected;
  };

  const std::vector<Row> rows = {
      {window.mnuFile.caption, {u"File", u"Αρχείο"}},
      {window.mnuFileMacrosFolder.caption, {u"Macros folder", u"Φάκελλος μακροεντολών"}},
      {window.mnuFileLogFolder.caption, {u"Log folder", u"Φάκελλος καταγραφής"}},
      {window.mnuFileLogRecord.caption, {u"Log dialogue", u"Καταγραφή διαλόγου"}},
      {window.mnuFileLogOpen.caption, {u"Load dialogue", u"Φόρτωμα διαλόγου"}},
      {window.mnuFileLogSaveAs.caption, {u"Save dialogue as", u"Αποθήκευση διαλόγου ως"}},
      {window.mnuFileExit.caption, {u"Exit", u"Έξοδος"}},
      {window.mnuComm.caption, {u"Communication", u"Επικοινωνία"}},
      {window.mnuCommWait.caption, {u"Wait", u"Αναμονή"}},
      {window.mnuCommCall.caption, {u"Call", u"Κλήση"}},
      {window.mnuCommCancel.caption, {u"Cancel", u"Ακύρωση"}},
      {window.mnuCommClose.caption, {u"Close", u"Κλείσιμο"}},
      {window.mnuCommRefresh.caption, {u"Refresh IP", u"Ανανέωση IP"}},
      {window.mnuCommInvite.caption, {u"Invite", u"Πρόσκληση"}},
      {window.mnuCommVerify.caption, {u"Verify", u"Επαλήθευση"}},
      {window.mnuCommPeople.caption, {u"People", u"Άτομα"}},
      {window.mnuCommReach.caption, {u"Can I be called?", u"Μπορούν να με καλέσουν;"}},
      {window.mnuCommAskRouter.caption,
       {u"Ask the router for the port", u"Άνοιγμα θύρας στον δρομολογητή"}},
      {window.mnuFormat.caption, {u"Format", u"Μορφή"}},
      {window.mnuFormatFontBold.caption, {u"Bold", u"Έντονη γραφή"}},
      {window.mnuFormatFontItalics.caption, {u"Italics", u"Πλάγια γραφή"}},
      {window.mnuFormatFontUnderline.caption, {u"Underlined", u"Υπογραμμισμένη γραφή"}},
      {window.mnuFormatFontSize.caption, {u"Font size", u"Μέγεθος γραμματοσειράς"}},
      {window.mnuFormatFontColor.caption, {u"Font color", u"Χρώμα γραμματοσειράς"}},
      {window.mnuFormatFontSettings.caption, {u"Font settings", u"Ρυθμίσεις γραμματοσειράς"}},
      {window.mnuFormatBackcolorCommands.caption,
       {u"Commands back color", u"Χρώμα φόντου εντολών"}},
      {window.mnuFormatBackcolorDialogue.caption,
       {u"Dialogue back color", u"Χρώμα φόντου διαλόγου"}},
      {window.mnuTools.caption, {u"Tools", u"Εργαλεία"}},
      {window.mnuToolsNick.caption, {u"Nickname", u"Ψευδώνυμο"}},
      {window.mnuToolsSaveMacro.caption, {u"Save macro", u"Αποθήκευση μακροεντολής"}},
      {window.mnuToolsEditMacros.caption, {u"Edit macros", u"Επεξεργασία μακροεντολών"}},
      {window.mnuToolsFind.caption, {u"Find in dialogue", u"Εύρεση στον διάλογο"}},
      {window.mnuToolsCompletions.caption, {u"Suggest commands", u"Πρόταση εντολών"}},
      {window.mnuToolsClearDialogue.caption, {u"Clear dialogue", u"Καθάρισμα διαλόγου"}},
      {window.mnuToolsClearCommands.caption, {u"Clear commands", u"Καθάρισμα εντολών"}},
      {window.mnuToolsClearHistory.caption, {u"Clear history", u"Καθάρισμα ιστορικού"}},
      {window.mnuToolsDate.caption, {u"Date", u"Ημερομηνία"}},
      {window.mnuToolsTime.caption, {u"Time", u"Ώρα"}},
      {window.mnuToolsAlwaysOnTop.caption, {u"Always on top", u"Πάντα σε πρώτο πλάνο"}},
      {window.mnuToolsLanguageEnglish.caption, {u"English", u"Αγγλική"}},
      {window.mnuToolsLanguageGreek.caption, {u"Greek", u"Ελληνική"}},
      {window.mnuToolsCheckSpelling.caption, {u"Check spelling", u"Έλεγχος ορθογραφίας"}},
      {window.mnuAttention.caption, {u"Attention", u"Ειδοποιήσεις"}},
      {window.mnuAttentionLines.caption, {u"Notifications", u"Εμφάνιση ειδοποιήσεων"}},
      {window.mnuAttentionText.caption,
       {u"Show the text in notifications", u"Κείμενο μέσα στις ειδοποιήσεις"}},
      {window.mnuAttentionSound.caption, {u"Sound", u"Ήχος"}},
      {window.mnuAttentionCount.caption, {u"Count on the icon", u"Αριθμός στο εικονίδιο"}},
      {window.mnuPrivate.caption, {u"Private conversations", u"Ιδιωτικές συνομιλίες"}},
      {window.mnuPrivateWhenPossible.caption,
       {u"When the other side can", u"Όταν μπορεί και η άλλη πλευρά"}},
      {window.mnuPrivateOnly.caption, {u"Only", u"Μόνο αυτές"}},
      {window.mnuPrivateNever.caption, {u"Never", u"Ποτέ"}},
      {window.mnuHelp.caption, {u"Help", u"Βοήθεια"}},
      {window.mnuHelpDetailed.caption, {u"Detailed", u"Λεπτομερής"}},
      {window.mnuHelpAbout.caption, {u"About", u"Σχετικά"}},
  };
  Language language{state, platform, errors, settings};
};

TEST_F(MenuCaptionsTest, EveryMenuAndEntrySpeaksTheLanguageInForce) {
  for (const bool isGreek : {false, true}) {
    state.IsGreek = isGreek;
    language.ApplyLanguage();
    for (const auto& [shown, expected] : rows) EXPECT_EQ(shown, expected.In(isGreek));
  }
}

}  // namespace
}  // namespace verlume
