#include "platform_qt/os/crash_report.h"

#include <windows.h>
// Behind it, which it builds on.
#include <cxxabi.h>
#include <winternl.h>

#include <atomic>
#include <csignal>
#include <exception>
#include <optional>
#include <typeinfo>

#include "platform/run_time_failure.h"
#include "platform_qt/os/crash_fault_windows.h"
#include "platform_qt/os/crash_notice_windows.h"
#include "platform_qt/os/paths_windows.h"
#include "platform_qt/os/permissions_windows.h"

namespace verlume::qt {
namespace {

// What abort ends a program with.
constexpr UINT kAborted = 3;
// A helper that gets no further waits for something that the broken thread holds.
constexpr DWORD kPatienceMs = 10'000;
// What the first handler needs on a stack that has run out, and the system before it.
constexpr ULONG kStackKept = 64 << 10;

// Everything that is needed after a fault, made beforehand. It is never destroyed: a fault may come
// while the program ends.
struct CrashHelper {
  std::wstring path;
  std::optional<OwnerOnly> owner;
  CrashNoticeBox box;
  OSVERSIONINFOW windows{};
  CrashNotice notice = CrashNotice::Box;
  HANDLE isWanted = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE isWritten = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE isBoxUp = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
  HANDLE thread = nullptr;
  DWORD threadId = 0;
  Fault fault;
};

CrashHelper* helper = nullptr;
std::atomic<DWORD> faultyThread = 0;
std::atomic<bool> isNoticeGreek = false;

[[noreturn]] void EndWith(DWORD code) {
  ::TerminateProcess(::GetCurrentProcess(), code);
  for (;;) ::Sleep(INFINITE);  // until it has happened
}

// An older report, which may have let others read it, is not written over.
bool WriteReportFile() {
  ::DeleteFileW(helper->path.c_str());
  SECURITY_ATTRIBUTES* owner = helper->owner ? helper->owner->Attributes() : nullptr;
  const HANDLE file = ::CreateFileW(helper->path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, owner,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool isWritten = WriteCrashReport(file, helper->fault, helper->windows);
  ::CloseHandle(file);
  return isWritten;
}

DWORD WINAPI HelpAfterFault(void*) {
  ::WaitForSingleObject(helper->isWanted, INFINITE);
  const bool isWritten = WriteReportFile();
  ::SetEvent(helper->isWritten);
  if (helper->notice == CrashNotice::Box) {
    helper->box.Show(isNoticeGreek, isWritten, helper->isBoxUp);
  }
  return 0;
}

bool HasCome(HANDLE event) {
  return ::WaitForSingleObject(event, kPatienceMs) == WAIT_OBJECT_0;
}

// Has the helper do the work, whose stack is whole, and ends the process.
[[noreturn]] void ReportAndEnd() {
  ::GetCurrentThreadStackLimits(&helper->fault.stackStart, &helper->fault.stackEnd);
  ::SetEvent(helper->isWanted);
  const bool hasBox = HasCome(helper->isWritten) && helper->notice == CrashNotice::Box;
  const HANDLE next[] = {helper->isBoxUp, helper->thread};
  if (hasBox && ::WaitForMultipleObjects(2, next, FALSE, kPatienceMs) < WAIT_OBJECT_0 + 2) {
    ::WaitForSingleObject(helper->thread, INFINITE);
  }
  EndWith(helper->fault.code);
}

// Makes the calling thread the one that is reported. A fault while that is done ends the process;
// another thread's waits for that end.
void TakeTurn() {
  const DWORD own = ::GetCurrentThreadId();
  DWORD first = 0;
  if (faultyThread.compare_exchange_strong(first, own)) return;
  if (own == first || own == helper->threadId) EndWith(helper->fault.code);
  for (;;) ::Sleep(INFINITE);
}

// An exception of C++ that nobody catches comes here first; let go on, it ends in std::terminate.
bool IsOfCpp(const EXCEPTION_RECORD& record) {
  constexpr DWORD kMark = 0x20474343;  // "GCC"
  return (record.ExceptionCode & 0x20FFFFFF) == kMark &&
         (record.ExceptionFlags & EXCEPTION_NONCONTINUABLE) == 0;
}

LONG WINAPI OnException(EXCEPTION_POINTERS* thrown) {
  const EXCEPTION_RECORD& record = *thrown->ExceptionRecord;
  if (IsOfCpp(record)) return EXCEPTION_CONTINUE_EXECUTION;
  TakeTurn();
  Fault& fault = helper->fault;
  fault.kind = FaultKind::Exception;
  fault.code = record.ExceptionCode;
  fault.place = record.ExceptionAddress;
  if (record.NumberParameters >= 2) {
    constexpr ULONG_PTR kNearZero = 64 << 10;  // nothing is ever there
    fault.access = record.ExceptionInformation[0];
    fault.isNearZero = record.ExceptionInformation[1] < kNearZero;
  }
  fault.context = *thrown->ContextRecord;
  ReportAndEnd();
}

[[noreturn]] void ReportEnd(FaultKind kind, const char* uncaughtType, const void* place) {
  TakeTurn();
  Fault& fault = helper->fault;
  fault.kind = kind;
  fault.code = kAborted;
  fault.uncaughtType = uncaughtType;
  fault.place = place;
  ::RtlCaptureContext(&fault.context);
  ReportAndEnd();
}

// Of a pure virtual function that is called, too. The tables of functions name it only weakly; what
// nothing else names is not linked, and a call would go anywhere.
[[gnu::used]] void (*const pureCall)() = &abi::__cxa_pure_virtual;

[[noreturn]] void OnTerminate() {
  const std::type_info* type = abi::__cxa_current_exception_type();
  ReportEnd(FaultKind::Terminate, type ? type->name() : nullptr, __builtin_return_address(0));
}

void OnAbort(int) {
  ReportEnd(FaultKind::Abort, nullptr, __builtin_return_address(0));
}

// What GetVersion tells depends on what the program says it knows.
OSVERSIONINFOW WindowsVersion() {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  using Ask = NTSTATUS(WINAPI*)(OSVERSIONINFOW*);
  const HMODULE system = ::GetModuleHandleW(L"ntdll.dll");
  const auto ask =
      reinterpret_cast<Ask>(reinterpret_cast<void*>(::GetProcAddress(system, "RtlGetVersion")));
  if (ask) ask(&version);
  return version;
}

void Install() {
  helper->windows = WindowsVersion();
  helper->thread = ::CreateThread(nullptr, 0, &HelpAfterFault, nullptr, 0, &helper->threadId);
  if (!helper->thread) return;
  ULONG kept = kStackKept;
  ::SetThreadStackGuarantee(&kept);
  ::SetUnhandledExceptionFilter(&OnException);
  std::set_terminate(&OnTerminate);
  std::signal(SIGABRT, &OnAbort);
}

}  // namespace

// Parameters that the C library refuses are no fault: with this compiler its functions return an
// error, as they do elsewhere.
void ReportCrashes(const std::string& folder, CrashNotice notice) try {
  const std::string path = folder + '\\' + kCrashReport;
  const std::wstring native = NativePath(path);
  if (!helper) helper = new CrashHelper;
  helper->path = native;
  helper->notice = notice;
  helper->box.Prepare(native);
  helper->owner.emplace(path);
  if (!helper->thread) Install();
} catch (const RunTimeFailure&) {
  // A folder that can have no file gets none.
}

void SetCrashNoticeLanguage(bool isGreek) {
  isNoticeGreek = isGreek;
}

}  // namespace verlume::qt
