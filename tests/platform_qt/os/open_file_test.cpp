#include "platform_qt/os/open_file.h"

#include <gmock/gmock.h>

#include <optional>

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

class OpenFileTest : public testing::Test {
 protected:
  std::string Path() const { return folder.Path(u8"a"); }
  std::string Content() const { return OpenFile(Path(), Opening::ToRead).ReadAll(); }

  TemporaryFolder folder;
};

TEST_F(OpenFileTest, WhatIsWrittenIsRead) {
  const std::string bytes = std::string("\r\n\0\x1a\xff", 5) + std::string(200'000, 'x');
  OpenFile file(Path(), Opening::ToMake);
  file.Write(bytes);
  file.Flush();
  file.Close();
  EXPECT_EQ(Content(), bytes);
  EXPECT_EQ(OpenFile(Path(), Opening::ToRead).ReadStart(3), bytes.substr(0, 3));
}

TEST_F(OpenFileTest, AppendingGoesOnAtTheEnd) {
  OpenFile(Path(), Opening::ToAppend).Append("one ");
  OpenFile first(Path(), Opening::ToAppend);
  OpenFile second(Path(), Opening::ToAppend);
  first.Append("two ");
  second.Append("three ");
  first.Append("four");
  EXPECT_EQ(Content(), "one two three four");
}

TEST_F(OpenFileTest, WhatIsThereIsNotMade) {
  OpenFile(Path(), Opening::ToMake).Write("old");
  EXPECT_THROW(OpenFile(Path(), Opening::ToMake), RunTimeFailure);
  EXPECT_EQ(Content(), "old");
}

TEST_F(OpenFileTest, AFolderIsNoFile) {
  for (const Opening opening :
       {Opening::ToRead, Opening::ToReadNoLink, Opening::ToAppend, Opening::ToMake}) {
    try {
      OpenFile file(folder.Path(), opening);
      ADD_FAILURE();
    } catch (const RunTimeFailure& failure) {
      EXPECT_EQ(failure.number, FailureNumber::PathFileAccessError);
    }
  }
}

TEST_F(OpenFileTest, AFileIsReadAndDeletedWhileItIsOpen) {
  OpenFile file(Path(), Opening::ToMake);
  file.Write("here");
  ASSERT_TRUE(file.TryToLock());
  EXPECT_EQ(Content(), "here");
  EXPECT_TRUE(TryToRemove(Path()));
  file.Close();
  EXPECT_FALSE(IsTaken(Path()));
}

TEST_F(OpenFileTest, OneHoldsTheLock) {
  std::optional<OpenFile> first;
  first.emplace(Path(), Opening::ToMake);
  EXPECT_TRUE(first->TryToLock());
  OpenFile second(Path(), Opening::ToRead);
  EXPECT_FALSE(second.TryToLock());
  first.reset();
  EXPECT_TRUE(second.TryToLock());
}

TEST_F(OpenFileTest, NoLockIsHadOfAFileThatIsNoLongerThere) {
  OpenFile file(Path(), Opening::ToMake);
  ASSERT_TRUE(TryToRename(Path(), folder.Path(u8"b")));
  OpenFile(Path(), Opening::ToMake).Write("another");
  EXPECT_FALSE(file.TryToLock());
}

TEST_F(OpenFileTest, PermissionsAreTakenOverAndTakenAway) {
  OpenFile(Path(), Opening::ToMake, Readers::OwnerOnly).Write("secret");
  OpenFile other(folder.Path(u8"b"), Opening::ToMake);
  other.TakePermissionsOf(Path());
  other.LetOnlyOwnerIn();
  other.Write("mine");
  EXPECT_EQ(Content(), "secret");
  EXPECT_EQ(OpenFile(folder.Path(u8"b"), Opening::ToRead).ReadAll(), "mine");
  EXPECT_THROW(other.TakePermissionsOf(folder.Path(u8"none")), RunTimeFailure);
}

}  // namespace
}  // namespace verlume::qt
