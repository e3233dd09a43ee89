// The edge where the logic's strings and colours become Qt's, and back.
#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "richtext/document.h"

namespace verlume::qt {

inline QString ToQt(std::u16string_view text) {
  // Not fromUtf16, which takes a byte order mark for one.
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

// Keeps lone surrogates, which QString::toStdU16String does too: both are plain UTF-16 units.
inline std::u16string FromQt(const QString& text) {
  return text.toStdU16String();
}

// 0x00BBGGRR <-> QColor; the automatic colour is black.
inline QColor ToQt(Color color) {
  return color == kAutomaticColor ? QColor(Qt::black)
                                  : QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}
inline Color FromQt(const QColor& color) {
  return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace verlume::qt
