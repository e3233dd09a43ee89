// The box that tells of a crash.
#pragma once

#include <windows.h>

#include <string>

namespace verlume::qt {

class CrashNoticeBox {
 public:
  // Makes the texts, so that nothing has to be made later. `path` is the report's.
  void Prepare(const std::wstring& path);
  // Returns when the user has closed the box. `isUp` is set when the box is there.
  void Show(bool isGreek, bool isReportWritten, HANDLE isUp) const;

 private:
  struct Texts {
    std::wstring withReport;
    std::wstring without;
  };
  Texts english_;
  Texts greek_;
};

}  // namespace verlume::qt
