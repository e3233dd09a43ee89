// What goes wrong with files only on Windows.
#include <windows.h>

#include <gmock/gmock.h>

#include "platform/run_time_failure.h"
#include "platform_qt/os/errors_windows.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/handle_windows.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/paths_windows.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

template <typename Operation>
std::optional<FailureNumber> FailureOf(Operation operation) try {
  operation();
  return std::nullopt;
} catch (const RunTimeFailure& failure) {
  return failure.number;
}

class WindowsErrorsTest : public testing::Test {
 protected:
  WindowsErrorsTest() { OpenFile(path, Opening::ToMake).Write("old"); }

  // As a program that lets nobody else at the file.
  Handle Hold() const {
    return Handle(::CreateFileW(NativePath(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                0, nullptr));
  }
  std::string Content() const { return OpenFile(path, Opening::ToRead).ReadAll(); }

  TemporaryFolder folder;
  std::string path = folder.Path(u8"a");
};

TEST_F(WindowsErrorsTest, AFileThatAnotherProgramHoldsOpenStaysAsItIs) {
  const std::string fresh = folder.Path(u8"b");
  OpenFile(fresh, Opening::ToMake).Write("new");
  {
    const Handle held = Hold();
    ASSERT_TRUE(held);
    EXPECT_EQ(FailureOf([this] { Content(); }), FailureNumber::PermissionDenied);
    EXPECT_EQ(FailureOf([this] { CheckWritable(path); }), FailureNumber::PermissionDenied);
    EXPECT_EQ(FailureOf([this] { RemoveFile(path); }), FailureNumber::PermissionDenied);
    EXPECT_EQ(FailureOf([&] { MoveInto(fresh, path); }), FailureNumber::PermissionDenied);
    EXPECT_EQ(KindOf(path), FileKind::File);
  }
  EXPECT_EQ(Content(), "old");
  MoveInto(fresh, path);
  EXPECT_EQ(Content(), "new");
}

TEST_F(WindowsErrorsTest, ADriveThatIsNotThereIsNoFolder) {
  const std::string gone = "Q:\\folder\\file";
  EXPECT_EQ(KindOf(gone), FileKind::Nothing);
  EXPECT_EQ(FailureOf([&] { OpenFile(gone, Opening::ToRead); }), FailureNumber::PathNotFound);
  EXPECT_EQ(FailureOf([&] { OpenFile(gone, Opening::ToMake); }), FailureNumber::PathNotFound);
  EXPECT_EQ(FolderOf("Q:\\file"), "Q:\\");
}

TEST_F(WindowsErrorsTest, AFullDiskIsOne) {
  for (const unsigned long error : {39ul, 112ul, 223ul, 1295ul}) {
    EXPECT_EQ(FailureOf([&] { ThrowError(error, path); }), FailureNumber::DiskFull) << error;
  }
}

}  // namespace
}  // namespace verlume::qt
