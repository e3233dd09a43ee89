#include "shell/settings.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/run_time_failure.h"
#include "platform_fake/fake_file_system.h"

using namespace std::string_literals;

namespace verlume {
namespace {

class SettingsTest : public testing::Test {
 protected:
  SettingsTest() {
    files.MakeFolder(u"/verlume");
    state.IniFile = kPath;
  }

  static constexpr const char16_t* kPath = u"/verlume/Verlume.ini";
  fake::FakeFileSystem files;
  AppState state;
  Settings settings{state, files};
};

TEST_F(SettingsTest, AMissingFileReadsAsTheMissingMarker) {
  EXPECT_EQ(settings.ReadSetting(u"General", u"DateStamp", u"NULL", 20), u"NULL");
}

TEST_F(SettingsTest, AMissingSectionOrKeyReadsAsTheMissingMarker) {
  files.files[kPath] = "[General]\r\nLanguage=1\r\n";
  EXPECT_EQ(settings.ReadSetting(u"Logging", u"Language", u"NULL", 20), u"NULL");
  EXPECT_EQ(settings.ReadSetting(u"General", u"Nickname", u"", 32), u"");
}

TEST_F(SettingsTest, AFileThatCannotBeReadReadsAsMissing) {
  state.IniFile = u"/verlume";
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 5), u"0");
}

TEST_F(SettingsTest, AnEmptyValueIsNotMissing) {
  files.files[kPath] = "[General]\r\nDateStamp=\r\n";
  EXPECT_EQ(settings.ReadSetting(u"General", u"DateStamp", u"NULL", 20), u"");
}

TEST_F(SettingsTest, CutsTheValueOneShortOfTheSize) {
  files.files[kPath] = "[General]\r\nLanguage=123456\r\n";
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 5), u"1234");
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 7), u"123456");
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 0), u"");
}

TEST_F(SettingsTest, CutsNoCharacterInHalf) {
  settings.WriteSetting(u"General", u"Nickname", u"ab\U0001F600");
  EXPECT_EQ(settings.ReadSetting(u"General", u"Nickname", u"", 4), u"ab");
  EXPECT_EQ(settings.ReadSetting(u"General", u"Nickname", u"", 5), u"ab\U0001F600");
}

TEST_F(SettingsTest, AValueEndsAtItsFirstNul) {
  files.files[kPath] = "[General]\nNickname=Bob\0by\n"s;
  EXPECT_EQ(settings.ReadSetting(u"General", u"Nickname", u"", 32), u"Bob");
}

TEST_F(SettingsTest, ReadsGreekOfAnOlderMachine) {
  files.files[kPath] = "[General]\r\nNickname=\xc1\xed\xed\xe1\r\n";
  EXPECT_EQ(settings.ReadSetting(u"General", u"Nickname", u"", 32), u"Αννα");
}

TEST_F(SettingsTest, WritingMakesTheFile) {
  settings.WriteSetting(u"General", u"Language", u"0");
  EXPECT_EQ(files.files[kPath], "[General]\r\nLanguage=0\r\n");
}

TEST_F(SettingsTest, WritingReplacesOneKeyAndKeepsTheOthers) {
  files.files[kPath] = "; by hand\n[General]\nLanguage=1\nNickname=Bob\n";
  settings.WriteSetting(u"General", u"Language", u"0");
  EXPECT_EQ(files.files[kPath], "; by hand\n[General]\nLanguage=0\nNickname=Bob\n");
}

TEST_F(SettingsTest, WritesGreekThatItReadsBack) {
  settings.WriteSetting(u"Logging", u"Logfolder", u"/home/Άννα/");
  EXPECT_EQ(settings.ReadSetting(u"Logging", u"Logfolder", u"", 1024), u"/home/Άννα/");
}

TEST_F(SettingsTest, WritesSeveralKeysInOneStep) {
  settings.WriteSettings(u"A", {{u"Two", u"2"}, {u"One", u"1"}});
  EXPECT_EQ(files.files[kPath], "[A]\r\nTwo=2\r\nOne=1\r\n");
}

TEST_F(SettingsTest, AWriteThatFailsThrowsAndKeepsTheFile) {
  files.files[kPath] = "[General]\nLanguage=1\n";
  files.writesFail = FailureNumber::DiskFull;
  try {
    settings.WriteSetting(u"General", u"Language", u"0");
    FAIL() << "no failure";
  } catch (const RunTimeFailure& failure) {
    EXPECT_EQ(failure.number, FailureNumber::DiskFull);
  }
  EXPECT_EQ(files.files[kPath], "[General]\nLanguage=1\n");
}

TEST_F(SettingsTest, AnOverlargeFileReadsAsMissingAndIsNotReplaced) {
  const std::string largest =
      std::string(kLargestSettingsFile - 22, '\n') + "[General]\nLanguage=1\n";
  ASSERT_EQ(largest.size(), kLargestSettingsFile - 1);
  files.files[kPath] = largest + "\n";
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 5), u"1");
  files.files[kPath] = largest + "\n\n";
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 5), u"0");
  EXPECT_THROW(settings.WriteSetting(u"General", u"Language", u"0"), RunTimeFailure);
  EXPECT_EQ(files.files[kPath], largest + "\n\n");
}

TEST_F(SettingsTest, OnceStoppedItWritesNothingAndReadsOn) {
  files.files[kPath] = "[General]\nLanguage=1\n";
  settings.StopWriting();
  settings.WriteSetting(u"General", u"Language", u"0");
  settings.WriteSettings(u"A", {{u"Two", u"2"}, {u"One", u"1"}});
  EXPECT_EQ(files.files[kPath], "[General]\nLanguage=1\n");
  EXPECT_EQ(settings.ReadSetting(u"General", u"Language", u"0", 5), u"1");
}

// A file system that has the file but may not read it.
class UnreadableFiles : public fake::FakeFileSystem {
 public:
  std::u16string ReadText(std::u16string_view) const override {
    throw RunTimeFailure(FailureNumber::PermissionDenied);
  }
};

TEST_F(SettingsTest, AFileThatCannotBeReadIsNotReplaced) {
  UnreadableFiles unreadable;
  unreadable.MakeFolder(u"/verlume");
  unreadable.files[kPath] = "[General]\nNickname=Bob\n";
  Settings blind(state, unreadable);
  EXPECT_THROW(blind.WriteSetting(u"General", u"Language", u"0"), RunTimeFailure);
  EXPECT_EQ(unreadable.files[kPath], "[General]\nNickname=Bob\n");
  EXPECT_EQ(blind.ReadSetting(u"General", u"Nickname", u"none", 32), u"none");
}

}  // namespace
}  // namespace verlume
