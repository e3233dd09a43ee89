// The fault that ends the program, and its report.
#pragma once

#include <windows.h>

namespace verlume::qt {

enum class FaultKind { Exception, Terminate, Abort };

struct Fault {
  FaultKind kind = FaultKind::Exception;
  DWORD code = 0;  // the exception's; what the process ends with
  // Of an access violation: 0 while reading, 1 while writing, 8 while executing.
  ULONG_PTR access = 0;
  bool isNearZero = false;             // what was accessed
  const char* uncaughtType = nullptr;  // the type's name as the compiler writes it
  const void* place = nullptr;         // in the code
  CONTEXT context{};                   // the state of the thread
  ULONG_PTR stackStart = 0;            // of the thread: its lowest address
  ULONG_PTR stackEnd = 0;
};

// Writes the report of a fault of another thread, which waits meanwhile. Makes nothing on the heap,
// which may be what is broken. Numbers and names only: no bytes of the stack, and no address that
// lies in no module, for it could be a piece of a text. False if not even the start was written.
bool WriteCrashReport(HANDLE file, const Fault& fault, const OSVERSIONINFOW& windows);

}  // namespace verlume::qt
