#include "commands/command_table.h"

#include <algorithm>

namespace verlume {
namespace {

enum class Switch : bool { Off = false, On = true };

// Clicking a toggle flips it, so it is first put into the opposite state. The command then ends in
// the state that it names, whatever the state was.
void Turn(MenuEntry& toggle, Switch wanted) {
  toggle.SetChecked(wanted == Switch::Off);
  toggle.Click();
}

// The same for the toggle that depends on its flag in AppState and not on its tick.
void TurnAlwaysOnTop(const CommandTargets& on, Switch wanted) {
  on.state.AlwaysOnTop = wanted == Switch::Off;
  on.frmMain.mnuToolsAlwaysOnTop.Click();
}

void Exit(const CommandTargets& on) {
  on.connection.ConfirmExit();
  on.application.YieldToEvents();
  if (on.state.ExitConfirmed) on.frmMain.window.Unload();
}

constexpr CommandKind kPlain = CommandKind::Plain;
constexpr CommandKind kRoutine = CommandKind::Routine;
constexpr CommandKind kNormalised = CommandKind::NormalisedRoutine;
constexpr CommandKind kAction = CommandKind::Action;

constexpr CommandRow kCommandTable[] = {
    {u"/MACROSFOLDER", u"/ΦΆΚΕΛΛΟΣΜΑΚΡΟΕΝΤΟΛΏΝ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFileMacrosFolder.Click(); }},
    {u"/LOGFOLDER", u"/ΦΆΚΕΛΛΟΣΚΑΤΑΓΡΑΦΉΣ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFileLogFolder.Click(); }},
    {u"/LOGDIALOGUE", u"/ΚΑΤΑΓΡΑΦΉΔΙΑΛΌΓΟΥ", kPlain,
     [](const CommandTargets& on) { Turn(on.frmMain.mnuFileLogRecord, Switch::On); }},
    {u"/DONTLOGDIALOGUE", u"/ΌΧΙΚΑΤΑΓΡΑΦΉΔΙΑΛΌΓΟΥ", kPlain,
     [](const CommandTargets& on) { Turn(on.frmMain.mnuFileLogRecord, Switch::Off); }},
    {u"/LOADDIALOGUE", u"/ΦΌΡΤΩΜΑΔΙΑΛΌΓΟΥ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFileLogOpen.Click(); }},
    {u"/SAVEDIALOGUEAS", u"/ΑΠΟΘΉΚΕΥΣΗΔΙΑΛΌΓΟΥΩΣ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFileLogSaveAs.Click(); }},
    {u"/EXIT", u"/ΈΞΟΔΟΣ", kRoutine, Exit},
    {u"/WAIT", u"/ΑΝΑΜΟΝΉ", kNormalised,
     [](const CommandTargets& on) { on.connection.WaitForCall(on.line); }},
    {u"/CALL", u"/ΚΛΉΣΗ", kNormalised,
     [](const CommandTargets& on) { on.connection.CallRemote(on.line); }},
    {u"/CANCEL", u"/ΑΚΎΡΩΣΗ", kRoutine,
     [](const CommandTargets& on) { on.connection.CancelWaitOrCall(); }},
    {u"/CLOSE", u"/ΚΛΕΊΣΙΜΟ", kRoutine,
     [](const CommandTargets& on) { on.connection.CloseConnection(); }},
    {u"/REFRESH", u"/ΑΝΑΝΈΩΣΗ", kRoutine,
     [](const CommandTargets& on) { on.connection.RefreshLocalIP(); }},
    {u"/BOLD", u"/ΈΝΤΟΝΑ", kPlain,
     [](const CommandTargets& on) { on.frmMain.chkBold.SetValue(1); }},
    {u"/NOTBOLD", u"/ΌΧΙΈΝΤΟΝΑ", kPlain,
     [](const CommandTargets& on) { on.frmMain.chkBold.SetValue(0); }},
    {u"/ITALICS", u"/ΠΛΆΓΙΑ", kPlain,
     [](const CommandTargets& on) { on.frmMain.chkItalics.SetValue(1); }},
    {u"/NOTITALICS", u"/ΌΧΙΠΛΆΓΙΑ", kPlain,
     [](const CommandTargets& on) { on.frmMain.chkItalics.SetValue(0); }},
    {u"/UNDERLINED", u"/ΥΠΟΓΡΑΜΜΙΣΜΈΝΑ", kPlain,
     [](const CommandTargets& on) { on.frmMain.chkUnderline.SetValue(1); }},
    {u"/NOTUNDERLINED", u"/ΌΧΙΥΠΟΓΡΑΜΜΙΣΜΈΝΑ", kPlain,
     [](const CommandTargets& on) { on.frmMain.chkUnderline.SetValue(0); }},
    {u"/SIZE", u"/ΜΈΓΕΘΟΣ", kNormalised,
     [](const CommandTargets& on) { on.textFormat.SetFontSize(on.line); }},
    {u"/FONTCOLOR", u"/ΧΡΏΜΑΓΡΑΜΜΑΤΟΣΕΙΡΆΣ", kPlain,
     [](const CommandTargets& on) { on.textFormat.lblColor_MouseDown(MouseButton::Left); }},
    {u"/FONT", u"/ΓΡΑΜΜΑΤΟΣΕΙΡΆ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFormatFontSettings.Click(); }},
    {u"/DIALOGUEBACKCOLOR", u"/ΧΡΏΜΑΦΌΝΤΟΥΔΙΑΛΌΓΟΥ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFormatBackcolorDialogue.Click(); }},
    {u"/COMMANDSBACKCOLOR", u"/ΧΡΏΜΑΦΌΝΤΟΥΕΝΤΟΛΏΝ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuFormatBackcolorCommands.Click(); }},
    {u"/NICK", u"/ΨΕΥΔΏΝΥΜΟ", kNormalised,
     [](const CommandTargets& on) { on.connection.SetNickname(on.line); }},
    {u"/EDITMACROS", u"/ΕΠΕΞΕΡΓΑΣΊΑΜΑΚΡΟΕΝΤΟΛΏΝ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuToolsEditMacros.Click(); }},
    {u"/CLEARDIALOGUE", u"/ΚΑΘΆΡΙΣΜΑΔΙΑΛΌΓΟΥ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuToolsClearDialogue.Click(); }},
    {u"/CLEARCOMMANDS", u"/ΚΑΘΆΡΙΣΜΑΕΝΤΟΛΩΝ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuToolsClearCommands.Click(); }},
    {u"/CLEARHISTORY", u"/ΚΑΘΆΡΙΣΜΑΙΣΤΟΡΙΚΟΎ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuToolsClearHistory.Click(); }},
    {u"/DATE", u"/ΗΜΕΡΟΜΗΝΊΑ", kPlain,
     [](const CommandTargets& on) { Turn(on.frmMain.mnuToolsDate, Switch::On); }},
    {u"/NODATE", u"/ΌΧΙΗΜΕΡΟΜΗΝΊΑ", kPlain,
     [](const CommandTargets& on) { Turn(on.frmMain.mnuToolsDate, Switch::Off); }},
    {u"/TIME", u"/ΏΡΑ", kPlain,
     [](const CommandTargets& on) { Turn(on.frmMain.mnuToolsTime, Switch::On); }},
    {u"/NOTIME", u"/ΌΧΙΏΡΑ", kPlain,
     [](const CommandTargets& on) { Turn(on.frmMain.mnuToolsTime, Switch::Off); }},
    {u"/ALWAYSONTOP", u"/ΠΆΝΤΑΣΕΠΡΏΤΟΠΛΆΝΟ", kPlain,
     [](const CommandTargets& on) { TurnAlwaysOnTop(on, Switch::On); }},
    {u"/NOTALWAYSONTOP", u"/ΌΧΙΠΆΝΤΑΣΕΠΡΏΤΟΠΛΆΝΟ", kPlain,
     [](const CommandTargets& on) { TurnAlwaysOnTop(on, Switch::Off); }},
    {u"/ENGLISH", u"/ΑΓΓΛΙΚΉ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuToolsLanguageEnglish.Click(); }},
    {u"/GREEK", u"/ΕΛΛΗΝΙΚΉ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuToolsLanguageGreek.Click(); }},
    {u"/HELPDETAILED", u"/ΒΟΉΘΕΙΑΛΕΠΤΟΜΕΡΉΣ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuHelpDetailed.Click(); }},
    {u"/HELPABOUT", u"/ΒΟΉΘΕΙΑΣΧΕΤΙΚΆ", kPlain,
     [](const CommandTargets& on) { on.frmMain.mnuHelpAbout.Click(); }},
    {u"/ME", u"/ΕΓΏ", kAction, nullptr},
};

}  // namespace

std::span<const CommandRow> CommandTable() {
  return kCommandTable;
}

const CommandRow* FindCommand(std::u16string_view word) {
  const auto row = std::find_if(
      std::begin(kCommandTable), std::end(kCommandTable),
      [word](const CommandRow& each) { return each.english == word || each.greek == word; });
  return row == std::end(kCommandTable) ? nullptr : row;
}

}  // namespace verlume
