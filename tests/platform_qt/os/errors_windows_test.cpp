// What goes wrong with files only on Windows.
#include <windows.h>

#include <gmock/gmock.h>

#include <chrono>
#include <functional>
#include <vector>

#include "platform/run_time_failure.h"
#include "platform_qt/os/errors_windows.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/handle_windows.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/paths_windows.h"
#include "platform_qt/os/patience_windows.h"
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

TEST_F(WindowsErrorsTest, AFileThatIsHeldOpenIsWaitedForBeforeItIsGivenUp) {
  const std::string fresh = folder.Path(u8"b");
  OpenFile(fresh, Opening::ToMake).Write("new");
  const std::vector<std::function<void()>> operations = {
      [this] { Content(); }, [this] { OpenFile(path, Opening::ToAppend); },
      [this] { CheckWritable(path); }, [&] { MoveInto(fresh, path); },
      [this] { RemoveFile(path); }};
  const Handle held = Hold();
  for (const auto& operation : operations) {
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(FailureOf(operation), FailureNumber::PermissionDenied);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(400));
  }
}

TEST(PatienceTest, WhatWorksInTheEndHasWorked) {
  int tries = 0;
  const auto third = [&tries] {
    ::SetLastError(ERROR_SHARING_VIOLATION);
    return ++tries == 3;
  };
  EXPECT_TRUE(DonePatiently(third));
  EXPECT_EQ(tries, 3);
}

TEST(PatienceTest, AnotherErrorIsNotWaitedFor) {
  int tries = 0;
  const auto fail = [&tries] {
    ++tries;
    ::SetLastError(ERROR_FILE_NOT_FOUND);
    return false;
  };
  EXPECT_FALSE(DonePatiently(fail));
  EXPECT_EQ(tries, 1);
  EXPECT_EQ(::GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST_F(WindowsErrorsTest, WhatIsNoLongerReachedIsNoPath) {
  // Drives, then the network.
  for (const unsigned long error :
       {15ul, 21ul, 34ul, 55ul, 433ul, 1005ul, 1006ul, 1112ul, 1167ul, 1617ul,
        51ul, 53ul, 59ul, 64ul, 67ul,  121ul,  1201ul, 1203ul, 1231ul, 1232ul}) {
    EXPECT_EQ(FailureOf([&] { ThrowError(error, path); }), FailureNumber::PathNotFound) << error;
  }
}

TEST_F(WindowsErrorsTest, WhatMayNotBeIsDenied) {
  for (const unsigned long error : {5ul, 19ul, 32ul, 33ul, 65ul, 225ul, 303ul, 1224ul}) {
    EXPECT_EQ(FailureOf([&] { ThrowError(error, path); }), FailureNumber::PermissionDenied)
        << error;
  }
  EXPECT_EQ(FailureOf([&] { ThrowError(5, folder.Path()); }), FailureNumber::PathFileAccessError);
}

TEST_F(WindowsErrorsTest, AFullDiskIsOne) {
  for (const unsigned long error : {39ul, 112ul, 223ul, 1295ul}) {
    EXPECT_EQ(FailureOf([&] { ThrowError(error, path); }), FailureNumber::DiskFull) << error;
  }
}

}  // namespace
}  // namespace verlume::qt
