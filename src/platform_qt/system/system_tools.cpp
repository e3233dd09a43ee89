#include <QProcess>

#include "platform_qt/convert/text.h"
#include "platform_qt/system/system.h"

namespace verlume::qt {

std::optional<std::u16string> QtSystemTools::LocalMachineText(std::u16string_view,
                                                              std::u16string_view) const {
  return std::nullopt;
}

bool QtSystemTools::StartProgram(std::u16string_view path) {
  return QProcess::startDetached(ToQt(path), {});
}

}  // namespace verlume::qt
