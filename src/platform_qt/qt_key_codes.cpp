#include "platform_qt/qt_key_codes.h"

#include "platform/rich_text_box.h"

namespace verlume::qt {
namespace {

constexpr int kLineFeed = 10;
constexpr int kReturn = 13;
constexpr int kDelete = 127;

bool HoldsControlAlone(const QKeyEvent& event) {
  return event.modifiers() & Qt::ControlModifier && !(event.modifiers() & Qt::AltModifier);
}

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return key_code::kTab;
    case Qt::Key_Escape:
      return key_code::kEscape;
    case Qt::Key_PageUp:
      return key_code::kPageUp;
    case Qt::Key_PageDown:
      return key_code::kPageDown;
    default:
      return 0;
  }
}

int ShiftOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers();
  return (held & Qt::ShiftModifier ? 1 : 0) | (held & Qt::ControlModifier ? 2 : 0) |
         (held & Qt::AltModifier ? 4 : 0);
}

int CharCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (IsEnter(event)) return HoldsControlAlone(event) ? kLineFeed : kReturn;
  if (HoldsControlAlone(event)) {
    return key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + 1 : 0;
  }
  const QString text = event.text();
  if (text.isEmpty() || text.front() == QChar(kDelete)) return 0;
  return text.front().unicode();
}

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace verlume::qt
