#include "platform_qt/fonts/missing_parts.h"

#include <algorithm>

namespace verlume::qt {
namespace {

// The characters before this one are in scripts that every computer shows.
constexpr char16_t kFirstToLookAt = 0x0530;
constexpr char16_t kBox = 0x25A1;

}  // namespace

bool NeedsALook(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c >= kFirstToLookAt; });
}

// Qt looks for one font for all that follows a letter until one of another script, blanks and
// digits too, and for what stands before the first letter.
QList<TextPart> PartsInMissingScripts(QStringView text, const ShowsScript& shows) {
  QList<TextPart> parts;
  QChar::Script script = QChar::Script_Common;
  bool isMissing = false;
  for (qsizetype i = 0, next = 0; i < text.size(); i = next) {
    next = i + 1;
    char32_t c = text[i].unicode();
    if (text[i].isHighSurrogate() && next < text.size() && text[next].isLowSurrogate()) {
      c = QChar::surrogateToUcs4(text[i], text[next++]);
    }
    const QChar::Script own = QChar::script(c);
    const bool isFirst = script <= QChar::Script_Common;
    if (own > QChar::Script_Common && own != script && (isFirst || !QChar::isMark(c))) {
      script = own;
      isMissing = !shows(script);
      if (isMissing) parts.append({isFirst ? 0 : i, 0});
    }
    if (isMissing) parts.back().length = next - parts.back().start;
  }
  return parts;
}

QString WithBoxes(QString text, const ShowsScript& shows) {
  for (const TextPart& part : PartsInMissingScripts(text, shows)) {
    for (qsizetype i = part.start; i < part.start + part.length; ++i) {
      if (text[i].isLetter() || text[i].isMark() || text[i].isSurrogate()) text[i] = kBox;
    }
  }
  return text;
}

}  // namespace verlume::qt
