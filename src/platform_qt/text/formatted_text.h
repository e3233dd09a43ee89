// Text with its formats, as a QTextDocument can take it in.
#pragma once

#include <QString>
#include <QTextCharFormat>
#include <map>
#include <string_view>
#include <tuple>
#include <vector>

#include "platform_qt/text/seams.h"
#include "richtext/document.h"

namespace verlume::qt {

// Text as a document of Qt's can hold it. Line breaks are '\n' (or blanks), "\r\n" is one; the
// units that Qt gives a meaning of its own become U+FFFD, so that positions never drift.
QString SafeText(std::u16string_view text, Lines lines);

// Safe text, and the formats of its pieces in their order; their lengths add up to the text's.
struct FormattedText {
  struct Piece {
    qsizetype length;
    QTextCharFormat format;
  };

  FormattedText() = default;
  FormattedText(std::u16string_view plain, const QTextCharFormat& format, Lines lines);
  FormattedText(richtext::Document document, Lines lines);

  QString text;
  std::vector<Piece> pieces;
};

// A document taken apart, so that a long one need not become Qt's all at once.
class DocumentParts {
 public:
  DocumentParts(richtext::Document document, Lines lines);
  // The parts are made of its own copy.
  DocumentParts(const DocumentParts&) = delete;
  DocumentParts& operator=(const DocumentParts&) = delete;

  bool IsDone() const { return at_ == document_.text.size(); }
  // The next units, about so many: no character is parted.
  FormattedText Next(std::size_t units);

 private:
  const QTextCharFormat& FormatOf(const richtext::CharFormat& format);

  using Key = std::tuple<int, int, Color, bool, bool, bool, bool>;

  const richtext::Document document_;
  const Lines lines_;
  std::size_t at_ = 0;     // in the text
  std::size_t run_ = 0;    // the one at that place
  std::size_t inRun_ = 0;  // and how much of it has been given
  // A format of a long document is made once, not with each of its runs.
  std::map<Key, QTextCharFormat> formats_;
};

}  // namespace verlume::qt
