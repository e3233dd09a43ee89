#include "platform_qt/os/machine.h"

#include <malloc.h>
#include <windows.h>

namespace verlume::qt {
namespace {

std::wstring Wide(std::u16string_view text) {
  return std::wstring(text.begin(), text.end());
}

}  // namespace

char16_t PathSeparator() {
  return u'\\';
}

// A text with %NAMES% comes with what these stand for. A program of 32 bits would be shown another
// registry: this asks for the machine's own.
std::optional<std::u16string> RegistryText(std::u16string_view key, std::u16string_view value) {
  constexpr DWORD kLongest = 32 << 10;
  const std::wstring subkey = Wide(key);
  const std::wstring name = Wide(value);
  std::wstring text(kLongest, L'\0');
  auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
  const LSTATUS status =
      ::RegGetValueW(HKEY_LOCAL_MACHINE, subkey.c_str(), name.c_str(),
                     RRF_RT_REG_SZ | RRF_SUBKEY_WOW6464KEY, nullptr, text.data(), &size);
  if (status != ERROR_SUCCESS) return std::nullopt;
  // It ends with a NUL, which the size counts.
  text.resize(text.find(L'\0'));
  return std::u16string(text.begin(), text.end());
}

void GiveBackFreeMemory() {
  ::_heapmin();
}

}  // namespace verlume::qt
