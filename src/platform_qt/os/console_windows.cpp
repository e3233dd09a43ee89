#include "platform_qt/os/console.h"

#include <windows.h>

#include <string>

#include "platform_qt/os/handle_windows.h"

namespace verlume::qt {
namespace {

// With Windows' line ends. What is not UTF-8 becomes U+FFFD.
std::wstring WithLineEnds(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  std::wstring wide(utf8.size(), L'\0');  // never more units than bytes
  wide.resize(static_cast<std::size_t>(::MultiByteToWideChar(
      CP_UTF8, 0, utf8.data(), size, wide.data(), static_cast<int>(wide.size()))));
  std::wstring text;
  for (const wchar_t c : wide) {
    if (c == L'\n') text += L'\r';
    text += c;
  }
  return text;
}

bool WriteBytes(HANDLE file, const std::wstring& text) {
  std::string bytes(text.size() * 3, '\0');  // never more bytes than that
  bytes.resize(static_cast<std::size_t>(
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
  for (std::string_view rest = bytes; !rest.empty();) {
    DWORD count = 0;
    if (!::WriteFile(file, rest.data(), static_cast<DWORD>(rest.size()), &count, nullptr)) {
      return false;
    }
    rest.remove_prefix(count);
  }
  return true;
}

// A console takes characters, whatever its code page is.
bool WriteCharacters(HANDLE console, const std::wstring& text) {
  DWORD count = 0;
  return ::WriteConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &count, nullptr) &&
         count == text.size();
}

enum class Leads { Nowhere, ToBytes, ToConsole };

// Where a standard handle leads. A program with windows may have the handle of a console that it
// does not belong to.
Leads WhereTo(HANDLE standard) {
  DWORD mode = 0;
  if (!standard || standard == INVALID_HANDLE_VALUE) return Leads::Nowhere;
  if (::GetConsoleMode(standard, &mode)) return Leads::ToConsole;
  return ::GetFileType(standard) == FILE_TYPE_UNKNOWN ? Leads::Nowhere : Leads::ToBytes;
}

HANDLE StandardHandle(bool isError) {
  return ::GetStdHandle(isError ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
}

// Its shell has not waited, and has written its prompt: the text begins on a line of its own.
bool WriteToParentsConsole(const std::wstring& text) {
  const bool isAttached = ::AttachConsole(ATTACH_PARENT_PROCESS);
  const bool hasAlready = !isAttached && ::GetLastError() == ERROR_ACCESS_DENIED;
  if (!isAttached && !hasAlready) return false;
  bool isWritten = false;
  {
    const Handle console(::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                       0, nullptr));
    isWritten = console && WriteCharacters(console.Get(), L"\r\n" + text);
  }
  if (isAttached) ::FreeConsole();
  return isWritten;
}

}  // namespace

bool PrintText(std::string_view utf8, bool isError) {
  const std::wstring text = WithLineEnds(utf8);
  const HANDLE standard = StandardHandle(isError);
  const Leads where = WhereTo(standard);
  if (where == Leads::ToBytes) return WriteBytes(standard, text);
  if (where == Leads::ToConsole) return WriteCharacters(standard, text);
  if (WriteToParentsConsole(text)) return true;
  return ::MessageBoxW(nullptr, text.c_str(), L"Verlume",
                       MB_OK | MB_SETFOREGROUND | (isError ? MB_ICONERROR : MB_ICONINFORMATION)) !=
         0;
}

void LogLine(std::string_view utf8) {
  const std::wstring text = WithLineEnds(utf8) + L"\r\n";
  const HANDLE standard = StandardHandle(true);
  const Leads where = WhereTo(standard);
  const bool isWritten = (where == Leads::ToBytes && WriteBytes(standard, text)) ||
                         (where == Leads::ToConsole && WriteCharacters(standard, text));
  if (!isWritten) ::OutputDebugStringW(text.c_str());
}

}  // namespace verlume::qt
