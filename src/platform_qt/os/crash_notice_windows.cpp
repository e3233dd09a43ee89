#include "platform_qt/os/crash_notice_windows.h"

namespace verlume::qt {
namespace {

struct NoticeText {
  const wchar_t* english;
  const wchar_t* greek;
};
constexpr NoticeText kEnds = {L"Verlume has hit an error and has to close.",
                              L"Το Verlume αντιμετώπισε σφάλμα και πρέπει να κλείσει."};
constexpr NoticeText kReport = {
    L"A report for the developers, without any text of your conversations, is in the file",
    L"Μια αναφορά για τους προγραμματιστές, χωρίς κανένα κείμενο των συνομιλιών σας, βρίσκεται στο "
    L"αρχείο"};
constexpr NoticeText kNoReport = {L"No report of it could be written.",
                                  L"Δεν ήταν δυνατό να γραφτεί αναφορά."};

HANDLE boxIsUp = nullptr;

LRESULT CALLBACK OnWindow(int code, WPARAM window, LPARAM data) {
  if (code == HCBT_ACTIVATE) ::SetEvent(boxIsUp);
  return ::CallNextHookEx(nullptr, code, window, data);
}

}  // namespace

void CrashNoticeBox::Prepare(const std::wstring& path) {
  const auto make = [&path](auto language) {
    const std::wstring start = std::wstring(kEnds.*language) + L"\n\n";
    return Texts{start + kReport.*language + L"\n" + path, start + kNoReport.*language};
  };
  english_ = make(&NoticeText::english);
  greek_ = make(&NoticeText::greek);
}

void CrashNoticeBox::Show(bool isGreek, bool isReportWritten, HANDLE isUp) const {
  const Texts& texts = isGreek ? greek_ : english_;
  boxIsUp = isUp;
  ::SetWindowsHookExW(WH_CBT, &OnWindow, nullptr, ::GetCurrentThreadId());
  // No window of the program answers any more: this one has none below it.
  ::MessageBoxW(nullptr, (isReportWritten ? texts.withReport : texts.without).c_str(), L"Verlume",
                MB_OK | MB_ICONERROR | MB_SETFOREGROUND | MB_TOPMOST);
}

}  // namespace verlume::qt
