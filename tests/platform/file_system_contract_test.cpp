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

INSTANTIATE_TYPED_TEST_SUITE_P(FakeFileSystem, FileSystemContract, FakeWorld);

}  // namespace
}  // namespace verlume
