#include "platform_qt/windows/look.h"

#include <QApplication>
#include <QStyleFactory>

#include "platform_qt/fonts/installed_font.h"
#include "platform_qt/os/machine.h"
#include "platform_qt/windows/readable_style.h"

namespace verlume::qt {

// Qt then takes dark colours from Windows.
void AskForLook() {
  constexpr const char* kPlatform = "QT_QPA_PLATFORM";
  if (NeedsDarkStyle() && !qEnvironmentVariableIsSet(kPlatform)) {
    qputenv(kPlatform, "windows:darkmode=2");
  }
}

// Qt's style for Windows is always light.
void TakeOnLook() {
  UseInstalledFont();
  QStyle* style = NeedsDarkStyle() ? QStyleFactory::create(QStringLiteral("fusion")) : nullptr;
  QApplication::setStyle(new ReadableStyle(style));
}

}  // namespace verlume::qt
