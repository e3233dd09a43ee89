// The formats of the text that peers write into a QTextDocument.
#pragma once

#include <QTextCharFormat>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "richtext/document.h"

namespace verlume::qt {

// Qt's document keeps every format that it has ever held, 700 bytes each, and a peer can name
// another one with each ten bytes that it sends. So only so many are told apart.
class TextFormats {
 public:
  // About 3 MB of formats, and far more than a conversation has.
  static constexpr std::size_t kMost = 4'096;
  // Fonts are families, sizes and styles. Whenever Qt opens one it goes through all that are shown,
  // so the more there are the slower is each.
  static constexpr std::size_t kMostFonts = 128;

  explicit TextFormats(std::size_t most = kMost, std::size_t mostFonts = kMostFonts)
      : most_(most), mostFonts_(mostFonts) {}

  // The format in Qt's terms. One that is not known yet, when there are so many, keeps its style
  // (bold, italic, underlined, struck out) and is otherwise the default format. One in a font too
  // many keeps its colour as well.
  const QTextCharFormat& Of(const richtext::CharFormat& format,
                            const std::vector<richtext::Font>& fonts);
  // For a document that has been emptied.
  void Clear();

 private:
  // The name of its font stands beside the format, whose own font is 0.
  using Key = std::pair<richtext::CharFormat, std::u16string>;

  // As it is shown: family, half points, bold, italic.
  using Font = std::tuple<QString, int, bool, bool>;

  static QTextCharFormat ToQt(const Key& key);
  bool KeepsFont(const Key& key);

  const std::size_t most_;
  const std::size_t mostFonts_;
  std::map<Key, QTextCharFormat> known_;
  std::set<Font> fonts_;
};

}  // namespace verlume::qt
