#include "platform_qt/convert/text.h"

#include <QDir>

namespace verlume::qt {

QString ToQt(std::u16string_view text) {
  // Not fromUtf16, which drops a byte order mark.
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

std::u16string FromQt(const QString& text) {
  return text.toStdU16String();
}

std::u16string PathFromQt(const QString& path) {
  return FromQt(QDir::toNativeSeparators(path));
}

QColor ToQt(Color color) {
  return color == kAutomaticColor ? QColor(Qt::black)
                                  : QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

Color FromQt(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace verlume::qt
