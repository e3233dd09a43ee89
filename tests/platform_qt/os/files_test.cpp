#include "platform_qt/os/files.h"

#include <gmock/gmock.h>

#include "platform/run_time_failure.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

template <typename Operation>
std::optional<FailureNumber> NumberOf(Operation operation) try {
  operation();
  return std::nullopt;
} catch (const RunTimeFailure& failure) {
  return failure.number;
}

class FilesTest : public testing::Test {
 protected:
  std::string Make(const std::u8string& name, const std::string& content = "x") const {
    OpenFile(folder.Path(name), Opening::ToMake).Write(content);
    return folder.Path(name);
  }
  static std::string Content(const std::string& path) {
    return OpenFile(path, Opening::ToRead).ReadAll();
  }

  TemporaryFolder folder;
};

TEST_F(FilesTest, WhatNoFileCanBeCalled) {
  for (const char16_t* name : {u"a", u"Ωμέγα.rtf", u".ini", u"a b", u"…"}) {
    EXPECT_TRUE(CanBeFileName(name)) << testing::PrintToString(std::u16string(name));
  }
  for (const char16_t* name : {u"", u".", u"..", u"a/b"}) {
    EXPECT_FALSE(CanBeFileName(name)) << testing::PrintToString(std::u16string(name));
  }
  EXPECT_FALSE(CanBeFileName(std::u16string_view(u"a\0b", 3)));
}

TEST_F(FilesTest, WhatIsAtAPath) {
  EXPECT_EQ(KindOf(folder.Path()), FileKind::Folder);
  EXPECT_EQ(KindOf(Make(u8"Αρχείο.txt")), FileKind::File);
  EXPECT_EQ(KindOf(folder.Path(u8"none")), FileKind::Nothing);
  EXPECT_EQ(KindOf(folder.Path(u8"none") + "/none"), FileKind::Nothing);
  EXPECT_EQ(KindOf(""), FileKind::Nothing);
  EXPECT_EQ(KindOf("Q:\\logs\\"), FileKind::Nothing) << "of another system";
  EXPECT_TRUE(IsTaken(folder.Path(u8"Αρχείο.txt")));
  EXPECT_FALSE(IsTaken(folder.Path(u8"none")));
}

TEST_F(FilesTest, TheFolderOfAPath) {
  EXPECT_EQ(FolderOf(folder.Path(u8"a")), folder.Path());
  EXPECT_EQ(FolderOf("a"), ".");
  EXPECT_EQ(FolderOf("/a"), "/");
}

TEST_F(FilesTest, TheSizeOfAFile) {
  EXPECT_EQ(FileSize(Make(u8"a", "1234567")), 7u);
  EXPECT_EQ(FileSize(Make(u8"empty", "")), 0u);
  EXPECT_EQ(NumberOf([this] { FileSize(folder.Path()); }), FailureNumber::PathFileAccessError);
  EXPECT_EQ(NumberOf([this] { FileSize(folder.Path(u8"b")); }), FailureNumber::FileNotFound);
  EXPECT_EQ(NumberOf([this] { FileSize(folder.Path(u8"b") + "/c"); }), FailureNumber::PathNotFound);
}

TEST_F(FilesTest, TheFilesInAFolderWithoutItsFolders) {
  EXPECT_THAT(FilesIn(folder.Path()), IsEmpty());
  Make(u8"a.rtf");
  Make(u8"Ωμέγα.rtf");
  folder.MakeFolder(u8"folder.rtf");
  EXPECT_THAT(FilesIn(folder.Path()), UnorderedElementsAre("a.rtf", "Ωμέγα.rtf"));
  EXPECT_THROW(FilesIn(folder.Path(u8"none")), RunTimeFailure);
}

TEST_F(FilesTest, WhetherAFolderCanBeWrittenToIsFoundOutWithoutATrace) {
  EXPECT_TRUE(CanMakeFilesIn(folder.Path()));
  EXPECT_THAT(FilesIn(folder.Path()), IsEmpty());
  EXPECT_FALSE(CanMakeFilesIn(folder.Path(u8"none")));
  EXPECT_FALSE(CanMakeFilesIn(Make(u8"file")));
  EXPECT_FALSE(CanMakeFilesIn(""));
}

TEST_F(FilesTest, AFileThatIsThereCanBeWrittenTo) {
  EXPECT_TRUE(CanWriteTo(Make(u8"a")));
  EXPECT_FALSE(CanWriteTo(folder.Path(u8"none")));
}

TEST_F(FilesTest, AMovedFileReplacesTheOther) {
  const std::string from = Make(u8"new", "new");
  const std::string to = Make(u8"old", "old");
  MoveInto(from, to);
  EXPECT_EQ(Content(to), "new");
  EXPECT_THAT(FilesIn(folder.Path()), ElementsAre("old"));
}

TEST_F(FilesTest, AFileIsMovedToAFreePathOnlyIfItIsFree) {
  const std::string from = Make(u8"new", "new");
  const std::string to = Make(u8"old", "old");
  EXPECT_FALSE(MoveIntoFree(from, to));
  EXPECT_EQ(Content(to), "old");
  EXPECT_TRUE(MoveIntoFree(from, folder.Path(u8"free")));
  EXPECT_EQ(Content(folder.Path(u8"free")), "new");
  EXPECT_FALSE(IsTaken(from));
  EXPECT_THROW((void)MoveIntoFree(from, folder.Path(u8"other")), RunTimeFailure);
}

TEST_F(FilesTest, AFileCanBeMovedWhileItIsOpen) {
  const std::string to = Make(u8"old", "old");
  OpenFile file(folder.Path(u8"new"), Opening::ToMake);
  file.Write("new");
  ASSERT_TRUE(file.TryToLock());
  MoveInto(folder.Path(u8"new"), to);
  EXPECT_EQ(Content(to), "new");
}

TEST_F(FilesTest, NoFileReplacesAFolder) {
  const std::string from = Make(u8"new");
  folder.MakeFolder(u8"folder");
  EXPECT_EQ(NumberOf([&] { MoveInto(from, folder.Path(u8"folder")); }),
            FailureNumber::PathFileAccessError);
  EXPECT_FALSE(TryToRename(from, folder.Path(u8"folder")));
  EXPECT_EQ(Content(from), "x");
}

TEST_F(FilesTest, ARemovedFileIsGone) {
  RemoveFile(Make(u8"a"));
  EXPECT_EQ(KindOf(folder.Path(u8"a")), FileKind::Nothing);
  EXPECT_EQ(NumberOf([this] { RemoveFile(folder.Path(u8"a")); }), FailureNumber::FileNotFound);
  EXPECT_FALSE(TryToRemove(folder.Path(u8"a")));
  EXPECT_TRUE(TryToRemove(Make(u8"b")));
}

TEST_F(FilesTest, ALongPathIsOneLikeAnyOther) {
  const std::u8string name(200, u8'a');
  folder.MakeFolder(name);
  const std::string path = folder.Path(name) + "/" + std::string(200, 'b');
  OpenFile(path, Opening::ToMake).Write("far");
  EXPECT_EQ(Content(path), "far");
  EXPECT_EQ(KindOf(path), FileKind::File);
  EXPECT_THAT(FilesIn(folder.Path(name)), ElementsAre(std::string(200, 'b')));
  RemoveFile(path);
  EXPECT_EQ(KindOf(path), FileKind::Nothing);
}

TEST_F(FilesTest, OnlyWhatIsThereIsWritable) {
  EXPECT_EQ(NumberOf([this] { CheckWritable(Make(u8"a")); }), std::nullopt);
  EXPECT_EQ(NumberOf([this] { CheckWritable(folder.Path(u8"b")); }), FailureNumber::FileNotFound);
}

}  // namespace
}  // namespace verlume::qt
