// The contract of every FileSystem, as tests that run on each implementation.
//
// A World has `FileSystem& files`, `std::u16string Folder()` (an empty folder) and
// `MakeFolder(path)`.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/run_time_failure.h"

namespace verlume {

template <class World>
class FileSystemContract : public testing::Test {
 protected:
  std::u16string Path(std::u16string_view name) {
    return world.Folder() + files.Separator() + std::u16string(name);
  }
  template <class Operation>
  static void ExpectFailure(FailureNumber number, Operation operation) {
    try {
      operation();
      ADD_FAILURE() << "nothing was thrown";
    } catch (const RunTimeFailure& failure) {
      EXPECT_EQ(failure.number, number);
    }
  }

  World world;
  FileSystem& files = world.files;
};

TYPED_TEST_SUITE_P(FileSystemContract);

TYPED_TEST_P(FileSystemContract, TellsFilesFromFolders) {
  const std::u16string folder = this->world.Folder();
  const std::u16string file = this->Path(u"a.txt");
  this->files.ReplaceText(file, u"x");
  EXPECT_TRUE(this->files.IsFolder(folder));
  EXPECT_TRUE(this->files.IsFolder(folder + this->files.Separator()));
  EXPECT_FALSE(this->files.IsFile(folder));
  EXPECT_TRUE(this->files.IsFile(file));
  EXPECT_FALSE(this->files.IsFolder(file));
  for (const std::u16string& path : {std::u16string(), this->Path(u"missing")}) {
    EXPECT_FALSE(this->files.IsFile(path));
    EXPECT_FALSE(this->files.IsFolder(path));
  }
}

TYPED_TEST_P(FileSystemContract, TextComesBackAsItWasWritten) {
  const std::u16string text = u"plain αβγ 日本 \xD83D\xDE00\r\nnext";
  this->files.ReplaceText(this->Path(u"Όνομα.txt"), text);
  EXPECT_EQ(this->files.ReadText(this->Path(u"Όνομα.txt")), text);
}

TYPED_TEST_P(FileSystemContract, ByteOrderMarkIsNoPartOfTheText) {
  this->files.ReplaceBytes(this->Path(u"marked"), "\xEF\xBB\xBFone");
  EXPECT_EQ(this->files.ReadText(this->Path(u"marked")), u"one");
  EXPECT_EQ(this->files.ReadBytes(this->Path(u"marked")), "\xEF\xBB\xBFone");
}

TYPED_TEST_P(FileSystemContract, LoneSurrogatesAreWrittenAsSomethingReadable) {
  const std::u16string odd = {u'a', 0xD800, u'b', 0xDC00};
  this->files.ReplaceText(this->Path(u"a"), odd);
  EXPECT_EQ(this->files.ReadText(this->Path(u"a")), u"a?b?");
}

TYPED_TEST_P(FileSystemContract, APathThatIsNoTextNamesNothing) {
  for (const std::u16string& name : {std::u16string{u'a', 0xD800}, std::u16string{u'a', 0}}) {
    const std::u16string path = this->Path(name);
    EXPECT_FALSE(this->files.IsFile(path));
    EXPECT_FALSE(this->files.IsFolder(path));
    this->ExpectFailure(FailureNumber::PathFileAccessError,
                        [&] { this->files.ReplaceText(path, u"x"); });
  }
}

TYPED_TEST_P(FileSystemContract, OnlyTheNameOfADeviceIsKept) {
  EXPECT_FALSE(this->files.IsNameOfDevice(u"console.txt"));
  EXPECT_FALSE(this->files.IsNameOfDevice(u"Όνομα.txt"));
  const std::u16string path = this->Path(u"con.txt");
  if (this->files.IsNameOfDevice(u"con.txt")) {
    this->ExpectFailure(FailureNumber::PathFileAccessError,
                        [&] { this->files.ReplaceText(path, u"x"); });
    EXPECT_FALSE(this->files.IsFile(path));
  } else {
    this->files.ReplaceText(path, u"x");
    EXPECT_TRUE(this->files.IsFile(path));
  }
}

TYPED_TEST_P(FileSystemContract, BytesComeBackAsTheyWereWritten) {
  const std::string bytes("\0\xFF\r\n\x1A", 5);
  this->files.ReplaceBytes(this->Path(u"b"), bytes);
  EXPECT_EQ(this->files.ReadBytes(this->Path(u"b")), bytes);
  this->files.ReplaceBytes(this->Path(u"b"), "");
  EXPECT_EQ(this->files.ReadBytes(this->Path(u"b")), "");
}

TYPED_TEST_P(FileSystemContract, ASizeIsTheNumberOfBytes) {
  this->files.ReplaceBytes(this->Path(u"a"), std::string("\xCE\xB1\xFF\0\r\n", 6));
  EXPECT_EQ(this->files.SizeOf(this->Path(u"a")), 6u);
  this->files.ReplaceBytes(this->Path(u"a"), "");
  EXPECT_EQ(this->files.SizeOf(this->Path(u"a")), 0u);
}

TYPED_TEST_P(FileSystemContract, TheStartOfAFileIsItsFirstBytes) {
  this->files.ReplaceBytes(this->Path(u"a"), "\xEF\xBB\xBFone");
  EXPECT_EQ(this->files.ReadStart(this->Path(u"a"), 4), "\xEF\xBB\xBFo");
  EXPECT_EQ(this->files.ReadStart(this->Path(u"a"), 100), "\xEF\xBB\xBFone");
  EXPECT_EQ(this->files.ReadStart(this->Path(u"a"), 0), "");
  this->ExpectFailure(FailureNumber::FileNotFound,
                      [&] { this->files.ReadStart(this->Path(u"missing"), 1); });
}

TYPED_TEST_P(FileSystemContract, AppendingMakesTheFileAndKeepsWhatItHolds) {
  this->files.AppendText(this->Path(u"log"), u"one\r\n");
  this->files.AppendText(this->Path(u"log"), u"δύο\r\n");
  EXPECT_EQ(this->files.ReadText(this->Path(u"log")), u"one\r\nδύο\r\n");
}

TYPED_TEST_P(FileSystemContract, DeletedFilesAreGone) {
  this->files.ReplaceText(this->Path(u"a"), u"x");
  this->files.Delete(this->Path(u"a"));
  EXPECT_FALSE(this->files.IsFile(this->Path(u"a")));
}

TYPED_TEST_P(FileSystemContract, ListsTheOrdinaryFilesOfAnExtension) {
  for (const auto* name : {u"a.rtf", u"B.RTF", u"άλφα.Rtf", u"c.txt", u"rtf", u"d.rtf.bak"}) {
    this->files.ReplaceText(this->Path(name), u"x");
  }
  this->world.MakeFolder(this->Path(u"folder.rtf"));
  EXPECT_THAT(this->files.ListFiles(this->world.Folder(), u".rtf"),
              testing::UnorderedElementsAre(u"a.rtf", u"B.RTF", u"άλφα.Rtf"));
  EXPECT_THAT(this->files.ListFiles(this->world.Folder() + this->files.Separator(), u".txt"),
              testing::ElementsAre(u"c.txt"));
}

TYPED_TEST_P(FileSystemContract, NothingIsListedOfWhatIsNoFolder) {
  this->files.ReplaceText(this->Path(u"file"), u"x");
  for (const auto* name : {u"missing", u"file"}) {
    this->ExpectFailure(FailureNumber::PathNotFound,
                        [&] { this->files.ListFiles(this->Path(name), u".rtf"); });
  }
}

TYPED_TEST_P(FileSystemContract, MissingFilesAreNotFound) {
  const std::u16string path = this->Path(u"missing");
  const auto number = FailureNumber::FileNotFound;
  this->ExpectFailure(number, [&] { this->files.ReadText(path); });
  this->ExpectFailure(number, [&] { this->files.ReadBytes(path); });
  this->ExpectFailure(number, [&] { this->files.SizeOf(path); });
  this->ExpectFailure(number, [&] { this->files.Delete(path); });
}

TYPED_TEST_P(FileSystemContract, PathsThroughMissingFoldersAreNotFound) {
  const std::u16string path = this->Path(u"missing") + this->files.Separator() + u"a";
  const auto number = FailureNumber::PathNotFound;
  this->ExpectFailure(number, [&] { this->files.SizeOf(path); });
  this->ExpectFailure(number, [&] { this->files.ReadText(path); });
  this->ExpectFailure(number, [&] { this->files.ReplaceText(path, u"x"); });
  this->ExpectFailure(number, [&] { this->files.AppendText(path, u"x"); });
  this->ExpectFailure(number, [&] { this->files.Delete(path); });
}

TYPED_TEST_P(FileSystemContract, FoldersAreNoFiles) {
  const std::u16string path = this->Path(u"folder");
  this->world.MakeFolder(path);
  const auto number = FailureNumber::PathFileAccessError;
  this->ExpectFailure(number, [&] { this->files.SizeOf(path); });
  this->ExpectFailure(number, [&] { this->files.ReadText(path); });
  this->ExpectFailure(number, [&] { this->files.ReplaceText(path, u"x"); });
  this->ExpectFailure(number, [&] { this->files.AppendText(path, u"x"); });
  this->ExpectFailure(number, [&] { this->files.Delete(path); });
  EXPECT_TRUE(this->files.IsFolder(path));
}

REGISTER_TYPED_TEST_SUITE_P(FileSystemContract, TellsFilesFromFolders, TextComesBackAsItWasWritten,
                            ByteOrderMarkIsNoPartOfTheText,
                            LoneSurrogatesAreWrittenAsSomethingReadable,
                            APathThatIsNoTextNamesNothing, OnlyTheNameOfADeviceIsKept,
                            BytesComeBackAsTheyWereWritten, ASizeIsTheNumberOfBytes,
                            TheStartOfAFileIsItsFirstBytes,
                            AppendingMakesTheFileAndKeepsWhatItHolds, DeletedFilesAreGone,
                            ListsTheOrdinaryFilesOfAnExtension, NothingIsListedOfWhatIsNoFolder,
                            MissingFilesAreNotFound, PathsThroughMissingFoldersAreNotFound,
                            FoldersAreNoFiles);

}  // namespace verlume
