// A program without a console of its own prints (printing_program_windows.cpp).
#include <gtest/gtest.h>

#include "platform_qt/os/child_process_windows.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

constexpr wchar_t kPrinter[] = L"verlume_printing_program.exe";

// What the program prints into a file that is its standard error.
std::string PrintedToFile(const std::vector<std::wstring>& arguments) {
  const TemporaryFolder folder;
  const std::string path = folder.Path(u8"printed");
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const Handle file(::CreateFileW(WideText(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                  &inherited, CREATE_NEW, 0, nullptr));
  const ChildProcess child(kPrinter, arguments, file.Get());
  EXPECT_EQ(child.End(), 0u);
  return OpenFile(path, Opening::ToRead).ReadAll();
}

TEST(ConsoleOfWindowsTest, AFileGetsUtf8WithWindowsLineEnds) {
  EXPECT_EQ(PrintedToFile({}), "Γεια\r\nχαρά\r\n");
  EXPECT_EQ(PrintedToFile({L"log"}), "γραμμή\r\n");
}

TEST(ConsoleOfWindowsTest, APipeThatNobodyReadsAnyMoreIsAFailure) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  ASSERT_TRUE(::CreatePipe(&read, &write, &inherited, 0));
  ::CloseHandle(read);
  EXPECT_EQ(ChildProcess(kPrinter, {}, write).End(), 1u);
  ::CloseHandle(write);
}

TEST(ConsoleOfWindowsTest, WithoutAConsoleABoxShowsTheText) {
  ::FreeConsole();
  const ChildProcess child(kPrinter, {});
  EXPECT_EQ(child.CloseBox(), L"Γεια\r\nχαρά\r\n");
  EXPECT_EQ(child.End(), 0u);
  EXPECT_EQ(ChildProcess(kPrinter, {L"log"}).End(), 0u) << "which shows no box";
}

TEST(ConsoleOfWindowsTest, TheConsoleThatStartedItShowsTheText) {
  ::FreeConsole();
  ASSERT_TRUE(::AllocConsole());
  EXPECT_EQ(ChildProcess(kPrinter, {}).End(), 0u);
  const Handle console(::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                     nullptr));
  wchar_t lines[4][4] = {};
  for (SHORT row = 0; row < 4; ++row) {
    DWORD count = 0;
    ::ReadConsoleOutputCharacterW(console.Get(), lines[row], 4, {0, row}, &count);
  }
  ::FreeConsole();
  EXPECT_EQ(std::wstring(lines[1], 4), L"Γεια");
  EXPECT_EQ(std::wstring(lines[2], 4), L"χαρά");
}

}  // namespace
}  // namespace verlume::qt
