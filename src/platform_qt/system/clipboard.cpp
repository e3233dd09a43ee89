#include "platform_qt/system/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform_qt/convert/text.h"

namespace verlume::qt {

void QtClipboard::SetText(std::u16string_view text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

}  // namespace verlume::qt
