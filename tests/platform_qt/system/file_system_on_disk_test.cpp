// What files are on every system.
#include "platform/file_system_contract.h"
#include "platform_qt/system/disk_world.h"
#include "platform_qt/system/own_folder.h"
#include "platform_qt/system/system.h"

namespace verlume {
INSTANTIATE_TYPED_TEST_SUITE_P(QtFileSystem, FileSystemContract, qt::DiskWorld);
}  // namespace verlume

namespace verlume::qt {
namespace {

TEST(FoldersOnDiskTest, PathsHaveTheSeparatorsOfTheSystem) {
  const DiskWorld world;
  const QtApplication application(world.folder.path());
  const QtApplication ownSettings(world.folder.path(), world.folder.filePath("own"));
  for (const std::u16string& path : {application.ProgramFolder(), application.SettingsFolder(),
                                     application.HelpFolder(), ownSettings.SettingsFolder()}) {
    EXPECT_NE(path.find(world.files.Separator()), path.npos);
    EXPECT_EQ(path.find(world.files.Separator() == u'/' ? u'\\' : u'/'), path.npos);
  }
}

TEST(FoldersOnDiskTest, TheSettingsLieBesideTheProgramAndLeaveNothingElseThere) {
  const DiskWorld world;
  const QtApplication application(world.folder.path());
  EXPECT_EQ(application.SettingsFolder(), world.Folder());
  EXPECT_TRUE(
      QDir(world.folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TEST(FoldersOnDiskTest, TheSettingsOfAProgramThatCannotBeWrittenBesideLieInTheUsersFolder) {
  const DiskWorld world;
  const std::u16string settings = QtApplication(world.folder.filePath("none")).SettingsFolder();
  EXPECT_TRUE(world.files.IsFolder(settings));
  EXPECT_FALSE(settings.starts_with(world.Folder()));
  QDir().rmdir(ToQt(settings));  // unless it was there, with settings in it
}

TEST(FoldersOnDiskTest, AFolderThatTheUserNamesIsMade) {
  const DiskWorld world;
  const auto made = OwnFolder(world.Folder() + world.files.Separator() + u"Άννα");
  ASSERT_TRUE(made.has_value());
  EXPECT_TRUE(QDir(*made).isEmpty());
  EXPECT_EQ(OwnFolder(world.Folder() + u"/Άννα/").value(), *made);
}

}  // namespace
}  // namespace verlume::qt
