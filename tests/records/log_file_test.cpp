#include "records/log_file.h"

#include <gtest/gtest.h>

#include "platform/run_time_failure.h"
#include "platform_fake/fake_file_system.h"

namespace verlume {
namespace {

class LogFileStemTest : public testing::Test {
 protected:
  std::u16string StemOf(std::u16string_view nickname) const {
    return LogFileStemOf(nickname, files);
  }

  fake::FakeFileSystem files;
};

TEST_F(LogFileStemTest, EachForbiddenCharacterBecomesAnUnderscore) {
  EXPECT_EQ(StemOf(u"\\/:*?\"<>|"), u"_________");
  EXPECT_EQ(StemOf(u"Νίκος. the 1st"), u"Νίκος. the 1st");
}

TEST_F(LogFileStemTest, NicknamesThatDifferInForbiddenCharactersShareAStem) {
  EXPECT_EQ(StemOf(u"a/b"), u"a_b");
  EXPECT_EQ(StemOf(u"a:b"), u"a_b");
}

TEST_F(LogFileStemTest, ControlCharacterBecomesAnUnderscore) {
  EXPECT_EQ(StemOf(std::u16string(u"a\0b\nc\u0085d", 7)), u"a_b_c_d");
}

TEST_F(LogFileStemTest, NothingAndTheNamesOfFoldersBecomeAName) {
  EXPECT_EQ(StemOf(u""), u"_");
  EXPECT_EQ(StemOf(u"."), u"_");
  EXPECT_EQ(StemOf(u".."), u"_");
  EXPECT_EQ(StemOf(u"..."), u"...");
}

TEST_F(LogFileStemTest, WhatIsNotSeenBecomesAnUnderscore) {
  EXPECT_EQ(StemOf(u"\u202Eb\u2028ob\u200F"), u"_b_ob_");
  EXPECT_EQ(StemOf(u"a\xD83D"), u"a_");
}

TEST_F(LogFileStemTest, OverlongNicknameIsCutToWhatAFileNameHolds) {
  const std::u16string longestOfOurs(32, u'€');
  EXPECT_EQ(StemOf(longestOfOurs), longestOfOurs);
  EXPECT_EQ(StemOf(std::u16string(4000, u'€')), longestOfOurs);
  EXPECT_EQ(StemOf(std::u16string(31, u'b') + u"\U0001F600"), std::u16string(31, u'b'));
}

TEST_F(LogFileStemTest, NameOfADeviceIsChangedWhereThereAreSuch) {
  EXPECT_EQ(StemOf(u"CON"), u"CON");
  files.hasDevices = true;
  EXPECT_EQ(StemOf(u"CON"), u"CON_");
  EXPECT_EQ(StemOf(u"nul.of.Bob"), u"nul_.of.Bob");
  EXPECT_EQ(StemOf(u"Conny"), u"Conny");
}

class FreeLogPathTest : public testing::Test {
 protected:
  FreeLogPathTest() { files.MakeFolder(u"/logs"); }
  std::u16string FreePath() const { return FreeLogPath(u"/logs/todo.txt", files); }

  fake::FakeFileSystem files;
};

TEST_F(FreeLogPathTest, MissingFileIsMade) {
  EXPECT_EQ(FreePath(), u"/logs/todo.txt");
}

TEST_F(FreeLogPathTest, EmptyFileAndLogAreAppendedTo) {
  for (const auto* content : {"", "[2026-03-07_09:05:30]***** Active connection.\r\n",
                              "[1999-12-31_23:59:59]<Bob>hello"}) {
    files.files[u"/logs/todo.txt"] = content;
    EXPECT_EQ(FreePath(), u"/logs/todo.txt") << content;
  }
}

TEST_F(FreeLogPathTest, FileThatDoesNotBeginLikeALogIsLeftAlone) {
  for (const auto* content :
       {"buy milk\r\n", "\r\n[2026-03-07_09:05:30]", "[", "[2026-03-07]", "[2026-03-07_09:05:30",
        "[2026-03-07 09:05:30]", "[2026-03-0x_09:05:30]", " [2026-03-07_09:05:30]"}) {
    files.files[u"/logs/todo.txt"] = content;
    EXPECT_EQ(FreePath(), u"/logs/todo (2).txt") << content;
  }
}

TEST_F(FreeLogPathTest, NumbersGoOnUntilALogOrNothingIsFound) {
  files.files[u"/logs/todo.txt"] = files.files[u"/logs/todo (2).txt"] = "buy milk\r\n";
  EXPECT_EQ(FreePath(), u"/logs/todo (3).txt");
  files.files[u"/logs/todo (3).txt"] = "[2026-03-07_09:05:30]<todo>hello\r\n";
  EXPECT_EQ(FreePath(), u"/logs/todo (3).txt");
  files.files[u"/logs/todo (3).txt"] = "buy bread\r\n";
  EXPECT_EQ(FreePath(), u"/logs/todo (4).txt");
}

TEST_F(FreeLogPathTest, FileThatMayNotBeReadIsLeftAlone) {
  files.files[u"/logs/todo.txt"] = "";
  files.readsFail = FailureNumber::PermissionDenied;
  EXPECT_EQ(FreePath(), u"/logs/todo (2).txt");
  files.readsFail = FailureNumber::PathFileAccessError;
  EXPECT_THROW(FreePath(), RunTimeFailure);
}

}  // namespace
}  // namespace verlume
