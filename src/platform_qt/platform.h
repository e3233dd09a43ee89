// The whole Qt platform, in one object that outlives the program.
#pragma once

#include <QDir>

#include "platform/platform.h"
#include "platform_qt/dialogs/common_dialog.h"
#include "platform_qt/dialogs/dialogs.h"
#include "platform_qt/help/help_viewer.h"
#include "platform_qt/net/socket.h"
#include "platform_qt/system/file_system.h"
#include "platform_qt/system/system.h"
#include "platform_qt/windows/about_window.h"
#include "platform_qt/windows/macro_window.h"
#include "platform_qt/windows/main_window.h"
#include "platform_qt/windows/window_memory.h"

namespace verlume::qt {

// What has to be said before the QApplication is made.
void PrepareApplication();

class QtPlatform {
 public:
  QtPlatform();
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  Platform& View() { return view_; }

  // Handles events until the program ends; the process's exit status.
  int Run() { return application_.Run(); }

  // Whether the end of the QApplication would have to wait for the system to look up a host name.
  bool IsLookingUp() const { return socket_.IsLookingUp(); }

 private:
  QtFileSystem files_;
  QtClock clock_;
  QtLocale locale_;
  QtApplication application_;
  QtSystemTools tools_;
  QtMainWindow window_{files_};
  QtHelpViewer help_{&window_.form()};
  QtAboutWindow about_{&window_.form()};
  QtMacroWindow macros_{&window_.form(), files_};
  QtWindowMemory windowMemory_{
      &window_.form(), QDir(ToQt(application_.SettingsFolder())).filePath("Verlume.window")};
  QtSocket socket_;
  QtDialogs dialogs_{&window_.form()};
  QtCommonDialog commonDialog_{&window_.form()};

  Platform view_;
};

}  // namespace verlume::qt
