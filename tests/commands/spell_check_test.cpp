#include "commands/spell_check.h"

#include <gmock/gmock.h>

#include "platform_fake/fake_platform.h"

namespace verlume {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SpellCheckTest : public testing::Test {
 protected:
  SpellCheckTest() {
    state.Title = u"Verlume";
    state.IniFile = u"/verlume/Verlume.ini";
  }
  void SetFile(std::string content) { fake.files.files[wordsFile] = std::move(content); }

  const std::u16string wordsFile = u"/verlume/Verlume.words";
  fake::FakeNetwork network;
  fake::FakePlatform fake{network};
  fake::FakeSpellChecker& checker = fake.window.spelling;
  fake::FakeMenuEntry& entry = fake.window.mnuToolsCheckSpelling;
  AppState state;
  ErrorReport errors{state, fake.platform, [] {}, [] {}};
  Settings settings{state, fake.files};
  SpellCheck spelling{state, fake.platform, errors, settings};
};

TEST_F(SpellCheckTest, IsOnFromTheStart) {
  spelling.Start();
  EXPECT_TRUE(checker.on);
  EXPECT_TRUE(entry.enabled);
}

TEST_F(SpellCheckTest, StaysOffWhereTheUserWantsNone) {
  state.CheckSpelling = false;
  spelling.Start();
  EXPECT_FALSE(checker.on);
  EXPECT_TRUE(entry.enabled);
}

TEST_F(SpellCheckTest, IsGreyWhereThereIsNoDictionary) {
  checker.hasDictionary = false;
  spelling.Start();
  EXPECT_FALSE(checker.on);
  EXPECT_FALSE(entry.enabled);
}

TEST_F(SpellCheckTest, TheEntrySwitchesItOffAndOnAndKeepsTheChoice) {
  entry.checked = true;
  spelling.Start();
  const int before = fake.window.rtbCommands.timesFocused;
  spelling.mnuToolsCheckSpelling_Click();
  EXPECT_FALSE(checker.on);
  EXPECT_FALSE(entry.checked);
  EXPECT_EQ(settings.ReadSetting(u"General", u"Checkspelling", u"", 20), u"False");
  EXPECT_EQ(fake.window.rtbCommands.timesFocused, before + 1);
  spelling.mnuToolsCheckSpelling_Click();
  EXPECT_TRUE(checker.on);
  EXPECT_TRUE(entry.checked);
  EXPECT_EQ(settings.ReadSetting(u"General", u"Checkspelling", u"", 20), u"True");
}

TEST_F(SpellCheckTest, ReadsTheWordsOfTheUser) {
  SetFile("Verlume\r\nΠαπαρρηγόπουλος\n\nlast");
  spelling.Start();
  EXPECT_THAT(checker.ownWords, ElementsAre(u"Verlume", u"Παπαρρηγόπουλος", u"last"));
}

TEST_F(SpellCheckTest, AFileThatCannotBeReadIsNoneAndDisturbsNobody) {
  spelling.Start();
  EXPECT_THAT(checker.ownWords, IsEmpty());
  SetFile(std::string(2 << 20, 'a'));
  spelling.Start();
  EXPECT_THAT(checker.ownWords, IsEmpty());
  EXPECT_TRUE(fake.dialogs.messages.empty());
}

TEST_F(SpellCheckTest, AWordThatIsAddedIsRightAtOnceAndIsKept) {
  spelling.Start();
  spelling.AddWord(u"Verlume");
  spelling.AddWord(u"γιαπί");
  EXPECT_THAT(checker.ownWords, ElementsAre(u"Verlume", u"γιαπί"));
  EXPECT_EQ(fake.files.files[wordsFile], "Verlume\nγιαπί\n");
}

TEST_F(SpellCheckTest, AWordIsAddedBehindALineThatIsNotEnded) {
  SetFile("last");
  spelling.Start();
  spelling.AddWord(u"next");
  EXPECT_EQ(fake.files.files[wordsFile], "last\nnext\n");
}

TEST_F(SpellCheckTest, AWordThatCannotBeKeptIsRightAndReported) {
  spelling.Start();
  fake.files.writesFail = FailureNumber::DiskFull;
  fake.dialogs.answers = {Answer::No};
  spelling.AddWord(u"Verlume");
  EXPECT_THAT(checker.ownWords, ElementsAre(u"Verlume"));
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Verlume, 275.");
}

}  // namespace
}  // namespace verlume
