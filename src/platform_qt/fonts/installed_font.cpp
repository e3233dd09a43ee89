#include "platform_qt/fonts/installed_font.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <algorithm>

namespace verlume::qt {
namespace {

bool IsInstalled(const QString& family) {
  return !QFontDatabase::styles(family).isEmpty();
}

// "" if no font is installed.
QString InstalledFamilyFor(const QFont& font) {
  const QString resolved = QFontInfo(font).family();
  if (IsInstalled(resolved)) return resolved;
  const QStringList families = QFontDatabase::families();
  const auto found = std::find_if(families.begin(), families.end(), IsInstalled);
  return found == families.end() ? QString() : *found;
}

}  // namespace

void UseInstalledFont() {
  QFont font = QApplication::font();
  if (IsInstalled(font.family())) return;
  const QString family = InstalledFamilyFor(font);
  if (family.isEmpty()) return;
  font.setFamilies({family});
  QApplication::setFont(font);
}

}  // namespace verlume::qt
