#include <QProcess>

#include "platform_qt/qt_system.h"
#include "platform_qt/qt_text.h"

namespace verlume::qt {

std::optional<std::u16string> QtSystemTools::LocalMachineText(std::u16string_view,
                                                              std::u16string_view) const {
  return std::nullopt;
}

bool QtSystemTools::StartProgram(std::u16string_view path) {
  return QProcess::startDetached(ToQt(path), {});
}

}  // namespace verlume::qt
