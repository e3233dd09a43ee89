// A program crashes in every manner (crashing_program_windows.cpp), and its report is read. But for
// the overflow of the stack: Wine keeps no stack for the handler.
#include <gmock/gmock.h>

#include "platform_qt/os/child_process_windows.h"
#include "platform_qt/os/crash_report.h"
#include "platform_qt/os/open_file.h"
#include "platform_qt/os/temporary_folder.h"

namespace verlume::qt {
namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

constexpr wchar_t kProgram[] = L"verlume_crashing_program.exe";

struct Crash {
  const char* manner;
  DWORD code;
  const char* fault;
};

class CrashTest : public testing::TestWithParam<Crash> {
 protected:
  std::string Report() const { return OpenFile(Path(), Opening::ToRead).ReadAll(); }
  std::string Path() const { return folder.Path() + '/' + kCrashReport; }
  std::vector<std::wstring> Arguments(const char* manner) const {
    return {WideText(folder.Path()), WideText(manner)};
  }

  TemporaryFolder folder;
};

TEST_P(CrashTest, IsReportedWithoutAnyText) {
  const ChildProcess child(kProgram, Arguments(GetParam().manner));
  EXPECT_EQ(child.End(), GetParam().code);
  const std::string report = Report();
  EXPECT_THAT(report, HasSubstr(GetParam().fault));
  EXPECT_THAT(report, ContainsRegex("Verlume \\d+\\.\\d+\\.\\d+ "));
  EXPECT_THAT(report, ContainsRegex("20\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d UTC"));
  EXPECT_THAT(report, ContainsRegex("Windows:  \\d+\\.\\d+\\.\\d+"));
  EXPECT_THAT(report, ContainsRegex("0\\d  verlume_crashing_program.exe.0x\\w+\r\n0\\d  "))
      << "its stack";
  for (const char* text : {"onversation on", "thrown", "συνομιλία", "4F435E56"}) {
    EXPECT_THAT(report, Not(HasSubstr(text)));
  }
  EXPECT_EQ(report.find('\0'), report.npos) << "there is UTF-16 in it";
  EXPECT_THAT(report, Not(HasSubstr("\\"))) << "a folder is named";
}

INSTANTIATE_TEST_SUITE_P(
    InEveryManner, CrashTest,
    testing::Values(Crash{"read", 0xC0000005,
                          "access violation, 0xC0000005, while reading near address 0"},
                    Crash{"write", 0xC0000005, "while writing near address 0"},
                    Crash{"call", 0xC0000005, "Where:    address 0"},
                    Crash{"divide", 0xC0000094, "division by zero"},
                    Crash{"illegal", 0xC000001D, "illegal instruction"},
                    Crash{"throw", 3, "uncaught exception of type St13runtime_error"},
                    Crash{"throw-in-thread", 3, "uncaught exception of type St13runtime_error"},
                    Crash{"read-in-thread", 0xC0000005, "while reading"},
                    Crash{"noexcept", 3, "uncaught exception of type St13runtime_error"},
                    Crash{"terminate", 3, "terminate\r\n"}, Crash{"abort", 3, "abort\r\n"},
                    Crash{"pure", 3, "terminate\r\n"},
                    Crash{"into-text", 0xC0000005, "Where:    (in no module)"}),
    [](const auto& instance) {
      std::string name = instance.param.manner;
      for (char& c : name) c = c == '-' ? '_' : c;
      return name;
    });

TEST_F(CrashTest, TheNewestReportReplacesTheOneBefore) {
  OpenFile(Path(), Opening::ToMake).Write("older");
  EXPECT_EQ(ChildProcess(kProgram, Arguments("abort")).End(), 3u);
  EXPECT_THAT(Report(), AllOf(HasSubstr("abort"), Not(HasSubstr("older"))));
  EXPECT_EQ(FilesIn(folder.Path()).size(), 1u);
}

TEST_F(CrashTest, ABoxNamesTheReportInBothLanguages) {
  std::vector<std::wstring> arguments = Arguments("read");
  for (const wchar_t* language : {L"box", L"greek-box"}) {
    arguments.resize(2);
    arguments.emplace_back(language);
    const ChildProcess child(kProgram, arguments);
    const std::wstring text = child.CloseBox();
    EXPECT_NE(text.find(WideText(kCrashReport)), text.npos);
    EXPECT_EQ(text.find(L"σφάλμα") != text.npos, arguments.back() == L"greek-box");
    EXPECT_EQ(child.End(), 0xC0000005);
  }
}

TEST_F(CrashTest, WhereNoReportCanBeWrittenTheBoxSaysSo) {
  const ChildProcess child(kProgram, {WideText(folder.Path()) + L"\\none", L"read", L"box"});
  const std::wstring text = child.CloseBox();
  EXPECT_NE(text.find(L"No report"), text.npos);
  EXPECT_EQ(text.find(WideText(kCrashReport)), text.npos);
  EXPECT_EQ(child.End(), 0xC0000005);
}

}  // namespace
}  // namespace verlume::qt
