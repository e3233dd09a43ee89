// Text with its formats, ready to be inserted into a QTextDocument.
#pragma once

#include <QString>
#include <QTextCharFormat>
#include <map>
#include <string_view>
#include <vector>

#include "platform_qt/text/seams.h"
#include "platform_qt/text/text_formats.h"
#include "richtext/document.h"

namespace verlume::qt {

// Text that a QTextDocument can hold. A line break becomes '\n', or a blank in a single line;
// "\r\n" is one line break. Units that Qt treats as control characters become U+FFFD, one for one,
// so that positions stay the same.
QString SafeText(std::u16string_view text, Lines lines);

// Safe text, and its pieces in order, each in one format. Their lengths add up to the text's.
struct FormattedText {
  struct Piece {
    qsizetype length;
    QTextCharFormat format;
  };

  FormattedText() = default;
  FormattedText(std::u16string_view plain, const QTextCharFormat& format, Lines lines);
  FormattedText(richtext::Document document, Lines lines, TextFormats* formats = nullptr);

  QString text;
  std::vector<Piece> pieces;
};

// Splits a document into parts, so that a long one need not be converted all at once.
class DocumentParts {
 public:
  // `formats` are those of the box, if these are limited; they must outlive this.
  DocumentParts(richtext::Document document, Lines lines, TextFormats* formats = nullptr);
  // Not copied, since the document may be long.
  DocumentParts(const DocumentParts&) = delete;
  DocumentParts& operator=(const DocumentParts&) = delete;

  bool IsDone() const { return at_ == document_.text.size(); }
  bool IsAtStart() const { return at_ == 0; }
  // The next part: `units` long, or one more so as not to split a surrogate pair, but no longer
  // than its first `looks` (look_count.h), two or more.
  FormattedText Next(std::size_t units, std::size_t looks);

 private:
  std::size_t EndOfPart(std::size_t units) const;
  const QTextCharFormat& FormatOf(const richtext::CharFormat& format);

  const richtext::Document document_;
  const Lines lines_;
  std::size_t at_ = 0;     // position in the text
  std::size_t run_ = 0;    // index of the run at that position
  std::size_t inRun_ = 0;  // how much of that run has been returned
  TextFormats* const boxFormats_;
  // Each format of a long document is converted once, not for every run that has it.
  std::map<richtext::CharFormat, QTextCharFormat> formats_;
};

}  // namespace verlume::qt
