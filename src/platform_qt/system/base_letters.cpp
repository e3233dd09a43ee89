#include "platform_qt/system/base_letters.h"

#include <QChar>
#include <QString>

namespace verlume::qt {
namespace {

// Marks above, below or through a letter. Marks that make it another letter (kana voicing, Indic
// vowel signs) have lower combining classes or none.
bool IsAccent(QChar c) {
  const int combiningClass = c.combiningClass();
  return combiningClass == QChar::Combining_IotaSubscript || combiningClass == 1 ||
         (combiningClass >= QChar::Combining_BelowLeftAttached && combiningClass <= 234);
}

QChar WithoutAccents(QChar c) {
  for (;;) {
    const auto tag = c.decompositionTag();
    if (tag != QChar::Canonical && tag != QChar::NoBreak) return c;
    const QString parts = c.decomposition();
    if (parts.size() > 2 || (parts.size() == 2 && !IsAccent(parts[1]))) return c;
    if (parts.size() == 2 && IsAccent(parts[0])) return c;
    c = parts[0];
  }
}

char16_t BaseLetterOf(QChar c) {
  if (c.isSurrogate()) return c.unicode();
  if (IsAccent(c)) return 0;
  // Folding can produce another accented letter.
  return WithoutAccents(WithoutAccents(c).toCaseFolded()).unicode();
}

}  // namespace

const std::array<char16_t, 0x10000>& BaseLetters() {
  static const auto& letters = *[] {
    auto* table = new std::array<char16_t, 0x10000>;
    for (std::size_t unit = 0; unit < table->size(); ++unit) {
      (*table)[unit] = BaseLetterOf(QChar(static_cast<char16_t>(unit)));
    }
    return table;
  }();
  return letters;
}

}  // namespace verlume::qt
