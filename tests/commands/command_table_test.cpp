#include "commands/command_table.h"

#include <gmock/gmock.h>

#include <set>

#include "commands/typing_side.h"

namespace verlume {
namespace {

// All effects of a command that is typed with an argument, and no others.
struct Row {
  std::u16string_view english;
  std::u16string_view greek;
  std::u16string_view argument;
  std::u16string_view effect;
};

constexpr Row kRows[] = {
    {u"/MACROSFOLDER", u"/ΦΆΚΕΛΛΟΣΜΑΚΡΟΕΝΤΟΛΏΝ", u"", u"mnuFileMacrosFolder"},
    {u"/LOGFOLDER", u"/ΦΆΚΕΛΛΟΣΚΑΤΑΓΡΑΦΉΣ", u"", u"mnuFileLogFolder"},
    {u"/LOGDIALOGUE", u"/ΚΑΤΑΓΡΑΦΉΔΙΑΛΌΓΟΥ", u"", u"mnuFileLogRecord unticked"},
    {u"/DONTLOGDIALOGUE", u"/ΌΧΙΚΑΤΑΓΡΑΦΉΔΙΑΛΌΓΟΥ", u"", u"mnuFileLogRecord ticked"},
    {u"/LOADDIALOGUE", u"/ΦΌΡΤΩΜΑΔΙΑΛΌΓΟΥ", u"", u"mnuFileLogOpen"},
    {u"/SAVEDIALOGUEAS", u"/ΑΠΟΘΉΚΕΥΣΗΔΙΑΛΌΓΟΥΩΣ", u"", u"mnuFileLogSaveAs"},
    {u"/EXIT", u"/ΈΞΟΔΟΣ", u"", u"unloads"},
    {u"/WAIT", u"/ΑΝΑΜΟΝΉ", u"2000", u"waits on 2000"},
    {u"/CALL", u"/ΚΛΉΣΗ", u"host  2000", u"calls host 2000"},
    {u"/CANCEL", u"/ΑΚΎΡΩΣΗ", u"", u"tells of Command '/CANCEL'"},
    {u"/CLOSE", u"/ΚΛΕΊΣΙΜΟ", u"", u"tells of Command '/CLOSE'"},
    {u"/REFRESH", u"/ΑΝΑΝΈΩΣΗ", u"", u"tells of Refresh IP address"},
    {u"/BOLD", u"/ΈΝΤΟΝΑ", u"", u"chkBold 1"},
    {u"/NOTBOLD", u"/ΌΧΙΈΝΤΟΝΑ", u"", u"chkBold 0"},
    {u"/ITALICS", u"/ΠΛΆΓΙΑ", u"", u"chkItalics 1"},
    {u"/NOTITALICS", u"/ΌΧΙΠΛΆΓΙΑ", u"", u"chkItalics 0"},
    {u"/UNDERLINED", u"/ΥΠΟΓΡΑΜΜΙΣΜΈΝΑ", u"", u"chkUnderline 1"},
    {u"/NOTUNDERLINED", u"/ΌΧΙΥΠΟΓΡΑΜΜΙΣΜΈΝΑ", u"", u"chkUnderline 0"},
    {u"/SIZE", u"/ΜΈΓΕΘΟΣ", u"9", u"size 9"},
    {u"/FONTCOLOR", u"/ΧΡΏΜΑΓΡΑΜΜΑΤΟΣΕΙΡΆΣ", u"", u"colour 255"},
    {u"/FONT", u"/ΓΡΑΜΜΑΤΟΣΕΙΡΆ", u"", u"mnuFormatFontSettings"},
    {u"/DIALOGUEBACKCOLOR", u"/ΧΡΏΜΑΦΌΝΤΟΥΔΙΑΛΌΓΟΥ", u"", u"mnuFormatBackcolorDialogue"},
    {u"/COMMANDSBACKCOLOR", u"/ΧΡΏΜΑΦΌΝΤΟΥΕΝΤΟΛΏΝ", u"", u"mnuFormatBackcolorCommands"},
    {u"/NICK", u"/ΨΕΥΔΏΝΥΜΟ", u"Big  Al ", u"nickname Big Al"},
    {u"/EDITMACROS", u"/ΕΠΕΞΕΡΓΑΣΊΑΜΑΚΡΟΕΝΤΟΛΏΝ", u"", u"mnuToolsEditMacros"},
    {u"/CLEARDIALOGUE", u"/ΚΑΘΆΡΙΣΜΑΔΙΑΛΌΓΟΥ", u"", u"mnuToolsClearDialogue"},
    {u"/CLEARCOMMANDS", u"/ΚΑΘΆΡΙΣΜΑΕΝΤΟΛΩΝ", u"", u"mnuToolsClearCommands"},
    {u"/CLEARHISTORY", u"/ΚΑΘΆΡΙΣΜΑΙΣΤΟΡΙΚΟΎ", u"", u"mnuToolsClearHistory"},
    {u"/DATE", u"/ΗΜΕΡΟΜΗΝΊΑ", u"", u"mnuToolsDate unticked"},
    {u"/NODATE", u"/ΌΧΙΗΜΕΡΟΜΗΝΊΑ", u"", u"mnuToolsDate ticked"},
    {u"/TIME", u"/ΏΡΑ", u"", u"mnuToolsTime unticked"},
    {u"/NOTIME", u"/ΌΧΙΏΡΑ", u"", u"mnuToolsTime ticked"},
    {u"/ALWAYSONTOP", u"/ΠΆΝΤΑΣΕΠΡΏΤΟΠΛΆΝΟ", u"", u"mnuToolsAlwaysOnTop below"},
    {u"/NOTALWAYSONTOP", u"/ΌΧΙΠΆΝΤΑΣΕΠΡΏΤΟΠΛΆΝΟ", u"", u"mnuToolsAlwaysOnTop on top"},
    {u"/ENGLISH", u"/ΑΓΓΛΙΚΉ", u"", u"mnuToolsLanguageEnglish"},
    {u"/GREEK", u"/ΕΛΛΗΝΙΚΉ", u"", u"mnuToolsLanguageGreek"},
    {u"/HELPDETAILED", u"/ΒΟΉΘΕΙΑΛΕΠΤΟΜΕΡΉΣ", u"", u"mnuHelpDetailed"},
    {u"/HELPABOUT", u"/ΒΟΉΘΕΙΑΣΧΕΤΙΚΆ", u"", u"mnuHelpAbout"},
    {u"/ME", u"/ΕΓΏ", u"waves", u"writes  Bob waves"},
};

enum class Spoken { English, Greek };

class EveryCommand : public fake::TypingSide,
                     public testing::WithParamInterface<std::tuple<Row, Spoken, bool>> {
 protected:
  EveryCommand() {
    WatchEveryMenuEntry();
    state.LocalAddress = fake.socket.localIP;
    fake.commonDialog.colors = {255};
  }

  // A toggle acts on its tick, so the tick that it finds is part of the effect.
  void Watch(fake::FakeMenuEntry& entry, std::u16string_view name) {
    entry.onClick = [this, &entry, name] {
      std::u16string what(name);
      const bool isToggle = &entry == &window.mnuFileLogRecord || &entry == &window.mnuToolsDate ||
                            &entry == &window.mnuToolsTime;
      if (isToggle) what += entry.checked ? u" ticked" : u" unticked";
      if (&entry == &window.mnuToolsAlwaysOnTop) what += state.AlwaysOnTop ? u" on top" : u" below";
      Saw(what);
    };
  }

  void WatchEveryMenuEntry() {
    Watch(window.mnuFileMacrosFolder, u"mnuFileMacrosFolder");
    Watch(window.mnuFileLogFolder, u"mnuFileLogFolder");
    Watch(window.mnuFileLogRecord, u"mnuFileLogRecord");
    Watch(window.mnuFileLogOpen, u"mnuFileLogOpen");
    Watch(window.mnuFileLogSaveAs, u"mnuFileLogSaveAs");
    Watch(window.mnuFileExit, u"mnuFileExit");
    Watch(window.mnuCommWait, u"mnuCommWait");
    Watch(window.mnuCommCall, u"mnuCommCall");
    Watch(window.mnuCommCancel, u"mnuCommCancel");
    Watch(window.mnuCommClose, u"mnuCommClose");
    Watch(window.mnuCommRefresh, u"mnuCommRefresh");
    Watch(window.mnuFormatFontBold, u"mnuFormatFontBold");
    Watch(window.mnuFormatFontItalics, u"mnuFormatFontItalics");
    Watch(window.mnuFormatFontUnderline, u"mnuFormatFontUnderline");
    Watch(window.mnuFormatFontSize, u"mnuFormatFontSize");
    Watch(window.mnuFormatFontColor, u"mnuFormatFontColor");
    Watch(window.mnuFormatFontSettings, u"mnuFormatFontSettings");
    Watch(window.mnuFormatBackcolorCommands, u"mnuFormatBackcolorCommands");
    Watch(window.mnuFormatBackcolorDialogue, u"mnuFormatBackcolorDialogue");
    Watch(window.mnuToolsNick, u"mnuToolsNick");
    Watch(window.mnuToolsSaveMacro, u"mnuToolsSaveMacro");
    Watch(window.mnuToolsEditMacros, u"mnuToolsEditMacros");
    Watch(window.mnuToolsClearDialogue, u"mnuToolsClearDialogue");
    Watch(window.mnuToolsClearCommands, u"mnuToolsClearCommands");
    Watch(window.mnuToolsClearHistory, u"mnuToolsClearHistory");
    Watch(window.mnuToolsDate, u"mnuToolsDate");
    Watch(window.mnuToolsTime, u"mnuToolsTime");
    Watch(window.mnuToolsAlwaysOnTop, u"mnuToolsAlwaysOnTop");
    Watch(window.mnuToolsLanguageEnglish, u"mnuToolsLanguageEnglish");
    Watch(window.mnuToolsLanguageGreek, u"mnuToolsLanguageGreek");
    Watch(window.mnuHelpDetailed, u"mnuHelpDetailed");
    Watch(window.mnuHelpAbout, u"mnuHelpAbout");
  }

  void WatchCheckBoxes(int value) {
    Watch(window.chkBold, u"chkBold ", value);
    Watch(window.chkItalics, u"chkItalics ", value);
    Watch(window.chkUnderline, u"chkUnderline ", value);
  }

  void Watch(fake::FakeCheckBox& box, std::u16string_view name, int value) {
    box.onClick = {};
    box.SetValue(value);
    box.onClick = [this, &box, name] { Saw(std::u16string(name) + DecimalText(box.value)); };
  }

  void Saw(std::u16string_view what) {
    effect += (effect.empty() ? u"" : u", ") + std::u16string(what);
  }

  // All other possible effects of a command.
  void LookAround() {
    for (const Message& message : fake.dialogs.messages) Saw(u"tells of " + message.title);
    if (state.IsWaiting) Saw(u"waits on " + DecimalText(state.LocalPort));
    if (state.IsCalling) Saw(u"calls " + state.RemoteHost + u" " + DecimalText(state.RemotePort));
    if (state.Font.Size != 10) Saw(u"size " + DecimalText(static_cast<int>(state.Font.Size)));
    if (state.Font.Color != 0) Saw(u"colour " + DecimalText(state.Font.Color));
    if (state.Nickname != u"Bob") Saw(u"nickname " + state.Nickname);
    if (!window.rtbData.Text().empty()) Saw(u"writes " + window.rtbData.Text());
    if (window.window.unloaded) Saw(u"unloads");
  }

  std::u16string effect;
};

// With any argument and any state of the toggles.
TEST_P(EveryCommand, DoesItsOwnThingAndNothingElse) {
  const auto& [row, spoken, wasOn] = GetParam();
  state.AlwaysOnTop = wasOn;
  for (auto* toggle : {&window.mnuFileLogRecord, &window.mnuToolsDate, &window.mnuToolsTime}) {
    toggle->checked = wasOn;
  }
  WatchCheckBoxes(row.effect.ends_with(u" 0") ? 1 : 0);
  const std::u16string_view word = spoken == Spoken::English ? row.english : row.greek;
  Enter(std::u16string(word) + u" " + std::u16string(row.argument));
  LookAround();
  EXPECT_EQ(effect, row.effect);
}

INSTANTIATE_TEST_SUITE_P(CommandTable, EveryCommand,
                         testing::Combine(testing::ValuesIn(kRows),
                                          testing::Values(Spoken::English, Spoken::Greek),
                                          testing::Bool()));

TEST(CommandTable, HasItsRowsInTheirOrder) {
  const std::span<const CommandRow> table = CommandTable();
  ASSERT_EQ(table.size(), std::size(kRows));
  for (std::size_t i = 0; i < table.size(); ++i) {
    EXPECT_EQ(table[i].english, kRows[i].english);
    EXPECT_EQ(table[i].greek, kRows[i].greek);
  }
}

TEST(CommandTable, HasNoWordTwice) {
  std::set<std::u16string_view> words;
  for (const CommandRow& row : CommandTable()) {
    EXPECT_TRUE(words.insert(row.english).second);
    EXPECT_TRUE(words.insert(row.greek).second);
  }
}

TEST(CommandTable, OnlyRoutinesThatReadArgumentsAreNormalised) {
  std::set<std::u16string_view> normalised;
  std::set<std::u16string_view> asTyped;
  for (const CommandRow& row : CommandTable()) {
    if (row.kind == CommandKind::NormalisedRoutine) normalised.insert(row.english);
    if (row.kind == CommandKind::Routine) asTyped.insert(row.english);
  }
  EXPECT_THAT(normalised, testing::UnorderedElementsAre(u"/WAIT", u"/CALL", u"/SIZE", u"/NICK"));
  EXPECT_THAT(asTyped, testing::UnorderedElementsAre(u"/EXIT", u"/CANCEL", u"/CLOSE", u"/REFRESH"));
}

TEST(CommandTable, FindsAWordExactlyInEitherLanguage) {
  ASSERT_NE(FindCommand(u"/CALL"), nullptr);
  EXPECT_EQ(FindCommand(u"/CALL"), FindCommand(u"/ΚΛΉΣΗ"));
  for (const auto word : {u"/call", u"/CAL", u"/CALLS", u"CALL", u"/", u"", u"/ΚΛΗΣΗ", u" /CALL"}) {
    EXPECT_EQ(FindCommand(word), nullptr);
  }
}

}  // namespace
}  // namespace verlume
