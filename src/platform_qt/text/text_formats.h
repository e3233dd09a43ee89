// The formats of the text that peers write into a QTextDocument.
#pragma once

#include <QTextCharFormat>
#include <cstddef>
#include <map>
#include <string>
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

  explicit TextFormats(std::size_t most = kMost) : most_(most) {}

  // The format in Qt's terms. One that is not known yet, when there are so many, keeps its style
  // (bold, italic, underlined, struck out) and is otherwise the default format.
  const QTextCharFormat& Of(const richtext::CharFormat& format,
                            const std::vector<richtext::Font>& fonts);
  // For a document that has been emptied.
  void Clear() { known_.clear(); }

 private:
  // The name of its font stands beside the format, whose own font is 0.
  using Key = std::pair<richtext::CharFormat, std::u16string>;

  const std::size_t most_;
  std::map<Key, QTextCharFormat> known_;
};

}  // namespace verlume::qt
