#include "platform_qt/controls/key_codes.h"

#include <string_view>

#include "platform/char_code.h"
#include "platform/rich_text_box.h"

namespace verlume::qt {
namespace {

using namespace std::string_view_literals;

// The letters on the keys A to Z of a Greek keyboard; 0 if the key has no letter.
constexpr std::u16string_view kGreekKeys = u"ΑΒΨΔΕΦΓΗΙΞΚΛΜΝΟΠ\0ΡΣΤΘΩ\0ΧΥΖ"sv;

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
    case Qt::Key_End:
      return key_code::kEnd;
    case Qt::Key_Up:
      return key_code::kUp;
    case Qt::Key_Right:
      return key_code::kRight;
    case Qt::Key_Down:
      return key_code::kDown;
    default:
      return key_code::kOther;
  }
}

int ShiftOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers();
  return (held & Qt::ShiftModifier ? 1 : 0) | (held & Qt::ControlModifier ? 2 : 0) |
         (held & Qt::AltModifier ? 4 : 0);
}

int CharCodeOf(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backtab) return 0;
  if (IsEnter(event)) return HoldsControlAlone(event) ? char_code::kCtrlEnter : char_code::kEnter;
  if (HoldsControlAlone(event)) {
    const int key = LatinKeyOf(event);
    return key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + char_code::kCtrlA : 0;
  }
  const QString text = event.text();
  if (text.isEmpty() || text.front() == QChar(char_code::kDelete)) return 0;
  return text.front().unicode();
}

Qt::Key LatinKeyOf(const QKeyEvent& event) {
  const int key = event.key();
  if (key <= 0xFF || key > 0xFFFF) return Qt::Key(key);
  const std::size_t place = kGreekKeys.find(static_cast<char16_t>(key));
  return place == kGreekKeys.npos ? Qt::Key(key) : Qt::Key(Qt::Key_A + int(place));
}

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace verlume::qt
