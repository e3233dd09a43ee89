// Names that Windows takes for something else than a file of that name.
#include <gmock/gmock.h>

#include "platform/run_time_failure.h"
#include "platform_qt/os/files.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/paths_windows.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

TEST(NamesTest, WhatIsAFileName) {
  for (const wchar_t* name : {L"a", L"Ωμέγα.rtf", L".ini", L"CONSOLE", L"COM", L"COM12", L"a.con",
                              L"nul2.txt", L" a", L"a b"}) {
    EXPECT_TRUE(IsFileName(name)) << testing::PrintToString(std::wstring(name));
  }
}

TEST(NamesTest, WhatIsNot) {
  for (const wchar_t* name :
       {L"",        L".",        L"..",   L"a.",       L"a ",        L"NUL",  L"nul",
        L"con.txt", L"AUX .txt", L"COM1", L"lpt9.rtf", L"COM\u00B9", L"a:b",  L"a::$DATA",
        L"a*",      L"a?",       L"a|b",  L"a<",       L"a\"",       L"a\tb", L"conin$"}) {
    EXPECT_FALSE(IsFileName(name)) << testing::PrintToString(std::wstring(name));
    EXPECT_FALSE(
        CanBeFileName(std::u16string(name, name + std::char_traits<wchar_t>::length(name))));
  }
}

TEST(NamesTest, WhatIsTheNameOfADevice) {
  for (const char16_t* name : {u"NUL", u"con.txt", u"com1", u"LPT¹.rtf", u"aux .a.b"}) {
    EXPECT_TRUE(IsNameOfDevice(name)) << testing::PrintToString(std::u16string(name));
  }
  for (const char16_t* name : {u"", u"CON_", u"console", u"com", u"a.con", u"a:b", u"a.", u"Ω"}) {
    EXPECT_FALSE(IsNameOfDevice(name)) << testing::PrintToString(std::u16string(name));
  }
}

TEST(NamesTest, NothingIsMadeOrReadUnderSuchAName) {
  const TemporaryFolder folder;
  OpenFile(folder.Path(u8"a"), Opening::ToMake).Write("kept");
  for (const char8_t* name : {u8"NUL", u8"con.txt", u8"a.", u8"a ", u8"a:b", u8"NUL/x"}) {
    const std::string path = folder.Path() + "\\" + reinterpret_cast<const char*>(name);
    EXPECT_THROW(OpenFile(path, Opening::ToMake), RunTimeFailure) << path;
    EXPECT_THROW(OpenFile(path, Opening::ToRead), RunTimeFailure) << path;
    EXPECT_THROW(RemoveFile(path), RunTimeFailure) << path;
    EXPECT_EQ(KindOf(path), FileKind::Nothing) << path;
  }
  EXPECT_THAT(FilesIn(folder.Path()), testing::ElementsAre("a"));
  EXPECT_EQ(OpenFile(folder.Path(u8"a"), Opening::ToRead).ReadAll(), "kept");
}

TEST(NamesTest, BytesThatAreNotUtf8AreNoPath) {
  EXPECT_THROW(NativePath("C:\\\xff"), RunTimeFailure);
  EXPECT_THROW(NativePath(std::string("C:\\a\0b", 6)), RunTimeFailure);
}

TEST(NamesTest, APathOfAnotherSystemOrOfTheCurrentDriveIsNone) {
  for (const char* path : {"/", "/tmp", "\\windows", "C:", "C:windows"}) {
    EXPECT_THROW(NativePath(path), RunTimeFailure) << path;
    EXPECT_EQ(KindOf(path), FileKind::Nothing) << path;
  }
  EXPECT_EQ(KindOf("C:/windows/"), FileKind::Folder);
}

TEST(NamesTest, SlashesAndLongPathsBecomeWindowsOwn) {
  EXPECT_EQ(NativePath("C:/a/b"), L"C:\\a\\b");
  EXPECT_EQ(NativePath("C:/" + std::string(300, 'a')), L"\\\\?\\C:\\" + std::wstring(300, L'a'));
  EXPECT_EQ(NativePath("//server/share/" + std::string(300, 'a')),
            L"\\\\?\\UNC\\server\\share\\" + std::wstring(300, L'a'));
}

}  // namespace
}  // namespace verlume::qt
