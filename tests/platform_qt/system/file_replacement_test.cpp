#include "platform_qt/system/file_replacement.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/run_time_failure.h"

namespace verlume::qt {
namespace {

class FileReplacementTest : public testing::Test {
 protected:
  static constexpr auto kCommon = ".verlume.new";
  static constexpr auto kHidden = QDir::Files | QDir::Hidden | QDir::System;

  std::string Folder() const { return folder.path().toStdString(); }
  std::string Path(const char* name) const { return Folder() + "/" + name; }
  QStringList Names() const { return QDir(folder.path()).entryList(kHidden); }
  std::string Content(const char* name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
  }
  void Replace(std::string_view bytes) {
    FileReplacement fresh(Folder());
    fresh.File().Write(bytes);
    fresh.TakePlaceOf(Path("a"));
  }

  QTemporaryDir folder;
};

TEST_F(FileReplacementTest, ItStandsBesideTheFileUntilItTakesItsPlace) {
  Replace("old");
  FileReplacement fresh(Folder());
  fresh.File().Write("new");
  EXPECT_EQ(Names(), (QStringList{kCommon, "a"}));
  EXPECT_EQ(Content("a"), "old");
  fresh.TakePlaceOf(Path("a"));
  EXPECT_EQ(Names(), QStringList{"a"});
  EXPECT_EQ(Content("a"), "new");
}

TEST_F(FileReplacementTest, APlaceIsTakenOnlyIfItIsFree) {
  {
    FileReplacement first(Folder());
    first.File().Write("first");
    EXPECT_TRUE(first.TakeFreePlace(Path("a")));
  }
  {
    FileReplacement second(Folder());
    second.File().Write("second");
    EXPECT_FALSE(second.TakeFreePlace(Path("a")));
  }
  EXPECT_EQ(Names(), QStringList{"a"});
  EXPECT_EQ(Content("a"), "first");
}

TEST_F(FileReplacementTest, OneThatTakesNoPlaceGoes) {
  { FileReplacement(Folder()).File().Write("new"); }
  EXPECT_TRUE(Names().isEmpty());
  ASSERT_TRUE(QDir(folder.path()).mkdir("a"));
  EXPECT_THROW(Replace("new"), RunTimeFailure);
  EXPECT_TRUE(Names().isEmpty());
}

TEST_F(FileReplacementTest, TheRemnantOfAKilledCopyGoes) {
  QFile remnant(folder.filePath(kCommon));
  ASSERT_TRUE(remnant.open(QIODevice::WriteOnly));
  remnant.write("much longer than what comes");
  remnant.close();
  ASSERT_EQ(::chmod(Path(kCommon).c_str(), 0600), 0);
  const mode_t mask = ::umask(022);
  Replace("new");
  ::umask(mask);
  EXPECT_EQ(Content("a"), "new");
  EXPECT_EQ(Names(), QStringList{"a"});
  struct stat found;
  ASSERT_EQ(::stat(Path("a").c_str(), &found), 0);
  EXPECT_EQ(found.st_mode & 07777, mode_t{0644}) << "not those of the remnant";
}

TEST_F(FileReplacementTest, TheFileOfACopyAtWorkStays) {
  FileReplacement other(Folder());
  other.File().Write("other");
  Replace("new");
  EXPECT_EQ(Content("a"), "new");
  EXPECT_EQ(Content(kCommon), "other");
  other.TakePlaceOf(Path("a"));
  EXPECT_EQ(Content("a"), "other");
  EXPECT_EQ(Names(), QStringList{"a"});
}

TEST_F(FileReplacementTest, ALinkOfItsNameLeadsNowhere) {
  ASSERT_TRUE(QFile::link("victim", folder.filePath(kCommon)));
  QFile victim(folder.filePath("victim"));
  ASSERT_TRUE(victim.open(QIODevice::WriteOnly));
  Replace("new");
  EXPECT_EQ(Content("a"), "new");
  EXPECT_EQ(Content("victim"), "");
}

}  // namespace
}  // namespace verlume::qt
