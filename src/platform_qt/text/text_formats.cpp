#include "platform_qt/text/text_formats.h"

#include "platform_qt/text/text_format.h"

namespace verlume::qt {
namespace {

richtext::CharFormat StyleOf(const richtext::CharFormat& format) {
  richtext::CharFormat style = format;
  style.font = 0;
  style.halfPoints = static_cast<std::uint16_t>(kDefaultFontSize * 2);
  style.color = kAutomaticColor;
  return style;
}

}  // namespace

const QTextCharFormat& TextFormats::Of(const richtext::CharFormat& format,
                                       const std::vector<richtext::Font>& fonts) {
  Key key{format, format.font < fonts.size() ? fonts[format.font].name : std::u16string()};
  key.first.font = 0;
  if (const auto known = known_.find(key); known != known_.end()) return known->second;
  // The styles are few: they are always kept.
  if (known_.size() >= most_) key = {StyleOf(format), std::u16string()};
  if (const auto known = known_.find(key); known != known_.end()) return known->second;
  const QTextCharFormat converted = ToQt(key.first, {{key.second, richtext::kGreekCharset}});
  return known_.emplace(std::move(key), converted).first->second;
}

}  // namespace verlume::qt
