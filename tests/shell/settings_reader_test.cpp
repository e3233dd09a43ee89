#include "shell/settings_reader.h"

#include "platform/run_time_failure.h"
#include "shell/shell_fixture.h"

namespace verlume {
namespace {

class SettingsReaderTest : public ShellTest {
 protected:
  // Reads a file with this text as start-up does.
  void Read(const std::string& text) {
    fake.files.files[kIniFile] = text;
    ReadFile();
  }
  void ReadFile() {
    SetSettingDefaults(state, window.frmMain);
    ReadLanguage(state, settings);
    ReadSettings(state, window.frmMain, settings);
  }
  // The number of the failure that reading a file with this text throws.
  FailureNumber FailureOf(const std::string& text) {
    try {
      Read(text);
    } catch (const RunTimeFailure& failure) {
      return failure.number;
    }
    ADD_FAILURE() << "no failure for " << text;
    return FailureNumber::InternalError;
  }
};

TEST_F(SettingsReaderTest, OneIsGreekAndEverythingElseEnglish) {
  const std::pair<const char*, bool> cases[] = {
      {"1", true},  {"1.0", true},  {"1x", true},   {"0", false}, {"-1", false},
      {"2", false}, {"abc", false}, {"10", false},  {"", false},  {"True", false},
      {"01", true}, {"'1'", true},  {"1.5", false},
  };
  for (const auto& [value, isGreek] : cases) {
    Read(std::string("[General]\r\nLanguage=") + value + "\r\n");
    EXPECT_EQ(state.IsGreek, isGreek) << value;
  }
}

TEST_F(SettingsReaderTest, WithoutAFileEverythingTakesItsDefault) {
  state.DateStamp = state.TimeStamp = false;
  state.AlwaysOnTop = state.LogDialogue = true;
  ReadFile();
  EXPECT_FALSE(state.IsGreek);
  EXPECT_TRUE(state.DateStamp);
  EXPECT_TRUE(state.TimeStamp);
  EXPECT_FALSE(state.AlwaysOnTop);
  EXPECT_FALSE(state.LogDialogue);
  EXPECT_EQ(state.Nickname, u"");
  EXPECT_EQ(state.LogFolder, u"");
  EXPECT_EQ(state.MacrosFolder, u"");
  EXPECT_TRUE(window.mnuToolsDate.checked);
  EXPECT_TRUE(window.mnuToolsTime.checked);
  EXPECT_FALSE(window.mnuToolsAlwaysOnTop.checked);
  EXPECT_FALSE(window.mnuFileLogRecord.checked);
  EXPECT_EQ(window.window.timesPlaced, 1);
  EXPECT_FALSE(window.window.topMost);
}

TEST_F(SettingsReaderTest, WithoutAFileTheLocalFontIsTheDialoguePanes) {
  window.rtbData.SetSelFormat({u"Courier", 9.5, 0x123456, true, false, true, false});
  ReadFile();
  EXPECT_EQ(state.Font.Name, u"Courier");
  EXPECT_EQ(state.Font.Size, 9.5);
  EXPECT_EQ(state.Font.Color, 0x123456);
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_FALSE(state.Font.Italic);
  EXPECT_TRUE(state.Font.Underline);
  EXPECT_FALSE(state.Font.Strikethrough);
}

TEST_F(SettingsReaderTest, ReadsEveryKey) {
  Read(
      "[General]\nLanguage=1\nNickname=Bob\nDateStamp=False\nTimeStamp=0\nAlwaysOnTop=true\n"
      "Macrosfolder=/macros/\nSuggestcommands=False\nCheckSpelling=False\n"
      "[FontLocal]\nName=Times\nBold=True\nItalic=-1\nStrikethrough=TRUE\nUnderline=1\n"
      "Forecolor=255\nSize=10.5\n"
      "[BackColor]\nCommands=65535\nDialogue=65280\n"
      "[Logging]\nLogfolder=/logs/\nLogdialogue=True\n");
  EXPECT_EQ(state.Nickname, u"Bob");
  EXPECT_EQ(window.lblLocalNickname.caption, u"Bob");
  EXPECT_FALSE(state.DateStamp);
  EXPECT_FALSE(window.mnuToolsDate.checked);
  EXPECT_FALSE(state.TimeStamp);
  EXPECT_FALSE(window.mnuToolsTime.checked);
  EXPECT_TRUE(state.AlwaysOnTop);
  EXPECT_TRUE(window.mnuToolsAlwaysOnTop.checked);
  EXPECT_TRUE(window.window.topMost);
  EXPECT_EQ(window.window.timesPlaced, 1);
  EXPECT_EQ(state.MacrosFolder, u"/macros/");
  EXPECT_EQ(state.Font.Name, u"Times");
  EXPECT_TRUE(state.Font.Bold);
  EXPECT_TRUE(state.Font.Italic);
  EXPECT_TRUE(state.Font.Strikethrough);
  EXPECT_TRUE(state.Font.Underline);
  EXPECT_EQ(state.Font.Color, 255);
  EXPECT_EQ(state.Font.Size, 10.5);
  EXPECT_EQ(window.rtbCommands.backColor, 65535);
  EXPECT_EQ(window.rtbData.backColor, 65280);
  EXPECT_EQ(state.LogFolder, u"/logs/");
  EXPECT_TRUE(state.LogDialogue);
  EXPECT_TRUE(window.mnuFileLogRecord.checked);
  EXPECT_FALSE(state.SuggestCommands);
  EXPECT_FALSE(window.mnuToolsCompletions.checked);
  EXPECT_FALSE(state.CheckSpelling);
  EXPECT_FALSE(window.mnuToolsCheckSpelling.checked);
}

TEST_F(SettingsReaderTest, SpellingIsCheckedUnlessTheFileClearlySaysNo) {
  for (const char* value : {"True", "maybe", ""}) {
    state.CheckSpelling = false;
    Read(std::string("[General]\nCheckSpelling=") + value + "\n");
    EXPECT_TRUE(state.CheckSpelling) << value;
    EXPECT_TRUE(window.mnuToolsCheckSpelling.checked) << value;
  }
}

TEST_F(SettingsReaderTest, CommandsAreSuggestedUnlessTheFileClearlySaysNo) {
  for (const char* value : {"True", "1", "maybe", "", "NULL", "99999999999999999999", "of"}) {
    state.SuggestCommands = false;
    Read(std::string("[General]\nSuggestcommands=") + value + "\n");
    EXPECT_TRUE(state.SuggestCommands) << value;
    EXPECT_TRUE(window.mnuToolsCompletions.checked) << value;
  }
  for (const char* value : {"False", "false", "0"}) {
    Read(std::string("[General]\nSuggestcommands=") + value + "\n");
    EXPECT_FALSE(state.SuggestCommands) << value;
    EXPECT_FALSE(window.mnuToolsCompletions.checked) << value;
  }
  Read("[General]\nNickname=Bob\n");
  EXPECT_TRUE(state.SuggestCommands);
  EXPECT_EQ(fake.files.ReadText(kIniFile).find(u"Suggest"), std::u16string::npos);
}

TEST_F(SettingsReaderTest, ASwitchOfAttentionThatMakesNoSenseTakesItsDefault) {
  for (const char* value : {"maybe", "", "NULL", "of"}) {
    const std::string text(value);
    state.NotifyLines = false;
    state.NotifyText = true;
    Read("[General]\nNotifyLines=" + text + "\nNotifyText=" + text + "\nNotifySound=" + text +
         "\nNotifyCount=" + text + "\n");
    EXPECT_TRUE(state.NotifyLines) << value;
    EXPECT_FALSE(state.NotifyText) << value;
    EXPECT_FALSE(state.NotifySound) << value;
    EXPECT_TRUE(state.NotifyCount) << value;
  }
  Read("[General]\nNotifyLines=False\nNotifyText=True\nNotifySound=1\nNotifyCount=0\n");
  EXPECT_FALSE(window.mnuAttentionLines.checked);
  EXPECT_TRUE(window.mnuAttentionText.checked);
  EXPECT_TRUE(window.mnuAttentionSound.checked);
  EXPECT_FALSE(window.mnuAttentionCount.checked);
}

TEST_F(SettingsReaderTest, AValueThatStartsWithNullCountsAsMissing) {
  for (const char* value : {"NULL", "NULLx", "NULL and void"}) {
    Read(std::string("[General]\nDateStamp=") + value + "\n");
    EXPECT_TRUE(state.DateStamp) << value;
  }
  EXPECT_EQ(FailureOf("[General]\nDateStamp=null\n"), FailureNumber::TypeMismatch);
}

TEST_F(SettingsReaderTest, NullIsAnOrdinaryNicknameAndFolder) {
  Read("[General]\nNickname=NULL\n[Logging]\nLogfolder=NULL\n");
  EXPECT_EQ(state.Nickname, u"NULL");
  EXPECT_EQ(state.LogFolder, u"NULL");
}

TEST_F(SettingsReaderTest, AValueThatCannotBeConvertedIsATypeMismatch) {
  for (const char* text :
       {"[General]\nDateStamp=maybe\n", "[General]\nTimeStamp=\n", "[General]\nAlwaysOnTop=on\n",
        "[FontLocal]\nBold=heavy\n", "[FontLocal]\nItalic=x\n", "[FontLocal]\nUnderline=x\n",
        "[FontLocal]\nStrikethrough=x\n", "[FontLocal]\nForecolor=red\n", "[FontLocal]\nSize=big\n",
        "[BackColor]\nCommands=red\n", "[BackColor]\nDialogue=red\n",
        "[Logging]\nLogdialogue=maybe\n"}) {
    EXPECT_EQ(FailureOf(text), FailureNumber::TypeMismatch) << text;
  }
  EXPECT_EQ(FailureOf("[BackColor]\nDialogue=4294967295\n"), FailureNumber::Overflow);
}

TEST_F(SettingsReaderTest, KeysBehindAFailureKeepTheirDefaults) {
  EXPECT_EQ(FailureOf("[General]\nNickname=Bob\nDateStamp=False\nTimeStamp=maybe\n"
                      "AlwaysOnTop=True\nMacrosfolder=/macros\n[Logging]\nLogdialogue=True\n"),
            FailureNumber::TypeMismatch);
  EXPECT_EQ(state.Nickname, u"Bob");
  EXPECT_FALSE(state.DateStamp);
  EXPECT_TRUE(state.TimeStamp);
  EXPECT_TRUE(window.mnuToolsTime.checked);
  EXPECT_FALSE(state.AlwaysOnTop);
  EXPECT_FALSE(state.LogDialogue);
  EXPECT_EQ(state.MacrosFolder, u"");
  EXPECT_EQ(state.Font.Name, u"Arial");
}

TEST_F(SettingsReaderTest, AFontSizeOutOfRangeBecomesTheNearestOneAccepted) {
  const std::pair<const char*, double> cases[] = {
      {"500", 11}, {"11", 11}, {"8", 8}, {"7.9", 8}, {"0", 8}, {"-1", 8}, {"9.3", 9.5}, {"8.2", 8}};
  for (const auto& [value, size] : cases) {
    Read(std::string("[FontLocal]\nSize=") + value + "\n");
    EXPECT_EQ(state.Font.Size, size) << value;
  }
}

TEST_F(SettingsReaderTest, AColourOutOfRangeIsWhiteAndANegativeOneIsMissing) {
  Read("[FontLocal]\nForecolor=16777216\n[BackColor]\nCommands=2147483647\nDialogue=-1\n");
  EXPECT_EQ(state.Font.Color, 0xFFFFFF);
  EXPECT_EQ(window.rtbCommands.backColor, 0xFFFFFF);
  EXPECT_EQ(window.rtbData.backColor, 0xFFFFFF);
  SelectionFormat paneFormat;
  paneFormat.color = 0x123456;
  window.rtbData.SetSelFormat(paneFormat);
  window.rtbData.SetBackColor(0x654321);
  Read("[FontLocal]\nForecolor=-2147483640\n[BackColor]\nDialogue=-2147483643\n");
  EXPECT_EQ(state.Font.Color, 0x123456);
  EXPECT_EQ(window.rtbData.backColor, 0x654321);
}

TEST_F(SettingsReaderTest, MissingBackColoursLeaveThePanes) {
  window.rtbData.SetBackColor(0x112233);
  window.rtbCommands.SetBackColor(0x445566);
  ReadFile();
  EXPECT_EQ(window.rtbData.backColor, 0x112233);
  EXPECT_EQ(window.rtbCommands.backColor, 0x445566);
}

TEST_F(SettingsReaderTest, AnEmptyFontNameLeavesThePanes) {
  Read("[FontLocal]\nName=\n");
  EXPECT_EQ(state.Font.Name, u"Arial");
}

TEST_F(SettingsReaderTest, InvalidValuesAreFoundBeforehand) {
  const std::pair<const char*, const char*> keys[] = {
      {"General", "Nickname"},     {"General", "DateStamp"},       {"General", "TimeStamp"},
      {"General", "AlwaysOnTop"},  {"FontLocal", "Name"},          {"FontLocal", "Bold"},
      {"FontLocal", "Italic"},     {"FontLocal", "Underline"},     {"FontLocal", "Strikethrough"},
      {"FontLocal", "Forecolor"},  {"FontLocal", "Size"},          {"BackColor", "Commands"},
      {"BackColor", "Dialogue"},   {"Logging", "Logfolder"},       {"Logging", "Logdialogue"},
      {"General", "Macrosfolder"}, {"General", "Suggestcommands"}, {"General", "CheckSpelling"}};
  for (const auto& [section, key] : keys) {
    for (const char* value : {"", "maybe", "True", "1", "-1", "9.5", "99999999999", "NULL"}) {
      const std::string text = std::string("[") + section + "]\n" + key + "=" + value + "\n";
      bool reads = true;
      try {
        Read(text);
      } catch (const RunTimeFailure&) {
        reads = false;
      }
      EXPECT_EQ(AllValuesAreValid(settings), reads) << text;
    }
  }
}

TEST_F(SettingsReaderTest, ALongNicknameIsCutByItsReadSize) {
  Read("[General]\nNickname=" + std::string(100, 'n') + "\n");
  EXPECT_EQ(state.Nickname, std::u16string(31, u'n'));
}

TEST_F(SettingsReaderTest, TheLocalFontIsWrittenInOrder) {
  state.Font.Name = u"Comic Ωmega";
  state.Font.Bold = true;
  state.Font.Underline = true;
  state.Font.Color = 255;
  state.Font.Size = 10.5;
  WriteFontSettings(state, settings);
  EXPECT_EQ(fake.files.ReadText(kIniFile),
            u"[FontLocal]\r\nName=Comic Ωmega\r\nBold=True\r\nItalic=False\r\n"
            u"Strikethrough=False\r\nUnderline=True\r\nForecolor=255\r\nSize=10.5\r\n");
}

TEST_F(SettingsReaderTest, TheLocalFontSurvivesARestart) {
  state.Font.Name = u"Times";
  state.Font.Italic = state.Font.Strikethrough = true;
  state.Font.Color = 0xABCDEF;
  state.Font.Size = 9;
  WriteFontSettings(state, settings);
  state = AppState();
  state.IniFile = kIniFile;
  ReadFile();
  EXPECT_EQ(state.Font.Name, u"Times");
  EXPECT_FALSE(state.Font.Bold);
  EXPECT_TRUE(state.Font.Italic);
  EXPECT_TRUE(state.Font.Strikethrough);
  EXPECT_FALSE(state.Font.Underline);
  EXPECT_EQ(state.Font.Color, 0xABCDEF);
  EXPECT_EQ(state.Font.Size, 9);
}

TEST_F(SettingsReaderTest, TheDialoguePaneKeepsWhatTheFileSays) {
  const fake::FakeRichTextBox& pane = window.rtbData;
  for (const char* value : {"", "NULL", "many", "-1", "99999999999"}) {
    Read(std::string("[General]\nMostparagraphs=") + value + "\n");
    EXPECT_EQ(pane.mostParagraphs, 200'000u) << value;
  }
  Read("[General]\nMostparagraphs=5000\n");
  EXPECT_EQ(pane.mostParagraphs, 5'000u);
  Read("[General]\nMostparagraphs=0\n");
  EXPECT_EQ(pane.mostParagraphs, 0u);
}

}  // namespace
}  // namespace verlume
