// The whole Qt platform, in one object that outlives the program.
#pragma once

#include <QDir>

#include "platform/platform.h"
#include "platform_qt/qt_about_window.h"
#include "platform_qt/qt_common_dialog.h"
#include "platform_qt/qt_dialogs.h"
#include "platform_qt/qt_file_system.h"
#include "platform_qt/qt_help_viewer.h"
#include "platform_qt/qt_macro_window.h"
#include "platform_qt/qt_main_window.h"
#include "platform_qt/qt_socket.h"
#include "platform_qt/qt_system.h"
#include "platform_qt/qt_window_memory.h"

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

  Platform view_ = {window_.View(), about_.View(), macros_.View(), socket_,
                    dialogs_,       commonDialog_, files_,         clock_,
                    locale_,        application_,  help_,          tools_};
};

}  // namespace verlume::qt
