#include "platform_qt/os/crash_fault_windows.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace verlume::qt {
namespace {

constexpr int kMostFrames = 64;

class ReportText {
 public:
  explicit ReportText(HANDLE file) : file_(file) {}

  bool IsGood() const { return isGood_; }

  ReportText& operator<<(std::string_view text) {
    DWORD count = 0;
    isGood_ = ::WriteFile(file_, text.data(), static_cast<DWORD>(text.size()), &count, nullptr) &&
              isGood_;
    return *this;
  }

  // With at least so many digits.
  ReportText& Number(std::uint64_t number, unsigned base = 10, int digits = 1) {
    std::array<char, 24> text{};
    std::size_t start = text.size();
    for (; number > 0 || digits > 0; number /= base, --digits) {
      text[--start] = "0123456789ABCDEF"[number % base];
    }
    return *this << std::string_view(text.data() + start, text.size() - start);
  }
  ReportText& Hexadecimal(std::uint64_t number) { return (*this << "0x").Number(number, 16); }

 private:
  HANDLE file_;
  bool isGood_ = true;
};

struct CodeName {
  DWORD code;
  std::string_view name;
};
constexpr CodeName kCodes[] = {
    {EXCEPTION_ACCESS_VIOLATION, "access violation"},
    {EXCEPTION_STACK_OVERFLOW, "stack overflow"},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, "division by zero"},
    {EXCEPTION_ILLEGAL_INSTRUCTION, "illegal instruction"},
    {EXCEPTION_PRIV_INSTRUCTION, "privileged instruction"},
    {EXCEPTION_IN_PAGE_ERROR, "memory that could not be read from the disk"},
    {EXCEPTION_DATATYPE_MISALIGNMENT, "misaligned address"},
    {EXCEPTION_INT_OVERFLOW, "integer overflow"},
    {EXCEPTION_BREAKPOINT, "breakpoint"},
    {EXCEPTION_GUARD_PAGE, "guarded memory"},
};

std::string_view NameOf(DWORD code) {
  const auto* found = std::ranges::find(kCodes, code, &CodeName::code);
  return found == std::end(kCodes) ? "exception" : found->name;
}

std::string_view AccessName(ULONG_PTR access) {
  if (access == 0) return "reading";
  return access == 1 ? "writing" : "executing";
}

void WriteKind(ReportText& report, const Fault& fault) {
  switch (fault.kind) {
    case FaultKind::Abort:
      report << "abort";
      return;
    case FaultKind::Terminate:
      report << "terminate";
      if (fault.uncaughtType) report << ", uncaught exception of type " << fault.uncaughtType;
      return;
    case FaultKind::Exception:
      report << NameOf(fault.code) << ", ";
      report.Hexadecimal(fault.code);
      if (fault.code != EXCEPTION_ACCESS_VIOLATION) return;
      report << ", while " << AccessName(fault.access);
      if (fault.isNearZero) report << " near address 0";
  }
}

void WriteTime(ReportText& report) {
  SYSTEMTIME now;
  ::GetSystemTime(&now);
  report.Number(now.wYear, 10, 4) << "-";
  report.Number(now.wMonth, 10, 2) << "-";
  report.Number(now.wDay, 10, 2) << " ";
  report.Number(now.wHour, 10, 2) << ":";
  report.Number(now.wMinute, 10, 2) << ":";
  report.Number(now.wSecond, 10, 2) << " UTC";
}

// The module's name without its folder, which may have the user's name in it.
void WriteModule(ReportText& report, HMODULE module) {
  static std::array<wchar_t, 4096> path;
  static std::array<char, 1024> utf8;
  const DWORD length = ::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
  std::wstring_view name(path.data(), length);
  name.remove_prefix(name.find_last_of(L"\\/") + 1);  // nothing, if there is none
  const int size =
      ::WideCharToMultiByte(CP_UTF8, 0, name.data(), static_cast<int>(name.size()), utf8.data(),
                            static_cast<int>(utf8.size()), nullptr, nullptr);
  report << (size > 0 ? std::string_view(utf8.data(), static_cast<std::size_t>(size)) : "?");
}

void WritePlace(ReportText& report, const void* place) {
  MEMORY_BASIC_INFORMATION memory{};
  const bool isInModule =
      ::VirtualQuery(place, &memory, sizeof memory) != 0 && memory.Type == MEM_IMAGE;
  if (isInModule) {
    WriteModule(report, static_cast<HMODULE>(memory.AllocationBase));
    report << "+";
    report.Hexadecimal(static_cast<std::uint64_t>(static_cast<const char*>(place) -
                                                  static_cast<const char*>(memory.AllocationBase)));
  } else {
    report << (place ? "(in no module)" : "address 0");
  }
  report << "\r\n";
}

bool IsOnStack(const Fault& fault, ULONG_PTR address) {
  return address >= fault.stackStart && address <= fault.stackEnd - sizeof(void*) &&
         address % sizeof(void*) == 0;
}

// To whoever called what `state` is in. False at the end.
bool GoUp(const Fault& fault, CONTEXT& state) {
  const ULONG_PTR before = state.Rsp;
  if (!IsOnStack(fault, before)) return false;
  DWORD64 module = 0;
  if (PRUNTIME_FUNCTION function = ::RtlLookupFunctionEntry(state.Rip, &module, nullptr)) {
    void* data = nullptr;
    DWORD64 frame = 0;
    ::RtlVirtualUnwind(UNW_FLAG_NHANDLER, module, state.Rip, function, &state, &data, &frame,
                       nullptr);
  } else {
    // It calls nothing itself: the top of its stack is where it returns to.
    state.Rip = *reinterpret_cast<const DWORD64*>(state.Rsp);
    state.Rsp += sizeof(DWORD64);
  }
  return state.Rip != 0 && state.Rsp > before;
}

void WriteStack(ReportText& report, const Fault& fault) {
  static CONTEXT state;
  state = fault.context;
  int frame = 0;
  do {
    report.Number(static_cast<std::uint64_t>(frame), 10, 2) << "  ";
    WritePlace(report, reinterpret_cast<const void*>(state.Rip));
  } while (++frame < kMostFrames && GoUp(fault, state));
}

}  // namespace

bool WriteCrashReport(HANDLE file, const Fault& fault, const OSVERSIONINFOW& windows) {
  ReportText report(file);
  report << "Verlume " VERLUME_VERSION
            " has crashed.\r\n"
            "This report holds no text of a conversation.\r\n\r\nTime:     ";
  WriteTime(report);
  report << "\r\nWindows:  ";
  report.Number(windows.dwMajorVersion) << ".";
  report.Number(windows.dwMinorVersion) << ".";
  report.Number(windows.dwBuildNumber) << "\r\nFault:    ";
  WriteKind(report, fault);
  report << "\r\nWhere:    ";
  WritePlace(report, fault.place);
  const bool hasStart = report.IsGood();
  report << "\r\nCall stack, the last call first:\r\n";
  WriteStack(report, fault);
  return hasStart;
}

}  // namespace verlume::qt
