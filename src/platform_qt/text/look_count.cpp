#include "platform_qt/text/look_count.h"

#include <QChar>

namespace verlume::qt {
namespace {

// The characters before this one are in scripts that share their fonts.
constexpr char16_t kFirstToCount = 0x0530;

constexpr char16_t kFirstSign = 0x2100;

// The letters of a script are in one font. Signs that go with any script are in one for each 256 of
// them, more or less. 0 for what shares the font of the text before it.
int FontGroupAt(std::u16string_view text, std::size_t at) {
  const char16_t unit = text[at];
  if (unit < kFirstToCount || QChar::isLowSurrogate(unit)) return 0;
  const bool isPair =
      QChar::isHighSurrogate(unit) && at + 1 < text.size() && QChar::isLowSurrogate(text[at + 1]);
  const char32_t character = isPair ? QChar::surrogateToUcs4(unit, text[at + 1]) : unit;
  const QChar::Script script = QChar::script(character);
  if (script > QChar::Script_Common) return script;
  return character < kFirstSign ? 0 : QChar::ScriptCount + static_cast<int>(character / 256);
}

// Neither colours nor lines need another font.
richtext::CharFormat FontOf(richtext::CharFormat format) {
  format.color = kAutomaticColor;
  format.underline = format.strikethrough = false;
  return format;
}

}  // namespace

bool LookCount::Add(const Look& look) {
  if (looks_.size() == most_) return looks_.count(look) > 0;
  looks_.insert(look);
  return true;
}

std::size_t LookCount::LengthWithin(std::u16string_view text, const richtext::CharFormat& format) {
  Look look(FontOf(format), 0);
  if (!Add(look)) return 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const int group = FontGroupAt(text, i);
    if (group == 0 || group == look.second) continue;
    look.second = group;
    if (!Add(look)) return i;
  }
  return text.size();
}

std::size_t CountLooks(const richtext::Document& document, std::size_t most) {
  LookCount count(most);
  std::u16string_view rest = document.text;
  for (const richtext::Run& run : document.runs) {
    if (count.LengthWithin(rest.substr(0, run.length), run.format) < run.length) return most + 1;
    rest.remove_prefix(run.length);
  }
  return count.Looks();
}

}  // namespace verlume::qt
