#include <QProcess>

#include "platform_qt/convert/text.h"
#include "platform_qt/os/machine.h"
#include "platform_qt/system/system.h"

namespace verlume::qt {

std::optional<std::u16string> QtSystemTools::LocalMachineText(std::u16string_view key,
                                                              std::u16string_view value) const {
  return RegistryText(key, value);
}

bool QtSystemTools::StartProgram(std::u16string_view path) {
  return QProcess::startDetached(ToQt(path), {});
}

}  // namespace verlume::qt
