// What is selected, and where.
#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/link_pointer.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/text/rich_text_widget.h"

namespace verlume::qt {
namespace {

// The line of a paragraph in which the cursor is, as it is shown.
QTextLine LineOf(const QTextCursor& cursor) {
  const QTextBlock block = cursor.block();
  // Lays the block out, if it is not yet.
  block.document()->documentLayout()->blockBoundingRect(block);
  return block.layout()->lineForTextPosition(cursor.positionInBlock());
}

}  // namespace

std::size_t QtRichTextBox::SelStart() const {
  return TextPosition(Cursor().selectionStart());
}

std::size_t QtRichTextBox::SelLength() const {
  const QTextCursor cursor = Cursor();
  return TextPosition(cursor.selectionEnd()) - TextPosition(cursor.selectionStart());
}

void QtRichTextBox::Select(std::size_t start, std::size_t length) {
  const RichTextUpdate update(*this);
  const std::size_t from = std::min(start, TextLength());
  const std::size_t to = from + std::min(length, TextLength() - from);
  QTextCursor cursor(widget_->document());
  cursor.setPosition(DocumentPosition(from));
  cursor.setPosition(DocumentPosition(to), QTextCursor::KeepAnchor);
  SetCursor(cursor);
  RaiseSelChange();
}

bool QtRichTextBox::IsInFirstLine() const {
  const QTextCursor cursor = Cursor();
  return cursor.block() == widget_->document()->firstBlock() && LineOf(cursor).lineNumber() <= 0;
}

bool QtRichTextBox::IsInLastLine() const {
  const QTextCursor cursor = Cursor();
  const QTextLine line = LineOf(cursor);
  return cursor.block() == widget_->document()->lastBlock() &&
         line.lineNumber() == cursor.block().layout()->lineCount() - 1;
}

std::u16string QtRichTextBox::SelText() const {
  return SelectedText(Cursor(), lines_);
}

void QtRichTextBox::SelectAll() {
  widget_->selectAll();
}

void QtRichTextBox::Copy(TextFileFormat format) {
  if (format == TextFileFormat::RichText) {
    widget_->copy();
  } else if (widget_->textCursor().hasSelection()) {
    QGuiApplication::clipboard()->setText(ToQt(SelText()));
  }
}

std::u16string QtRichTextBox::LinkAt(std::size_t position) const {
  return AddressIn(LinkAround(*widget_->document(), DocumentPosition(position)));
}

void QtRichTextBox::SetLinkHint(std::u16string_view hint) {
  view_->links().SetHint(ToQt(hint));
}

}  // namespace verlume::qt
