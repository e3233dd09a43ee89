#include "platform/file_system_contract.h"

#include "platform_fake/fake_file_system.h"

namespace verlume {
namespace {

struct FakeWorld {
  FakeWorld() { files.MakeFolder(Folder()); }
  std::u16string Folder() const { return u"/home/anna"; }
  void MakeFolder(std::u16string_view path) { files.MakeFolder(path); }

  fake::FakeFileSystem files;
};

struct WorldWithDevices : FakeWorld {
  WorldWithDevices() { files.hasDevices = true; }
};

INSTANTIATE_TYPED_TEST_SUITE_P(FakeFileSystem, FileSystemContract, FakeWorld);
INSTANTIATE_TYPED_TEST_SUITE_P(FakeFileSystemWithDevices, FileSystemContract, WorldWithDevices);

TEST(FakeFileSystemTest, TextIsUtf8AndOtherBytesAreReadAsGreek) {
  FakeWorld world;
  world.files.ReplaceText(u"/home/anna/a", u"α");
  EXPECT_EQ(world.files.ReadBytes(u"/home/anna/a"), "\xCE\xB1");
  world.files.ReplaceBytes(u"/home/anna/old", "\xE1\xE2\xE3");
  EXPECT_EQ(world.files.ReadText(u"/home/anna/old"), u"αβγ");
}

}  // namespace
}  // namespace verlume
