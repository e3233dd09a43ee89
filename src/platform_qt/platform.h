// The whole Qt platform, in one object. It must outlive the program.
#pragma once

#include <QByteArray>
#include <QDir>

#include "platform/platform.h"
#include "platform_qt/attention/attention.h"
#include "platform_qt/dialogs/common_dialog.h"
#include "platform_qt/dialogs/desktop_dialogs.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/help/help_viewer.h"
#include "platform_qt/net/socket.h"
#include "platform_qt/network/network.h"
#include "platform_qt/router/router.h"
#include "platform_qt/system/clipboard.h"
#include "platform_qt/system/file_system.h"
#include "platform_qt/system/link_opener.h"
#include "platform_qt/system/system.h"
#include "platform_qt/windows/about_window.h"
#include "platform_qt/windows/macro_window.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/people_window.h"
#include "platform_qt/windows/reach_window.h"
#include "platform_qt/windows/verify_window.h"
#include "platform_qt/windows/window_memory.h"

namespace verlume::qt {

// Settings that must be made before the QApplication is created.
void PrepareApplication();

class QtPlatform {
 public:
  // The settings lie in `ownFolder`; "" for the usual one.
  explicit QtPlatform(const QString& ownFolder = {});
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  Platform& View() { return view_; }

  // Runs the event loop until the program ends; returns the exit status of the process.
  int Run() { return application_.Run(); }

  // For a task that another start of the program brings. `token` is what the desktop gave to that
  // start; the desktop decides whether the window may come before those of other programs, or is
  // flagged.
  void ComeToFront(const QByteArray& token);
  bool IsInFront() const;
  // Whether the window is there, and no box, menu or handler waits in it.
  bool IsFree();

  // Whether destroying the QApplication would have to wait for a host name lookup of the system.
  bool IsLookingUp() const { return socket_.IsLookingUp(); }

 private:
  QtFileSystem files_;
  QtClock clock_;
  QtLocale locale_;
  QtApplication application_;
  QtSystemTools tools_;
  QtClipboard clipboard_;
  QtLinkOpener links_;
  QtMainWindow window_{files_};
  QtHelpViewer help_{&window_.form()};
  QtAboutWindow about_{&window_.form()};
  QtMacroWindow macros_{&window_.form(), files_};
  QtPeopleWindow people_{&window_.form()};
  QtVerifyWindow verify_{&window_.form()};
  QtReachWindow reach_{&window_.form()};
  QtWindowMemory windowMemory_{
      &window_.form(), window_.View(),
      QDir(ToQt(application_.SettingsFolder())).filePath("Verlume.window")};
  QtSocket socket_{stream::ArrivalAssembler::kTimeout,
                   QDir(ToQt(application_.SettingsFolder())).filePath("Verlume.key").toStdString()};
  QtRouter router_;
  QtNetwork network_;
  QtDialogs dialogs_{&window_.form()};
  QtCommonDialog commonDialog_{
      &window_.form(),
      [this] { return DesktopSpeaks(dialogs_.IsGreek(), QLocale::system().uiLanguages()); }};
  QtAttention attention_{&window_.form()};

  Platform view_;
};

}  // namespace verlume::qt
