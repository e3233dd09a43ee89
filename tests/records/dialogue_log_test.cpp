#include "records/dialogue_log.h"

#include "macros/room_test.h"

namespace verlume {
namespace {

TEST(LogFileStemTest, EachForbiddenCharacterBecomesAnUnderscore) {
  EXPECT_EQ(LogFileStemOf(u"\\/:*?\"<>|"), u"_________");
  EXPECT_EQ(LogFileStemOf(u"Νίκος. the 1st"), u"Νίκος. the 1st");
}

TEST(LogFileStemTest, NicknamesThatDifferInForbiddenCharactersShareAStem) {
  EXPECT_EQ(LogFileStemOf(u"a/b"), u"a_b");
  EXPECT_EQ(LogFileStemOf(u"a:b"), u"a_b");
}

TEST(LogFileStemTest, ControlCharacterBecomesAnUnderscore) {
  EXPECT_EQ(LogFileStemOf(std::u16string(u"a\0b\nc\u0085d", 7)), u"a_b_c_d");
}

TEST(LogFileStemTest, NothingAndTheNamesOfFoldersBecomeAName) {
  EXPECT_EQ(LogFileStemOf(u""), u"_");
  EXPECT_EQ(LogFileStemOf(u"."), u"_");
  EXPECT_EQ(LogFileStemOf(u".."), u"_");
  EXPECT_EQ(LogFileStemOf(u"..."), u"...");
}

TEST(LogFileStemTest, WhatIsNotSeenBecomesAnUnderscore) {
  EXPECT_EQ(LogFileStemOf(u"\u202Eb\u2028ob\u200F"), u"_b_ob_");
  EXPECT_EQ(LogFileStemOf(u"a\xD83D"), u"a_");
}

TEST(LogFileStemTest, OverlongNicknameIsCutToWhatAFileNameHolds) {
  const std::u16string longestOfOurs(32, u'€');
  EXPECT_EQ(LogFileStemOf(longestOfOurs), longestOfOurs);
  EXPECT_EQ(LogFileStemOf(std::u16string(4000, u'€')), longestOfOurs);
  EXPECT_EQ(LogFileStemOf(std::u16string(31, u'b') + u"\U0001F600"), std::u16string(31, u'b'));
}

class AppendToLogTest : public RoomTest {
 protected:
  AppendToLogTest() {
    fake.files.MakeFolder(u"/logs");
    state.LogFolder = u"/logs/";
    state.LogDialogue = true;
    state.LogOpen = true;
    state.LogFileStem = u"bob";
  }

  // Appends a line that cannot be written, and answers No to the report.
  void FailToAppend() {
    AnswerNoToErrors();
    log.AppendToLog(u"lost");
    EXPECT_EQ(timesReset, 1);
    EXPECT_EQ(fake.dialogs.messages.size(), 1u);
  }

  std::string& bobsLog = fake.files.files[u"/logs/bob.txt"];
  DialogueLog log{state, fake.platform, errors, settings};
};

TEST_F(AppendToLogTest, EachLineIsCompleteOnDisk) {
  log.AppendToLog(u"one");
  EXPECT_EQ(bobsLog, "one\r\n");
  log.AppendToLog(u"δύο");
  EXPECT_EQ(bobsLog, "one\r\nδύο\r\n");
}

TEST_F(AppendToLogTest, FileIsMadeWhenThereIsNone) {
  state.LogFileStem = u"alice";
  log.AppendToLog(u"hello");
  EXPECT_EQ(fake.files.ReadBytes(u"/logs/alice.txt"), "hello\r\n");
}

TEST_F(AppendToLogTest, LaterConversationIsAppended) {
  bobsLog = "yesterday\r\n";
  log.AppendToLog(u"today");
  EXPECT_EQ(bobsLog, "yesterday\r\ntoday\r\n");
}

TEST_F(AppendToLogTest, NothingIsWrittenWhileTheSwitchIsOff) {
  state.LogDialogue = false;
  log.AppendToLog(u"hello");
  EXPECT_EQ(bobsLog, "");
}

TEST_F(AppendToLogTest, NothingIsWrittenWhileNoConversationIsOpen) {
  state.LogOpen = false;
  log.AppendToLog(u"hello");
  EXPECT_EQ(bobsLog, "");
}

TEST_F(AppendToLogTest, FolderWithoutTrailingSeparatorNamesTheSameFile) {
  state.LogFolder = u"/logs";
  log.AppendToLog(u"hello");
  EXPECT_EQ(bobsLog, "hello\r\n");
}

TEST_F(AppendToLogTest, LineBreaksInsideAnEntryBecomeBlanks) {
  log.AppendToLog(u"a\nb\r\nc\rd\u2028e\u2029f");
  EXPECT_EQ(bobsLog, "a b c d e f\r\n");
}

TEST_F(AppendToLogTest, ControlCharactersBecomeBlanks) {
  log.AppendToLog(
      std::u16string(u"a\0b\x1B[31mc\td\x7F"
                     u"e\u009Bf",
                     15));
  EXPECT_EQ(bobsLog, "a b [31mc d e f\r\n");
}

TEST_F(AppendToLogTest, ConnectionLineHasTimeAndStars) {
  log.AppendConnectionLine(u"Disconnected.");
  EXPECT_EQ(bobsLog, "[2026-03-07_09:05:30]***** Disconnected.\r\n");
}

TEST_F(AppendToLogTest, FullDiskIsReportedAndTheNextLineIsWritten) {
  fake.files.writesFail = FailureNumber::DiskFull;
  FailToAppend();
  ExpectReported(u"61", u"Verlume, 240.");
  fake.files.writesFail.reset();
  log.AppendToLog(u"next");
  EXPECT_EQ(bobsLog, "next\r\n");
}

TEST_F(AppendToLogTest, VanishedFolderIsReported) {
  state.LogFolder = u"/vanished/";
  FailToAppend();
  ExpectReported(u"76", u"Verlume, 240.");
}

TEST_F(AppendToLogTest, FileWhereTheFolderShouldBeIsReported) {
  state.LogFolder = u"/logs/bob.txt";
  FailToAppend();
  ExpectReported(u"76", u"Verlume, 240.");
}

TEST_F(AppendToLogTest, FolderWhereTheFileShouldBeIsReported) {
  state.LogFileStem = u"alice";
  fake.files.MakeFolder(u"/logs/alice.txt");
  FailToAppend();
  ExpectReported(u"75", u"Verlume, 240.");
}

TEST_F(AppendToLogTest, WithoutAFolderNothingIsWrittenIntoTheRoot) {
  state.LogFolder = u"";
  FailToAppend();
  ExpectReported(u"76", u"Verlume, 240.");
  EXPECT_FALSE(fake.files.IsFile(u"/bob.txt"));
}

}  // namespace
}  // namespace verlume
