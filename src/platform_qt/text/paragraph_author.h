// Who the paragraphs of a QTextDocument are from. It is a property of the format of the blocks:
// text that is inserted takes it from the block it is inserted into, and nothing that is copied or
// saved has it.
#pragma once

#include <QTextBlock>
#include <QTextCursor>

#include "platform/rich_text_box.h"
#include "platform_qt/text/seams.h"

namespace verlume::qt {

Author AuthorOf(const QTextBlock& block);
// Sets the author of the paragraphs that the selection touches, with all their blocks.
void SetAuthor(const QTextCursor& selection, Author author, Lines lines);

// Of the paragraphs from `author`, counted from the end, leaves `skipped` alone and gives the next
// `count` to `other`.
struct AuthorChange {
  Author author;
  Author other;
  std::size_t skipped;
  std::size_t count;
};
void ChangeLastAuthors(const QTextDocument& document, AuthorChange change, Lines lines);

}  // namespace verlume::qt
