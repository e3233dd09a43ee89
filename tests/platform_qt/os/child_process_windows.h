// A program beside the tests' own, started by a test.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform_qt/os/handle_windows.h"

namespace verlume::qt {

inline constexpr DWORD kChildPatienceMs = 30'000;

// The wide form of ASCII or UTF-8.
inline std::wstring WideText(const std::string& utf8) {
  std::wstring wide(utf8.size(), L'\0');
  wide.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(),
                            static_cast<int>(wide.size()))));
  return wide;
}

class ChildProcess {
 public:
  // `standard` gets its output and errors; if it is null, they lead nowhere.
  ChildProcess(const wchar_t* program, const std::vector<std::wstring>& arguments,
               HANDLE standard = nullptr) {
    wchar_t own[4096];
    ::GetModuleFileNameW(nullptr, own, 4096);
    const std::wstring path = own;
    const std::wstring other = path.substr(0, path.find_last_of(L'\\') + 1) + program;
    std::wstring line = L"\"" + other + L"\"";
    for (const std::wstring& each : arguments) line += L" \"" + each + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = standard;
    PROCESS_INFORMATION made{};
    if (!::CreateProcessW(other.c_str(), line.data(), nullptr, nullptr, standard != nullptr, 0,
                          nullptr, nullptr, &start, &made)) {
      return;
    }
    ::CloseHandle(made.hThread);
    process_ = made.hProcess;
    number_ = made.dwProcessId;
  }
  ~ChildProcess() {
    if (!process_) return;
    ::TerminateProcess(process_, 98);
    ::CloseHandle(process_);
  }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // What it ended with; 97 if it could not be started, 96 if it does not end.
  DWORD End() const {
    if (!process_) return 97;
    if (::WaitForSingleObject(process_, kChildPatienceMs) != WAIT_OBJECT_0) return 96;
    DWORD code = 0;
    ::GetExitCodeProcess(process_, &code);
    return code;
  }

  // The text of the message box that it shows, which is closed then; "" if none comes.
  std::wstring CloseBox() const {
    Box box{number_, nullptr};
    const ULONGLONG start = ::GetTickCount64();
    while (!box.window && ::GetTickCount64() - start < kChildPatienceMs) {
      ::EnumWindows(&IsBox, reinterpret_cast<LPARAM>(&box));
      ::Sleep(20);
    }
    if (!box.window) return {};
    constexpr int kText = 0xFFFF;  // the number of its label
    std::wstring text(4096, L'\0');
    text.resize(::GetDlgItemTextW(box.window, kText, text.data(), 4096));
    ::PostMessageW(box.window, WM_COMMAND, IDOK, 0);
    return text;
  }

 private:
  struct Box {
    DWORD process;
    HWND window;
  };
  static BOOL CALLBACK IsBox(HWND window, LPARAM data) {
    auto& box = *reinterpret_cast<Box*>(data);
    DWORD process = 0;
    wchar_t kind[16] = {};
    ::GetWindowThreadProcessId(window, &process);
    ::GetClassNameW(window, kind, 16);
    const bool isIt =
        process == box.process && ::IsWindowVisible(window) && std::wstring(kind) == L"#32770";
    if (isIt) box.window = window;
    return !isIt;
  }

  HANDLE process_ = nullptr;
  DWORD number_ = 0;
};

}  // namespace verlume::qt
