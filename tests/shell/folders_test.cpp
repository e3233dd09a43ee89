#include "shell/folders.h"

#include <gtest/gtest.h>

#include "platform_fake/fake_file_system.h"

namespace verlume {
namespace {

TEST(FoldersTest, SeparatorIsAppendedOnlyWhereItIsMissing) {
  EXPECT_EQ(WithTrailingSeparator(u"/macros", u'/'), u"/macros/");
  EXPECT_EQ(WithTrailingSeparator(u"/macros/", u'/'), u"/macros/");
  EXPECT_EQ(WithTrailingSeparator(u"C:\\macros", u'\\'), u"C:\\macros\\");
  EXPECT_EQ(WithTrailingSeparator(u"C:/macros/", u'\\'), u"C:/macros/");
  EXPECT_EQ(WithTrailingSeparator(u"/a\\", u'/'), u"/a\\/");
  EXPECT_EQ(WithTrailingSeparator(u"", u'/'), u"/");
}

TEST(FoldersTest, OnlyADirectoryIsAFolder) {
  fake::FakeFileSystem files;
  files.MakeFolder(u"/macros");
  files.files[u"/macros/file"] = "";
  EXPECT_TRUE(FolderExists(files, u"/macros"));
  EXPECT_TRUE(FolderExists(files, u"/macros/"));
  EXPECT_FALSE(FolderExists(files, u"/macros/file"));
  EXPECT_FALSE(FolderExists(files, u"/elsewhere"));
  EXPECT_FALSE(FolderExists(files, u""));
}

}  // namespace
}  // namespace verlume
