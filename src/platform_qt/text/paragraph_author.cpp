#include "platform_qt/text/paragraph_author.h"

#include <QTextDocument>

namespace verlume::qt {
namespace {

constexpr int kAuthor = QTextFormat::UserProperty + 1;

QTextBlock FirstOfParagraph(QTextBlock block, Lines lines) {
  while (block.previous().isValid() && BeginsAtSeam(block, lines)) block = block.previous();
  return block;
}

QTextBlock LastOfParagraph(QTextBlock block, Lines lines) {
  while (block.next().isValid() && BeginsAtSeam(block.next(), lines)) block = block.next();
  return block;
}

}  // namespace

Author AuthorOf(const QTextBlock& block) {
  // 0, that is Author::None, without the property.
  return static_cast<Author>(block.blockFormat().intProperty(kAuthor));
}

void SetAuthor(const QTextCursor& selection, Author author, Lines lines) {
  const QTextDocument& document = *selection.document();
  const QTextBlock first = FirstOfParagraph(document.findBlock(selection.selectionStart()), lines);
  const QTextBlock last = LastOfParagraph(document.findBlock(selection.selectionEnd()), lines);
  // A new line has the author of the one before, and setting it takes a while.
  if (first == last && AuthorOf(first) == author) return;
  QTextCursor blocks(first);
  blocks.setPosition(last.position(), QTextCursor::KeepAnchor);
  QTextBlockFormat format;
  format.setProperty(kAuthor, static_cast<int>(author));
  blocks.mergeBlockFormat(format);
}

void ChangeLastAuthors(const QTextDocument& document, AuthorChange change, Lines lines) {
  QTextBlock block = document.lastBlock();
  for (; block.isValid() && change.count > 0; block = block.previous()) {
    block = FirstOfParagraph(block, lines);
    if (AuthorOf(block) != change.author) continue;
    if (change.skipped > 0) {
      --change.skipped;
    } else {
      SetAuthor(QTextCursor(block), change.other, lines);
      --change.count;
    }
  }
}

}  // namespace verlume::qt
