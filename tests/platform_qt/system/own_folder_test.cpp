#include "platform_qt/system/own_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform_qt/convert/text.h"
#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {
namespace {

class OwnFolderTest : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
  static std::optional<QString> Make(const QString& path) { return OwnFolder(FromQt(path)); }

  QTemporaryDir folder;
};

TEST_F(OwnFolderTest, IsMadeWithThoseThatItLiesIn) {
  EXPECT_EQ(Make(Path("a/b/δεύτερος")), Path("a/b/δεύτερος"));
  EXPECT_TRUE(QDir(Path("a/b/δεύτερος")).exists());
}

TEST_F(OwnFolderTest, AnotherUserMayNotLookIntoANewOne) {
  ASSERT_TRUE(Make(Path("new")));
  struct stat found;
  ASSERT_EQ(::stat(Path("new").toUtf8().constData(), &found), 0);
  EXPECT_EQ(found.st_mode & 07777, 0700u);
}

TEST_F(OwnFolderTest, OneThatIsThereStaysAsItIs) {
  ASSERT_EQ(::chmod(folder.path().toUtf8().constData(), 0750), 0);
  EXPECT_EQ(Make(folder.path() + "/./x/.."), folder.path());
  struct stat found;
  ASSERT_EQ(::stat(folder.path().toUtf8().constData(), &found), 0);
  EXPECT_EQ(found.st_mode & 07777, 0750u);
}

TEST_F(OwnFolderTest, ARelativePathBecomesAbsolute) {
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(folder.path()));
  const auto made = Make("second");
  QDir::setCurrent(before);
  EXPECT_EQ(made, Path("second"));
}

TEST_F(OwnFolderTest, WhatCannotBeAFolderIsRefused) {
  QFile file(Path("file"));
  ASSERT_TRUE(file.open(QFile::WriteOnly));
  EXPECT_EQ(Make(Path("file")), std::nullopt);
  EXPECT_EQ(Make(Path("file/inner")), std::nullopt);
  EXPECT_EQ(Make("/proc/verlume"), std::nullopt);
  EXPECT_EQ(Make(""), std::nullopt);
  EXPECT_EQ(Make(Path("x\uFFFDy")), std::nullopt) << "a name that was no text";
  EXPECT_EQ(Make(Path("x") + QChar(0xD800)), std::nullopt);
  EXPECT_EQ(Make(folder.path() + '/' + QString(300, 'x')), std::nullopt);
}

TEST_F(OwnFolderTest, AFolderOfOthersIsRefused) {
  ASSERT_EQ(::chmod(folder.path().toUtf8().constData(), 0555), 0);
  const Unprivileged user;
  EXPECT_EQ(Make(folder.path()), std::nullopt);
  EXPECT_EQ(Make(Path("inner")), std::nullopt);
}

}  // namespace
}  // namespace verlume::qt
