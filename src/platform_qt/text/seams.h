// The seams of a QTextDocument: where a line that is too long to be laid out as a whole goes on in
// another block. Between two such blocks there is nothing, neither in the text nor in a position.
#pragma once

#include <QObject>
#include <QTextBlock>
#include <QTextDocument>
#include <cstddef>
#include <vector>

namespace verlume::qt {

// Whether a box holds lines or one line, where every line break that is put in becomes a blank.
enum class Lines { Many, Single };

// Every block of a single line but its first begins at a seam; among many lines those that are
// marked.
bool BeginsAtSeam(const QTextBlock& block, Lines lines);
// To be done in the edit block that makes the text block.
void MarkSeam(QTextBlock block);

// Where the seams of a document are, while it changes. It begins as a document without any.
class Seams : public QObject {
 public:
  // The document outlives this or dies with it.
  Seams(QTextDocument& document, Lines lines);

  // A position in the text for one in the document, and back: before the seam where there is one.
  std::size_t TextPosition(int position) const;
  int DocumentPosition(std::size_t position) const;

 private:
  void NoteChange(int position, int removed, int added);
  void KeepMark(QTextBlock block) const;

  QTextDocument& document_;
  const Lines lines_;
  std::vector<int> places_;  // in the document, of the first character behind each
};

}  // namespace verlume::qt
