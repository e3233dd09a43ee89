// What is shown beside the text: who it is from, rules, what is unread; and how it looks.
#include <QTextBlock>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/author_margin.h"
#include "platform_qt/text/open_direction.h"
#include "platform_qt/text/paragraph_author.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/text/rich_text_widget.h"

namespace verlume::qt {

using ProgramChange = RichTextWidget::ProgramChange;

void QtRichTextBox::SetSelAuthor(Author author) {
  const ProgramChange change(*view_);
  SetAuthor(Cursor(), author, lines_);
}

Author QtRichTextBox::SelAuthor() const {
  return AuthorOf(widget_->document()->findBlock(Cursor().selectionStart()));
}

void QtRichTextBox::ChangeAuthor(Author author, Author other, std::size_t skipped,
                                 std::size_t count) {
  const ProgramChange change(*view_);
  ChangeLastAuthors(*widget_->document(), {author, other, skipped, count}, lines_);
}

void QtRichTextBox::SetAuthorWords(Author author, std::u16string_view words) {
  if (!margin_) {
    BeginLinesAtTheLeft(*widget_->document());
    margin_ = new AuthorMargin(*view_);
    margin_->SetDescription(ToQt(toolTip_));
  }
  margin_->SetWords(author, ToQt(words));
}

bool QtRichTextBox::ShowsEnd() const {
  return view_->ShowsEnd();
}

bool QtRichTextBox::IsPressed() const {
  return view_->IsPressed();
}

void QtRichTextBox::MarkUnread(std::optional<std::size_t> position, SignWords words) {
  const QTextDocument& document = *widget_->document();
  view_->MarkUnread(position ? document.findBlock(DocumentPosition(*position)) : QTextBlock());
  if (margin_) margin_->SetUnreadWords(std::move(words));
}

void QtRichTextBox::AddRule(SignWords words) {
  view_->AddRule(std::move(words));
  RefreshSigns();
}

void QtRichTextBox::RefreshSigns() {
  view_->viewport()->update();
  if (margin_) margin_->DescribeCaret();
}

void QtRichTextBox::SetToolTip(std::u16string_view text) {
  toolTip_ = text;
  QtControl::SetToolTip(text);
  if (margin_) margin_->SetDescription(ToQt(text));
}

void QtRichTextBox::SetBackColor(Color color) {
  view_->SetBackColor(color);
}

Color QtRichTextBox::BackColor() const {
  return FromQt(widget_->palette().color(QPalette::Base));
}

void QtRichTextBox::SetPlaceholder(std::u16string_view text) {
  widget_->setPlaceholderText(ToQt(text));
}

void QtRichTextBox::SetZoom(int percent) {
  view_->SetZoom(percent);
}

int QtRichTextBox::Zoom() const {
  return view_->Zoom();
}

}  // namespace verlume::qt
