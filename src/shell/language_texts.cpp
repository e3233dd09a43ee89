#include "shell/language_texts.h"

#include "shell/maker_texts.h"
#include "shell/setters.h"

namespace verlume {
namespace {

TextSetter Placeholder(RichTextBox& box) {
  return [&box](std::u16string_view text) { box.SetPlaceholder(text); };
}

// A value of the status panel, what it is in full, and the short caption beside it, if it has one.
struct PanelValue {
  Label& value;
  TextPair name;
  Label* caption = nullptr;
  TextPair shortName = {};
};

std::vector<PanelValue> PanelValues(const MainWindow& frmMain) {
  return {
      {frmMain.lblStatus, kStatusToolTip},
      {frmMain.lblWaiting, {u"Lines that have not arrived yet", u"Γραμμές που δεν έφτασαν ακόμη"}},
      {frmMain.lblCurrentDateTime,
       {u"Now", u"Τώρα"},
       &frmMain.lblCurrentDateTimeCaption,
       {u"Now", u"Τώρα"}},
      {frmMain.lblChatStartDateTime,
       {u"Chat began", u"Έναρξη διαλόγου"},
       &frmMain.lblChatStartDateTimeCaption,
       {u"Began", u"Έναρξη"}},
      {frmMain.lblChatDuration,
       {u"Duration", u"Διάρκεια"},
       &frmMain.lblChatDurationCaption,
       {u"Duration", u"Διάρκεια"}},
      {frmMain.lblLocalIP, kLocalAddressToolTip},
      {frmMain.lblLocalPort,
       {u"Local port", u"Τοπική θύρα"},
       &frmMain.lblLocalPortCaption,
       {u":", u":"}},
      {frmMain.lblLocalNickname,
       {u"Your nickname", u"Ψευδώνυμό σας"},
       &frmMain.lblLocalNicknameCaption,
       {u"You", u"Εσείς"}},
      {frmMain.lblRemoteIP, {u"Remote address", u"Απομακρυσμένη διεύθυνση"}},
      {frmMain.lblRemotePort,
       {u"Remote port", u"Απομακρυσμένη θύρα"},
       &frmMain.lblRemotePortCaption,
       {u":", u":"}},
      {frmMain.lblRemoteNickname,
       kRemoteNicknameToolTip,
       &frmMain.lblRemoteNicknameCaption,
       {u"Other", u"Άλλος"}},
      {frmMain.lblBytesSent,
       {u"Characters sent", u"Σταλμένοι χαρακτήρες"},
       &frmMain.lblBytesSentCaption,
       {u"Sent", u"Στάλθηκαν"}},
      {frmMain.lblBytesReceived,
       {u"Characters received", u"Ληφθέντες χαρακτήρες"},
       &frmMain.lblBytesReceivedCaption,
       {u"Received", u"Λήφθηκαν"}},
  };
}

std::vector<FixedText> SpellingTexts(SpellChecker& spelling) {
  const auto entry = [&spelling](SpellingEntry which) {
    return [&spelling, which](std::u16string_view text) { spelling.SetCaption(which, text); };
  };
  return {
      {entry(SpellingEntry::Searching), {u"Looking for suggestions…", u"Αναζήτηση προτάσεων…"}},
      {entry(SpellingEntry::NoSuggestion), {u"No suggestions", u"Καμία πρόταση"}},
      {entry(SpellingEntry::AddWord), {u"Add to dictionary", u"Προσθήκη στο λεξικό"}},
  };
}

}  // namespace

std::vector<FixedText> MenuAndToolTipTexts(const MainWindow& frmMain) {
  return {
      {Title(frmMain.window), kMainWindowTitle},
      {ToolTip(frmMain.lblCopyright), {u"Copyright notice", u"Πνευματικά δικαιώματα"}},
      {ToolTip(frmMain.picCopyright), {u"Copyright notice", u"Πνευματικά δικαιώματα"}},
      {ToolTip(frmMain.picShape),
       {u"Red=Idle / Yellow=Wait / Green=Connect",
        u"Κόκκινο=Αδράνεια / Κίτρινο=Αναμονή / Πράσινο=Σύνδεση"}},
      {Caption(frmMain.mnuFile), {u"File", u"Αρχείο"}},
      {Caption(frmMain.mnuFileMacrosFolder), {u"Macros folder", u"Φάκελλος μακροεντολών"}},
      {Caption(frmMain.mnuFileLogFolder), {u"Log folder", u"Φάκελλος καταγραφής"}},
      {Caption(frmMain.mnuFileLogRecord), {u"Log dialogue", u"Καταγραφή διαλόγου"}},
      {Caption(frmMain.mnuFileLogOpen), {u"Load dialogue", u"Φόρτωμα διαλόγου"}},
      {Caption(frmMain.mnuFileLogSaveAs), {u"Save dialogue as", u"Αποθήκευση διαλόγου ως"}},
      {Caption(frmMain.mnuFileExit), {u"Exit", u"Έξοδος"}},
      {Caption(frmMain.mnuComm), {u"Communication", u"Επικοινωνία"}},
      {Caption(frmMain.mnuCommWait), {u"Wait", u"Αναμονή"}},
      {Caption(frmMain.mnuCommCall), {u"Call", u"Κλήση"}},
      {Caption(frmMain.mnuCommCancel), {u"Cancel", u"Ακύρωση"}},
      {Caption(frmMain.mnuCommClose), {u"Close", u"Κλείσιμο"}},
      {Caption(frmMain.mnuCommRefresh), {u"Refresh IP", u"Ανανέωση IP"}},
      {Caption(frmMain.mnuCommCallAgain), {u"Call again", u"Επανάληψη κλήσης"}},
      {Caption(frmMain.mnuFormat), {u"Format", u"Μορφή"}},
      {Caption(frmMain.mnuFormatFontBold), {u"Bold", u"Έντονη γραφή"}},
      {Caption(frmMain.mnuFormatFontItalics), {u"Italics", u"Πλάγια γραφή"}},
      {Caption(frmMain.mnuFormatFontUnderline), {u"Underlined", u"Υπογραμμισμένη γραφή"}},
      {Caption(frmMain.mnuFormatFontSize), {u"Font size", u"Μέγεθος γραμματοσειράς"}},
      {Caption(frmMain.mnuFormatFontColor), {u"Font color", u"Χρώμα γραμματοσειράς"}},
      {Caption(frmMain.mnuFormatFontSettings), {u"Font settings", u"Ρυθμίσεις γραμματοσειράς"}},
      {Caption(frmMain.mnuFormatBackcolorCommands),
       {u"Commands back color", u"Χρώμα φόντου εντολών"}},
      {Caption(frmMain.mnuFormatBackcolorDialogue),
       {u"Dialogue back color", u"Χρώμα φόντου διαλόγου"}},
      {Caption(frmMain.mnuTools), {u"Tools", u"Εργαλεία"}},
      {Caption(frmMain.mnuToolsNick), {u"Nickname", u"Ψευδώνυμο"}},
      {Caption(frmMain.mnuToolsSaveMacro), {u"Save macro", u"Αποθήκευση μακροεντολής"}},
      {Caption(frmMain.mnuToolsEditMacros), {u"Edit macros", u"Επεξεργασία μακροεντολών"}},
      {Caption(frmMain.mnuToolsFind), {u"Find in dialogue", u"Εύρεση στον διάλογο"}},
      {Caption(frmMain.mnuToolsCompletions), {u"Suggest commands", u"Πρόταση εντολών"}},
      {Caption(frmMain.mnuToolsClearDialogue), {u"Clear dialogue", u"Καθάρισμα διαλόγου"}},
      {Caption(frmMain.mnuToolsClearCommands), {u"Clear commands", u"Καθάρισμα εντολών"}},
      {Caption(frmMain.mnuToolsClearHistory), {u"Clear history", u"Καθάρισμα ιστορικού"}},
      {Caption(frmMain.mnuToolsDate), {u"Date", u"Ημερομηνία"}},
      {Caption(frmMain.mnuToolsTime), {u"Time", u"Ώρα"}},
      {Caption(frmMain.mnuToolsAlwaysOnTop), {u"Always on top", u"Πάντα σε πρώτο πλάνο"}},
      {Caption(frmMain.mnuToolsLanguageEnglish), {u"English", u"Αγγλική"}},
      {Caption(frmMain.mnuToolsLanguageGreek), {u"Greek", u"Ελληνική"}},
      {Caption(frmMain.attentionMenu.mnuAttention), {u"Attention", u"Ειδοποιήσεις"}},
      {Caption(frmMain.attentionMenu.mnuAttentionLines),
       {u"Notifications", u"Εμφάνιση ειδοποιήσεων"}},
      {Caption(frmMain.attentionMenu.mnuAttentionText),
       {u"Show the text in notifications", u"Κείμενο μέσα στις ειδοποιήσεις"}},
      {Caption(frmMain.attentionMenu.mnuAttentionSound), {u"Sound", u"Ήχος"}},
      {Caption(frmMain.attentionMenu.mnuAttentionCount),
       {u"Count on the icon", u"Αριθμός στο εικονίδιο"}},
      {Caption(frmMain.mnuToolsCheckSpelling), {u"Check spelling", u"Έλεγχος ορθογραφίας"}},
      {Caption(frmMain.mnuView), {u"View", u"Προβολή"}},
      {Caption(frmMain.mnuViewStatusPanel), {u"Status panel", u"Πίνακας κατάστασης"}},
      {Caption(frmMain.mnuViewZoomIn), {u"Larger text", u"Μεγαλύτερο κείμενο"}},
      {Caption(frmMain.mnuViewZoomOut), {u"Smaller text", u"Μικρότερο κείμενο"}},
      {Caption(frmMain.mnuViewZoomReset), {u"Usual size", u"Κανονικό μέγεθος"}},
      {Caption(frmMain.mnuHelp), {u"Help", u"Βοήθεια"}},
      {Caption(frmMain.mnuHelpDetailed), {u"Detailed", u"Λεπτομερής"}},
      {Caption(frmMain.mnuHelpAbout), {u"About", u"Σχετικά"}},
      {ToolTip(frmMain.rtbCommands), {u"Commands textbox", u"Πλαίσιο κειμένου εντολών"}},
      {ToolTip(frmMain.rtbData), {u"Dialogue textbox", u"Πλαίσιο κειμένου διαλόγου"}},
  };
}

std::vector<FixedText> PanelTexts(const MainWindow& frmMain) {
  std::vector<FixedText> texts = {
      {Caption(frmMain.cmdSend), {u"Send", u"Αποστολή"}},
      {ToolTip(frmMain.cmdSend), {u"Send the line (Enter)", u"Αποστολή της γραμμής (Enter)"}},
      {Placeholder(frmMain.rtbCommands),
       {u"Type a message, or / for commands", u"Γράψτε ένα μήνυμα, ή / για εντολές"}},
      {Caption(frmMain.chkBold), {u"Bold", u"Έντονα"}},
      {ToolTip(frmMain.chkBold), {u"Bold", u"Έντονη γραφή"}},
      {Caption(frmMain.chkItalics), {u"Italics", u"Πλάγια"}},
      {ToolTip(frmMain.chkItalics), {u"Italics", u"Πλάγια γραφή"}},
      {Caption(frmMain.chkUnderline), {u"Underlined", u"Υπογράμμιση"}},
      {ToolTip(frmMain.chkUnderline), {u"Underlined", u"Υπογραμμισμένη γραφή"}},
      {ToolTip(frmMain.lblColor), {u"Font color", u"Χρώμα γραμματοσειράς"}},
      {AccessibleName(frmMain.lblColor), {u"Font color", u"Χρώμα γραμματοσειράς"}},
      {ToolTip(frmMain.prgStatus), {u"Load dialogue", u"Φόρτωμα διαλόγου"}},
      {AccessibleName(frmMain.prgStatus), {u"Load dialogue", u"Φόρτωμα διαλόγου"}},
      {AccessibleName(frmMain.rtbData), {u"Dialogue", u"Διάλογος"}},
      {AccessibleName(frmMain.rtbCommands), {u"Commands", u"Εντολές"}},
      {AccessibleName(frmMain.picCopyright), {u"Copyright notice", u"Πνευματικά δικαιώματα"}},
      {Caption(frmMain.lblCopyright), kCopyrightNotice},
  };
  for (FixedText& text : SpellingTexts(frmMain.spelling)) texts.push_back(std::move(text));
  const FindBar& bar = frmMain.findBar;
  texts.push_back({AccessibleName(bar.txtFind), {u"Find in dialogue", u"Εύρεση στον διάλογο"}});
  texts.push_back({ToolTip(bar.txtFind), {u"Words to be found", u"Λέξεις προς εύρεση"}});
  texts.push_back({Caption(bar.cmdFindPrevious), {u"Previous", u"Προηγούμενο"}});
  texts.push_back(
      {ToolTip(bar.cmdFindPrevious), {u"Previous match (Shift+F3)", u"Προηγούμενο (Shift+F3)"}});
  texts.push_back({Caption(bar.cmdFindNext), {u"Next", u"Επόμενο"}});
  texts.push_back({ToolTip(bar.cmdFindNext), {u"Next match (F3)", u"Επόμενο (F3)"}});
  texts.push_back({Caption(bar.cmdFindClose), {u"Close", u"Κλείσιμο"}});
  texts.push_back(
      {ToolTip(bar.cmdFindClose), {u"Close the find bar (Esc)", u"Κλείσιμο εύρεσης (Esc)"}});
  texts.push_back(
      {AccessibleName(frmMain.completionList.lstCompletions),
       {u"Commands and macros that match", u"Εντολές και μακροεντολές που ταιριάζουν"}});
  for (const auto& [value, name, caption, shortName] : PanelValues(frmMain)) {
    if (caption) texts.push_back({Caption(*caption), shortName});
    texts.push_back({AccessibleName(value), name});
  }
  return texts;
}

}  // namespace verlume
