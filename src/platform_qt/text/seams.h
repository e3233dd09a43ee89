// The seams of a QTextDocument: where a line that is too long to be laid out as a whole continues
// in another block. A seam is no character of the text, and positions in the text do not count it.
#pragma once

#include <QObject>
#include <QTextBlock>
#include <QTextDocument>
#include <cstddef>
#include <vector>

namespace verlume::qt {

// How many lines a box holds. In a single line every line break that is inserted becomes a blank.
enum class Lines { Many, Single };

// Whether the block continues the line of the block before it. In a single line every block does
// but the first, for which the answer has no meaning; among many lines those that are marked do.
bool BeginsAtSeam(const QTextBlock& block, Lines lines);
// Call it within the same edit block in which the text block is made.
void MarkSeam(QTextBlock block);

// Keeps track of where the seams of a document are while it changes. At first it must have none.
class Seams : public QObject {
 public:
  // The document must not be destroyed before this object.
  Seams(QTextDocument& document, Lines lines);

  // Convert a position in the document to one in the text, and back. Where there is a seam, the
  // position in the document is the one before it.
  std::size_t TextPosition(int position) const;
  int DocumentPosition(std::size_t position) const;

 private:
  void NoteChange(int position, int removed, int added);
  void KeepMark(QTextBlock block) const;

  QTextDocument& document_;
  const Lines lines_;
  std::vector<int> places_;  // positions in the document of the first character behind each seam
};

}  // namespace verlume::qt
