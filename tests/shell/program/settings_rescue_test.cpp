// Starts of the whole program with a settings file that cannot be used.
#include "shell/settings_rescue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform_fake/fake_platform.h"
#include "shell/program/program.h"

using namespace std::string_literals;

namespace verlume {
namespace {

constexpr const char16_t* kIniFile = u"/verlume/Verlume.ini";
constexpr const char16_t* kKept = u"/verlume/Verlume.ini.bad";

// A disk on which the program is started again and again.
class SettingsRescueTest : public testing::Test {
 protected:
  SettingsRescueTest() { Write(u"/macros/x.rtf", ""); }

  void Write(const std::u16string& path, const std::string& bytes) { disk[path] = bytes; }

  // Starts the program again, with the files that the last run left. Expects no error to end it.
  void Start() {
    if (platform) disk = platform->files.files;
    program.reset();
    platform = std::make_unique<fake::FakePlatform>(network);
    platform->files.MakeFolder(u"/macros");
    platform->files.files = disk;
    if (keptIsFolder) platform->files.MakeFolder(kKept);
    platform->files.readsFail = readsFail;
    platform->dialogs.answers.assign(5, Answer::No);
    program = std::make_unique<Program>(platform->platform);
    program->Start();
    platform->files.readsFail.reset();
  }
  // The same, and then ends the program.
  void StartWhole() {
    Start();
    platform->window.freeSizer1.onPostLayout();
  }
  std::string On(const std::u16string& path) const {
    const auto file = platform->files.files.find(path);
    return file == platform->files.files.end() ? "none" : file->second;
  }
  std::vector<std::u16string> Titles() const {
    std::vector<std::u16string> titles;
    for (const Message& message : platform->dialogs.messages) titles.push_back(message.title);
    return titles;
  }
  const Message& LastBox() const { return platform->dialogs.messages.back(); }

  static constexpr const char* kMacros = "Macrosfolder=/macros/\r\n";
  static constexpr const char* kOneBad =
      "[General]\r\nLanguage=0\r\nMacrosfolder=/macros/\r\nDateStamp=maybe\r\nNickname=Ann\r\n"
      "[FontLocal]\r\nName=Courier\r\nSize=9.5\r\n";
  const std::vector<std::u16string> kNoteAlone = {u"Settings file"};
  const std::vector<std::u16string> kReportAndNote = {u"Verlume, 203.", u"Settings file"};

  fake::FakeNetwork network;
  std::map<std::u16string, std::string, std::less<>> disk;
  std::optional<FailureNumber> readsFail;
  bool keptIsFolder = false;
  std::unique_ptr<fake::FakePlatform> platform;
  std::unique_ptr<Program> program;
};

TEST_F(SettingsRescueTest, AUsableFileIsNothingToTell) {
  Start();
  EXPECT_TRUE(Titles().empty()) << "no file";
  Start();
  EXPECT_TRUE(Titles().empty()) << "the file of the first start";
  EXPECT_EQ(On(kKept), "none");
}

TEST_F(SettingsRescueTest, AFileWithAValueOfTheWrongKindIsKept) {
  Write(kIniFile, kOneBad);
  StartWhole();
  EXPECT_EQ(On(kKept), kOneBad);
  EXPECT_EQ(Titles()[0], u"Verlume, 203.");
  EXPECT_NE(On(kIniFile).find("DateStamp=maybe\r\nNickname=Ann\r\n"), std::string::npos);
  EXPECT_NE(On(kIniFile).find("Name=Arial\r\n"), std::string::npos) << "the usual font";
}

TEST_F(SettingsRescueTest, TheUserIsToldOnceAfterTheReport) {
  Write(kIniFile, kOneBad);
  Start();
  EXPECT_EQ(Titles(), kReportAndNote);
  EXPECT_EQ(
      LastBox().text,
      u"Not all of your settings could be understood. Your settings file has been kept, as it "
      u"was, under the name:\r\n\r\n/verlume/Verlume.ini.bad\r\n\r\nThe program uses its "
      u"usual settings instead of those that it could not read.");
  EXPECT_EQ(LastBox().icon, MessageIcon::Information);
  EXPECT_EQ(LastBox().buttons, MessageButtons::Ok);
}

TEST_F(SettingsRescueTest, AGreekUserIsToldInGreek) {
  Write(kIniFile, "[General]\r\nLanguage=1\r\nTimeStamp=ίσως\r\n");
  Start();
  EXPECT_EQ(LastBox().title, u"Αρχείο ρυθμίσεων");
  EXPECT_TRUE(LastBox().text.starts_with(u"Δεν έγιναν κατανοητές όλες οι ρυθμίσεις σας."));
  EXPECT_NE(LastBox().text.find(kKept), std::u16string::npos);
}

TEST_F(SettingsRescueTest, AfterYesToTheReportNothingIsTold) {
  Write(kIniFile, kOneBad);
  platform = std::make_unique<fake::FakePlatform>(network);
  platform->files.files = disk;
  platform->dialogs.answers = {Answer::Yes};
  program = std::make_unique<Program>(platform->platform);
  program->Start();
  EXPECT_EQ(Titles(), std::vector<std::u16string>{u"Verlume, 203."});
  EXPECT_EQ(On(kKept), kOneBad);
}

TEST_F(SettingsRescueTest, TheNextStartDoesNotKeepTheUsualFontInPlaceOfTheUsersOwn) {
  Write(kIniFile, kOneBad);
  StartWhole();
  ASSERT_NE(On(kIniFile), kOneBad);
  for (int i = 0; i < 2; ++i) {
    StartWhole();
    EXPECT_EQ(On(kKept), kOneBad);
    EXPECT_THAT(Titles(), testing::Not(testing::Contains(kNoteAlone[0]))) << "it is told once";
  }
}

TEST_F(SettingsRescueTest, AnotherFileReplacesAnOlderCopyAndIsToldOf) {
  Write(kKept, "[General]\r\nNickname=Bob\r\n");
  Write(kIniFile, kOneBad);
  StartWhole();
  EXPECT_EQ(On(kKept), kOneBad);
  const std::string other = "[General]\r\nDateStamp=maybe\r\nNickname=Zoe\r\n";
  platform->files.files[kIniFile] = other;
  Start();
  EXPECT_EQ(On(kKept), other);
  EXPECT_EQ(Titles(), kReportAndNote);
}

TEST_F(SettingsRescueTest, ACopyTooLargeToReadIsReplaced) {
  Write(kKept, std::string(kLargestSettingsFile + 1, ';'));
  Write(kIniFile, kOneBad);
  Start();
  EXPECT_EQ(On(kKept), kOneBad);
}

TEST_F(SettingsRescueTest, TheCopyIsTheFileByteForByte) {
  const std::string old = "[General]\nNickname=\xC1\xED\xED\xE1\nDateStamp=\xDF\xF3\xF9\xF2\n";
  Write(kIniFile, old);
  Start();
  EXPECT_EQ(On(kKept), old);
}

TEST_F(SettingsRescueTest, WithoutACopyNothingIsOverwritten) {
  keptIsFolder = true;
  Write(kIniFile, kOneBad);
  Start();
  EXPECT_EQ(Titles(), kReportAndNote);
  EXPECT_TRUE(LastBox().text.starts_with(
      u"Your settings file could not be understood:\r\n\r\n/verlume/Verlume.ini\r\n"));
  EXPECT_NE(LastBox().text.find(u"\r\n/verlume/Verlume.ini.bad\r\n"), std::u16string::npos);
  EXPECT_THAT(platform->application.loggedErrors, testing::SizeIs(2)) << "the report, and the copy";
  platform->window.freeSizer1.onPostLayout();
  platform->window.rtbCommands.Type(u"/NICK Zoe\r");
  EXPECT_EQ(program->State().Nickname, u"Zoe");
  EXPECT_EQ(On(kIniFile), kOneBad);
  EXPECT_EQ(Titles().size(), 4u) << "the macros folder is asked for, nothing else is told";
}

TEST_F(SettingsRescueTest, AFileThatIsNoTextIsKeptAndBegunAnew) {
  const std::string damaged = "[General]\r\nLanguage=0\r\n"s + kMacros + "Nickname=A\0nn\r\n"s;
  Write(kIniFile, damaged);
  Start();
  EXPECT_EQ(Titles(), kNoteAlone);
  EXPECT_TRUE(LastBox().text.starts_with(u"Your settings file is damaged."));
  EXPECT_NE(LastBox().text.find(u"Το αρχείο των ρυθμίσεών σας είναι κατεστραμμένο."),
            std::u16string::npos);
  EXPECT_EQ(On(kKept), damaged);
  EXPECT_EQ(On(kIniFile), "[General]\r\nLanguage=0\r\n");
  EXPECT_EQ(program->State().Nickname, u"fakehost");
  Start();
  EXPECT_TRUE(Titles().empty()) << "it is told once";
  EXPECT_EQ(On(kKept), damaged);
}

TEST_F(SettingsRescueTest, AFileOfNothingButZerosIsNoText) {
  const std::string zeros(4096, '\0');
  Write(kIniFile, zeros);
  Start();
  EXPECT_EQ(Titles(), kNoteAlone);
  EXPECT_EQ(On(kKept), zeros);
}

TEST_F(SettingsRescueTest, ADamagedFileWithoutACopyStays) {
  keptIsFolder = true;
  const std::string damaged = "[General]\nNickname=Ann\n\0\0"s;
  Write(kIniFile, damaged);
  Start();
  EXPECT_EQ(Titles(), kNoteAlone);
  EXPECT_EQ(On(kIniFile), damaged);
}

TEST_F(SettingsRescueTest, AFileThatCannotBeReadStaysAndIsToldOfOnce) {
  Write(kIniFile, "[General]\r\nNickname=Ann\r\n");
  for (const FailureNumber failure :
       {FailureNumber::PermissionDenied, FailureNumber::PathFileAccessError}) {
    readsFail = failure;
    Start();
    EXPECT_EQ(Titles(), kNoteAlone);
    EXPECT_TRUE(LastBox().text.starts_with(
        u"Your settings file could not be read:\r\n\r\n/verlume/Verlume.ini\r\n"));
    EXPECT_THAT(platform->application.loggedErrors, testing::SizeIs(1));
    EXPECT_NE(LastBox().text.find(u"Δεν ήταν δυνατόν να διαβαστεί"), std::u16string::npos);
    platform->window.rtbCommands.Type(u"/NICK Zoe\r");
    EXPECT_EQ(program->State().Nickname, u"Zoe");
    EXPECT_EQ(On(kIniFile), "[General]\r\nNickname=Ann\r\n");
    EXPECT_EQ(On(kKept), "none");
    EXPECT_EQ(Titles(), kNoteAlone);
  }
}

TEST_F(SettingsRescueTest, AnOverlargeFileIsNotRead) {
  std::string large = "[General]\r\nNickname=Ann\r\n";
  large.append(kLargestSettingsFile + 1 - large.size(), ';');
  Write(kIniFile, large);
  Start();
  EXPECT_EQ(Titles(), kNoteAlone);
  EXPECT_EQ(program->State().Nickname, u"fakehost");
  EXPECT_EQ(On(kIniFile), large);
  EXPECT_EQ(On(kKept), "none");
}

}  // namespace
}  // namespace verlume
