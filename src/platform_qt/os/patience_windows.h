// Programs that look at every new file (scanners, indexers) hold it open for a moment.
#pragma once

#include <windows.h>

#include <algorithm>
#include <initializer_list>

namespace verlume::qt {

// Does what fails with GetLastError, again and again for half a second while it fails with one of
// these errors. False, with the last error, if it has not worked.
template <typename Operation>
bool DonePatiently(Operation operation,
                   std::initializer_list<DWORD> errors = {ERROR_SHARING_VIOLATION}) {
  constexpr int kTries = 20;
  constexpr DWORD kPauseMs = 25;
  for (int tries = 1;; ++tries) {
    if (operation()) return true;
    const DWORD error = ::GetLastError();
    const bool canPass = std::find(errors.begin(), errors.end(), error) != errors.end();
    if (!canPass || tries == kTries) return false;
    ::Sleep(kPauseMs);
  }
}

}  // namespace verlume::qt
