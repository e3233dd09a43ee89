// A program that crashes: its first argument is the folder of the report, the second the manner.
// "box" as the third one lets the box be shown, "greek-box" in Greek.
#include <windows.h>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

#include "platform_qt/os/crash_report.h"

namespace {

// So that the compiler does not see what will happen.
template <class T>
T Hidden(T value) {
  volatile T place = value;
  return place;
}

#pragma GCC diagnostic ignored "-Winfinite-recursion"
[[gnu::noinline]] std::uintptr_t Recurse(std::uintptr_t depth) {
  volatile char room[512] = {};
  room[depth % sizeof room] = 1;
  return Recurse(depth + 1) + static_cast<std::uintptr_t>(room[depth % 7]);
}

struct Base {
  Base() { Call(); }
  virtual ~Base() = default;
  void Call() { Pure(); }
  virtual void Pure() = 0;
};
struct Derived : Base {
  void Pure() override {}
};

[[noreturn]] void Throw() {
  throw std::runtime_error("conversation thrown");
}

// Returns to an address that is six letters of a text. Naked: above it on the stack lies where the
// caller would go on.
[[gnu::naked]] void ReturnIntoText() {
  asm volatile("movabsq $0x4F435E564E4F, %rax; pushq %rax; ret");
}

const std::map<std::string_view, std::function<void()>> kManners = {
    {"read", [] { static_cast<void>(*Hidden<volatile int*>(nullptr)); }},
    {"write", [] { *Hidden<volatile int*>(nullptr) = 1; }},
    {"call", [] { Hidden<void (*)()>(nullptr)(); }},
    {"divide", [] { static_cast<void>(Hidden(Hidden(1) / Hidden(0))); }},
    {"illegal", [] { __builtin_trap(); }},
    {"overflow", [] { Recurse(0); }},
    {"throw", [] { Throw(); }},
    {"throw-in-thread", [] { std::thread(Throw).join(); }},
    {"read-in-thread", [] { std::thread(kManners.at("read")).join(); }},
    {"noexcept", []() noexcept { Throw(); }},
    {"terminate", [] { std::terminate(); }},
    {"abort", [] { std::abort(); }},
    {"pure", [] { Derived(); }},
    {"into-text", ReturnIntoText},
};

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 3) return 99;
  std::string folder(1024, '\0');
  folder.resize(
      std::strlen((::WideCharToMultiByte(CP_UTF8, 0, arguments[1], -1, folder.data(),
                                         static_cast<int>(folder.size()), nullptr, nullptr),
                   folder.c_str())));
  const std::wstring_view wide = arguments[2];
  const std::string manner(wide.begin(), wide.end());
  const std::wstring_view box = count > 3 ? arguments[3] : L"";
  using namespace verlume::qt;
  ReportCrashes(folder, box.empty() ? CrashNotice::None : CrashNotice::Box);
  SetCrashNoticeLanguage(box == L"greek-box");

  // The texts that no report may hold.
  volatile char stack[] = "conversation on the stack";
  volatile wchar_t wideStack[] = L"conversation on the stack";
  const auto heap = std::make_unique<std::string>("conversation on the heap, συνομιλία");
  const auto wideHeap = std::make_unique<std::wstring>(L"conversation on the heap, συνομιλία");
  kManners.at(manner)();
  return stack[0] + wideStack[0] + heap->at(0) + wideHeap->at(0);
}
