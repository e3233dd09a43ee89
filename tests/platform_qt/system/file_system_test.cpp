// What only files of POSIX do.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <csignal>
#include <cstdio>

#include "platform/run_time_failure.h"
#include "platform_qt/system/disk_world.h"
#include "platform_qt/system/unprivileged.h"

namespace verlume::qt {
namespace {

// Limits the size of this process's files: like a disk that becomes full during a write.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit = {bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~SmallDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

class QtFileSystemTest : public testing::Test {
 protected:
  std::u16string Path(std::u16string_view name) const {
    return world.Folder() + u"/" + std::u16string(name);
  }
  QStringList Entries() const {
    return QDir(world.folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::System);
  }
  template <class Operation>
  static std::optional<FailureNumber> FailureOf(Operation operation) {
    try {
      operation();
      return std::nullopt;
    } catch (const RunTimeFailure& failure) {
      return failure.number;
    }
  }
  static mode_t PermissionsOf(std::u16string_view path) {
    struct stat found;
    EXPECT_EQ(::stat(ToQt(path).toUtf8().constData(), &found), 0);
    return found.st_mode & 07777;
  }
  static void SetPermissions(std::u16string_view path, mode_t mode) {
    ASSERT_EQ(::chmod(ToQt(path).toUtf8().constData(), mode), 0);
  }

  DiskWorld world;
  QtFileSystem& files = world.files;
};

TEST_F(QtFileSystemTest, TextIsUtf8) {
  files.ReplaceText(Path(u"a"), u"α");
  files.AppendText(Path(u"a"), u"β");
  EXPECT_EQ(files.ReadBytes(Path(u"a")), "\xCE\xB1\xCE\xB2");
}

TEST_F(QtFileSystemTest, BytesThatAreNoUtf8AreReadAsGreek) {
  files.ReplaceBytes(Path(u"old"), "\xE1\xE2\xE3");
  EXPECT_EQ(files.ReadText(Path(u"old")), u"αβγ");
}

TEST_F(QtFileSystemTest, ReplacingLeavesNothingBeside) {
  files.ReplaceText(Path(u"a"), u"old");
  files.ReplaceText(Path(u"a"), u"new");
  EXPECT_EQ(Entries(), QStringList{"a"});
}

TEST_F(QtFileSystemTest, ReplacingMakesANewFile) {
  files.ReplaceText(Path(u"a"), u"old");
  QFile open(ToQt(Path(u"a")));
  ASSERT_TRUE(open.open(QIODevice::ReadOnly));
  files.ReplaceText(Path(u"a"), u"new");
  EXPECT_EQ(open.readAll(), "old") << "who reads the old file still has it whole";
}

TEST_F(QtFileSystemTest, ReplacingKeepsThePermissions) {
  files.ReplaceText(Path(u"a"), u"old");
  SetPermissions(Path(u"a"), 0640);
  files.ReplaceText(Path(u"a"), u"new");
  EXPECT_EQ(PermissionsOf(Path(u"a")), mode_t{0640});
}

TEST_F(QtFileSystemTest, NewFilesHaveTheUsersUsualPermissions) {
  const mode_t mask = ::umask(027);
  files.ReplaceText(Path(u"a"), u"x");
  ::umask(mask);
  EXPECT_EQ(PermissionsOf(Path(u"a")), mode_t{0640});
}

TEST_F(QtFileSystemTest, PrivateFilesAreTheirOwnersAlone) {
  const mode_t mask = ::umask(0);
  files.ReplaceText(Path(u"a"), u"x", Readers::OwnerOnly);
  files.ReplaceText(Path(u"a"), u"y", Readers::OwnerOnly);
  files.AppendText(Path(u"b"), u"x");
  ::umask(mask);
  EXPECT_EQ(PermissionsOf(Path(u"a")), mode_t{0600});
  EXPECT_EQ(PermissionsOf(Path(u"b")), mode_t{0600});
}

TEST_F(QtFileSystemTest, FilesThatExistKeepTheirPermissions) {
  for (const auto* name : {u"a", u"b"}) {
    files.ReplaceText(Path(name), u"x");
    SetPermissions(Path(name), 0644);
  }
  files.ReplaceText(Path(u"a"), u"y", Readers::OwnerOnly);
  files.AppendText(Path(u"b"), u"y");
  EXPECT_EQ(PermissionsOf(Path(u"a")), mode_t{0644});
  EXPECT_EQ(PermissionsOf(Path(u"b")), mode_t{0644});
}

TEST_F(QtFileSystemTest, ReplacingFollowsLinks) {
  files.ReplaceText(Path(u"file"), u"old");
  ASSERT_TRUE(QFile::link("file", ToQt(Path(u"link"))));
  ASSERT_TRUE(QFile::link(ToQt(Path(u"link")), ToQt(Path(u"second"))));
  files.ReplaceText(Path(u"second"), u"new");
  EXPECT_EQ(files.ReadText(Path(u"file")), u"new");
  EXPECT_TRUE(QFileInfo(ToQt(Path(u"second"))).isSymLink());
}

TEST_F(QtFileSystemTest, ReplacingMakesTheFileThatALinkPromises) {
  ASSERT_TRUE(QFile::link("file", ToQt(Path(u"link"))));
  files.ReplaceText(Path(u"link"), u"new");
  EXPECT_EQ(files.ReadText(Path(u"file")), u"new");
}

TEST_F(QtFileSystemTest, LinksInACircleLeadNowhere) {
  ASSERT_TRUE(QFile::link("b", ToQt(Path(u"a"))));
  ASSERT_TRUE(QFile::link("a", ToQt(Path(u"b"))));
  EXPECT_FALSE(files.IsFile(Path(u"a")));
  EXPECT_EQ(FailureOf([&] { files.ReplaceText(Path(u"a"), u"x"); }),
            FailureNumber::PathFileAccessError);
  EXPECT_EQ(FailureOf([&] { files.ReadText(Path(u"a")); }), FailureNumber::PathFileAccessError);
}

TEST_F(QtFileSystemTest, AFullDiskLeavesTheOldContent) {
  files.ReplaceText(Path(u"a"), u"old");
  std::optional<FailureNumber> failure;
  {
    const SmallDisk disk(5);
    failure = FailureOf([&] { files.ReplaceText(Path(u"a"), u"much longer"); });
  }
  EXPECT_EQ(failure, FailureNumber::DiskFull);
  EXPECT_EQ(files.ReadText(Path(u"a")), u"old");
  EXPECT_EQ(Entries(), QStringList{"a"});
}

TEST_F(QtFileSystemTest, AFullDiskLeavesNothingOfAnAppendedText) {
  files.AppendText(Path(u"log"), u"old");
  std::optional<FailureNumber> failure;
  {
    const SmallDisk disk(5);
    failure = FailureOf([&] { files.AppendText(Path(u"log"), u"much longer"); });
  }
  EXPECT_EQ(failure, FailureNumber::DiskFull);
  EXPECT_EQ(files.ReadText(Path(u"log")), u"old");
}

TEST_F(QtFileSystemTest, ForbiddenFilesAreDenied) {
  files.ReplaceText(Path(u"a"), u"old");
  SetPermissions(world.Folder(), 0777);
  SetPermissions(Path(u"a"), 0);
  const auto denied = FailureNumber::PermissionDenied;
  const Unprivileged user;
  EXPECT_EQ(FailureOf([&] { files.ReadText(Path(u"a")); }), denied);
  EXPECT_EQ(FailureOf([&] { files.AppendText(Path(u"a"), u"x"); }), denied);
  EXPECT_EQ(FailureOf([&] { files.ReplaceText(Path(u"a"), u"x"); }), denied);
}

TEST_F(QtFileSystemTest, ForbiddenFoldersAreDenied) {
  files.ReplaceText(Path(u"a.rtf"), u"old");
  SetPermissions(world.Folder(), 0555);
  const auto denied = FailureNumber::PermissionDenied;
  {
    const Unprivileged user;
    EXPECT_EQ(FailureOf([&] { files.ReplaceText(Path(u"new"), u"x"); }), denied);
    EXPECT_EQ(FailureOf([&] { files.AppendText(Path(u"new"), u"x"); }), denied);
    EXPECT_EQ(FailureOf([&] { files.Delete(Path(u"a.rtf")); }), denied);
  }
  SetPermissions(world.Folder(), 0311);
  {
    const Unprivileged user;
    EXPECT_EQ(FailureOf([&] { files.ListFiles(world.Folder(), u".rtf"); }), denied);
  }
  SetPermissions(world.Folder(), 0700);
}

TEST_F(QtFileSystemTest, PipesAndDevicesAreNoFiles) {
  ASSERT_EQ(::mkfifo(ToQt(Path(u"pipe")).toUtf8().constData(), 0666), 0);
  const auto wrong = FailureNumber::PathFileAccessError;
  for (const std::u16string& path : {Path(u"pipe"), std::u16string(u"/dev/null")}) {
    EXPECT_FALSE(files.IsFile(path));
    EXPECT_EQ(FailureOf([&] { files.ReadText(path); }), wrong);
    EXPECT_EQ(FailureOf([&] { files.AppendText(path, u"x"); }), wrong);
    EXPECT_EQ(FailureOf([&] { files.ReplaceText(path, u"x"); }), wrong);
  }
}

TEST_F(QtFileSystemTest, PathsThroughFilesAndTooLongNamesAreNoFiles) {
  files.ReplaceText(Path(u"a"), u"x");
  for (const std::u16string& path : {Path(u"a/b"), Path(std::u16string(300, u'x'))}) {
    EXPECT_EQ(FailureOf([&] { files.ReadText(path); }), FailureNumber::PathFileAccessError);
    EXPECT_EQ(FailureOf([&] { files.ReplaceText(path, u"x"); }),
              FailureNumber::PathFileAccessError);
  }
}

TEST_F(QtFileSystemTest, NamesThatAreNoUtf8AreNotListed) {
  const std::string path = world.folder.path().toStdString() + "/\xE1.rtf";
  std::fclose(std::fopen(path.c_str(), "w"));
  files.ReplaceText(Path(u"a.rtf"), u"x");
  EXPECT_EQ(files.ListFiles(world.Folder(), u".rtf"), std::vector<std::u16string>{u"a.rtf"});
  EXPECT_EQ(std::remove(path.c_str()), 0);
}

TEST_F(QtFileSystemTest, LinksToFilesAreListedAndBrokenOnesAreNot) {
  files.ReplaceText(Path(u"file"), u"x");
  ASSERT_TRUE(QFile::link("file", ToQt(Path(u"link.rtf"))));
  ASSERT_TRUE(QFile::link("missing", ToQt(Path(u"broken.rtf"))));
  EXPECT_EQ(files.ListFiles(world.Folder(), u".rtf"), std::vector<std::u16string>{u"link.rtf"});
}

}  // namespace
}  // namespace verlume::qt
