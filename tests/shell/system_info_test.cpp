#include "shell/system_info.h"

#include "shell/shell_fixture.h"

namespace verlume {
namespace {

using Paths = std::vector<std::u16string>;

class SystemInfoTest : public ShellTest {
 protected:
  void SetToolPath(std::u16string path) {
    fake.tools.registry[{u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH"}] = std::move(path);
  }
  void SetSharedFolder(std::u16string folder) {
    fake.tools.registry[{u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO"}] =
        std::move(folder);
  }
  void AddFile(const std::u16string& path) { fake.files.files[path] = ""; }
  void ExpectUnavailable() const {
    ASSERT_EQ(fake.dialogs.messages.size(), 1u);
    const Message& note = fake.dialogs.messages[0];
    EXPECT_EQ(note.text, u"System Information is unavailable at this time.");
    EXPECT_EQ(note.title, u"System information");
    EXPECT_EQ(note.icon, MessageIcon::Information);
    EXPECT_EQ(note.buttons, MessageButtons::Ok);
  }
};

TEST_F(SystemInfoTest, StartsTheToolThatHasAnEntryOfItsOwn) {
  SetToolPath(u"C:\\Tools\\msinfo.exe");
  SetSharedFolder(u"C:\\Shared");
  AddFile(u"C:\\Shared\\MSINFO32.EXE");
  StartSysInfo(state, platform);
  EXPECT_EQ(fake.tools.started, Paths{u"C:\\Tools\\msinfo.exe"});
  EXPECT_TRUE(fake.dialogs.messages.empty());
}

TEST_F(SystemInfoTest, ElseTheOneInTheSharedFolder) {
  SetSharedFolder(u"C:\\Shared");
  AddFile(u"C:\\Shared\\MSINFO32.EXE");
  StartSysInfo(state, platform);
  EXPECT_EQ(fake.tools.started, Paths{u"C:\\Shared\\MSINFO32.EXE"});
  EXPECT_TRUE(fake.dialogs.messages.empty());
}

TEST_F(SystemInfoTest, SharedFolderWithoutTheToolIsNoTool) {
  SetSharedFolder(u"C:\\Shared");
  StartSysInfo(state, platform);
  EXPECT_TRUE(fake.tools.started.empty());
  ExpectUnavailable();
}

TEST_F(SystemInfoTest, WithoutEntriesItIsUnavailable) {
  StartSysInfo(state, platform);
  EXPECT_TRUE(fake.tools.started.empty());
  ExpectUnavailable();
}

TEST_F(SystemInfoTest, ToolThatCannotBeStartedIsUnavailable) {
  SetToolPath(u"C:\\Tools\\gone.exe");
  fake.tools.startsPrograms = false;
  StartSysInfo(state, platform);
  ExpectUnavailable();
}

TEST_F(SystemInfoTest, NoteSpeaksGreek) {
  state.IsGreek = true;
  StartSysInfo(state, platform);
  ASSERT_EQ(fake.dialogs.messages.size(), 1u);
  EXPECT_EQ(fake.dialogs.messages[0].text,
            u"Οι Πληροφορίες Συστήματος δεν είναι διαθέσιμες αυτή τη στιγμή.");
  EXPECT_EQ(fake.dialogs.messages[0].title, u"Πληροφορίες συστήματος");
}

}  // namespace
}  // namespace verlume
