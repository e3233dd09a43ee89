#include "platform_qt/text/text_formats.h"

#include "platform_qt/text/text_format.h"

namespace verlume::qt {
namespace {

richtext::CharFormat InDefaultFont(richtext::CharFormat format) {
  format.font = 0;
  format.halfPoints = static_cast<std::uint16_t>(kDefaultFontSize * 2);
  return format;
}

richtext::CharFormat StyleOf(const richtext::CharFormat& format) {
  richtext::CharFormat style = InDefaultFont(format);
  style.color = kAutomaticColor;
  return style;
}

}  // namespace

QTextCharFormat TextFormats::ToQt(const Key& key) {
  return qt::ToQt(key.first, {{key.second, richtext::kGreekCharset}});
}

const QTextCharFormat& TextFormats::Of(const richtext::CharFormat& format,
                                       const std::vector<richtext::Font>& fonts) {
  Key key{format, format.font < fonts.size() ? fonts[format.font].name : std::u16string()};
  key.first.font = 0;
  if (const auto known = known_.find(key); known != known_.end()) return known->second;
  // The styles are few: they are always kept.
  if (known_.size() >= most_) {
    key = {StyleOf(format), std::u16string()};
  } else if (!KeepsFont(key)) {
    key = {InDefaultFont(format), std::u16string()};
  }
  if (const auto known = known_.find(key); known != known_.end()) return known->second;
  return known_.emplace(key, ToQt(key)).first->second;
}

// Names of fonts that are not on this computer are shown in the same font.
bool TextFormats::KeepsFont(const Key& key) {
  const richtext::CharFormat& format = key.first;
  const QStringList families = ToQt(key).fontFamilies().toStringList();
  const Font font(families.front(), format.halfPoints, format.bold, format.italic);
  if (fonts_.size() < mostFonts_) fonts_.insert(font);
  return fonts_.count(font) > 0;
}

void TextFormats::Clear() {
  known_.clear();
  fonts_.clear();
}

}  // namespace verlume::qt
