// Converts between the logic's strings and colours and Qt's.
#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "richtext/document.h"

namespace verlume::qt {

// Every UTF-16 unit is kept, including lone surrogates and byte order marks.
QString ToQt(std::u16string_view text);
std::u16string FromQt(const QString& text);

// A path of Qt's with the separators of the system, as the user knows it.
std::u16string PathFromQt(const QString& path);

// 0x00BBGGRR <-> QColor; the automatic colour is black.
QColor ToQt(Color color);
Color FromQt(const QColor& color);

}  // namespace verlume::qt
