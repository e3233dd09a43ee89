#include "records/dialogue_log.h"

#include "macros/room_test.h"

namespace verlume {
namespace {

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
  log.AppendToLog(u"[2026-03-07_09:05:30]one");
  EXPECT_EQ(bobsLog, "[2026-03-07_09:05:30]one\r\n");
  log.AppendToLog(u"δύο");
  EXPECT_EQ(bobsLog, "[2026-03-07_09:05:30]one\r\nδύο\r\n");
}

TEST_F(AppendToLogTest, FileIsMadeWhenThereIsNone) {
  state.LogFileStem = u"alice";
  log.AppendToLog(u"hello");
  EXPECT_EQ(fake.files.ReadBytes(u"/logs/alice.txt"), "hello\r\n");
}

TEST_F(AppendToLogTest, LaterConversationIsAppended) {
  bobsLog = "[2026-03-06_23:59:59]yesterday\r\n";
  log.AppendToLog(u"today");
  EXPECT_EQ(bobsLog, "[2026-03-06_23:59:59]yesterday\r\ntoday\r\n");
}

TEST_F(AppendToLogTest, FileOfTheUsersIsNotTouched) {
  bobsLog = "buy milk\r\n";
  log.AppendConnectionLine(u"Active connection.");
  log.AppendConnectionLine(u"Disconnected.");
  EXPECT_EQ(bobsLog, "buy milk\r\n");
  EXPECT_EQ(fake.files.ReadText(u"/logs/bob (2).txt"),
            u"[2026-03-07_09:05:30]***** Active connection.\r\n"
            u"[2026-03-07_09:05:30]***** Disconnected.\r\n");
}

TEST_F(AppendToLogTest, LogKeepsItsNameWhenTheUsersFileIsGone) {
  bobsLog = "buy milk\r\n";
  log.AppendConnectionLine(u"Active connection.");
  fake.files.Delete(u"/logs/bob.txt");
  log.AppendConnectionLine(u"Disconnected.");
  EXPECT_FALSE(fake.files.IsFile(u"/logs/bob.txt"));
  EXPECT_TRUE(fake.files.ReadText(u"/logs/bob (2).txt").ends_with(u"Disconnected.\r\n"));
}

TEST_F(AppendToLogTest, FileThatTheUserPutsInThePlaceOfTheLogIsNotTouchedEither) {
  log.AppendConnectionLine(u"Active connection.");
  bobsLog = "buy milk\r\n";
  log.AppendConnectionLine(u"Disconnected.");
  EXPECT_EQ(bobsLog, "buy milk\r\n");
  EXPECT_EQ(fake.files.ReadText(u"/logs/bob (2).txt"),
            u"[2026-03-07_09:05:30]***** Disconnected.\r\n");
}

TEST_F(AppendToLogTest, RestOfAConversationGoesIntoTheFolderChosenMeanwhile) {
  log.AppendConnectionLine(u"Active connection.");
  state.LogDialogue = false;
  fake.files.MakeFolder(u"/new");
  fake.commonDialog.folders = {u"/new/"};
  log.mnuFileLogFolder_Click();
  state.LogDialogue = true;
  log.AppendConnectionLine(u"Disconnected.");
  EXPECT_EQ(fake.files.ReadText(u"/new/bob.txt"), u"[2026-03-07_09:05:30]***** Disconnected.\r\n");
}

TEST_F(AppendToLogTest, FailureToLookIntoTheFileIsReported) {
  bobsLog = "[2026-03-06_23:59:59]yesterday\r\n";
  fake.files.readsFail = FailureNumber::PathFileAccessError;
  FailToAppend();
  ExpectReported(u"75", u"Verlume, 240.");
  EXPECT_EQ(bobsLog, "[2026-03-06_23:59:59]yesterday\r\n");
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

TEST_F(AppendToLogTest, MarksThatTurnTheDirectionOfWritingAreSeen) {
  log.AppendToLog(u"<Bob>a\u202Eb\u202C\u200Ec\u2067d\u2069\u061Ce \U0001F468\u200D\U0001F467");
  EXPECT_EQ(bobsLog,
            "<Bob>a\\u202Eb\\u202C\\u200Ec\\u2067d\\u2069\\u061Ce "
            "\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA7\r\n")
      << "what joins two signs stays";
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
