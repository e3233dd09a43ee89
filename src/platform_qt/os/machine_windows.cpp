#include "platform_qt/os/machine.h"

#include <malloc.h>
#include <windows.h>

#include <algorithm>

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

std::optional<std::uint32_t> RegistryNumber(std::u16string_view key, std::u16string_view value) {
  DWORD number = 0;
  DWORD size = sizeof number;
  const LSTATUS status =
      ::RegGetValueW(HKEY_LOCAL_MACHINE, Wide(key).c_str(), Wide(value).c_str(),
                     RRF_RT_REG_DWORD | RRF_SUBKEY_WOW6464KEY, nullptr, &number, &size);
  if (status != ERROR_SUCCESS) return std::nullopt;
  return number;
}

// High contrast comes first: it has colours of its own.
bool NeedsDarkStyle() {
  constexpr wchar_t kColors[] =
      L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof contrast;
  const bool isKnown =
      ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) != FALSE;
  if (isKnown && (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0) return false;
  DWORD isLight = 1;
  DWORD size = sizeof isLight;
  return ::RegGetValueW(HKEY_CURRENT_USER, kColors, L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr,
                        &isLight, &size) == ERROR_SUCCESS &&
         isLight == 0;
}

// One clock goes on while the machine sleeps, the other does not. The first goes in steps of 16 ms.
std::chrono::nanoseconds TimeAsleep() {
  using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
  ULONGLONG awake = 0;
  ::QueryUnbiasedInterruptTime(&awake);
  const std::chrono::nanoseconds all = std::chrono::milliseconds(::GetTickCount64());
  return std::max<std::chrono::nanoseconds>(all - Ticks(static_cast<std::int64_t>(awake)),
                                            std::chrono::nanoseconds(0));
}

void GiveBackFreeMemory() {
  ::_heapmin();
}

}  // namespace verlume::qt
