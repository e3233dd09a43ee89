#include "platform_qt/qt_rich_text_box.h"

#include <QTextDocument>
#include <algorithm>

#include "platform_qt/qt_rich_text_widget.h"
#include "platform_qt/qt_text.h"
#include "platform_qt/qt_text_format.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::qt {

using ProgramChange = RichTextWidget::ProgramChange;

QtRichTextBox::QtRichTextBox(QWidget* parent, FileSystem& files, Lines lines)
    : QtRichTextBox(new RichTextWidget(parent, lines), files, lines) {}

QtRichTextBox::QtRichTextBox(RichTextWidget* widget, FileSystem& files, Lines lines)
    : QtControl(widget), view_(widget), files_(files), lines_(lines) {
  SetLocked(false);
  ReplaceAll([](QTextCursor& cursor) { KeepFormatIfEmpty(cursor, OwnFormat()); });
  widget->SetEvents(this);
}

QtRichTextBox::~QtRichTextBox() {
  if (view_) view_->SetEvents(nullptr);
}

std::u16string QtRichTextBox::Text() const {
  // Not toPlainText(), which makes blanks of no-break spaces.
  return FromQt(widget_->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n'));
}

std::size_t QtRichTextBox::TextLength() const {
  // The document counts a separator behind its last line.
  return static_cast<std::size_t>(widget_->document()->characterCount() - 1);
}

void QtRichTextBox::SetText(std::u16string_view text) {
  const QTextCharFormat format = FormatOfFirst(widget_->textCursor());
  ReplaceAll([&](QTextCursor& cursor) {
    KeepFormatIfEmpty(cursor, format);
    InsertText(cursor, text, lines_);
  });
}

void QtRichTextBox::SetRtf(std::u16string_view rtf) {
  ReplaceAll(richtext::ReadRtf(rtf));
}

void QtRichTextBox::ReplaceAll(const richtext::Document& document) {
  const QTextCharFormat format = FormatOfFirst(widget_->textCursor());
  ReplaceAll([&](QTextCursor& cursor) {
    KeepFormatIfEmpty(cursor, format);
    InsertDocument(cursor, document, lines_);
  });
}

void QtRichTextBox::ReplaceAll(const std::function<void(QTextCursor&)>& fill) {
  {
    const ProgramChange change(*view_);
    QTextCursor cursor(widget_->document());
    cursor.beginEditBlock();
    widget_->document()->clear();
    fill(cursor);
    cursor.endEditBlock();
    widget_->document()->clearUndoRedoStacks();
  }
  Select(0, 0);
}

std::u16string QtRichTextBox::Rtf() const {
  return richtext::WriteRtf(Content());
}

richtext::Document QtRichTextBox::Content() const {
  QTextCursor cursor(widget_->document());
  cursor.select(QTextCursor::Document);
  return SelectedDocument(cursor, view_->Charset());
}

std::size_t QtRichTextBox::SelStart() const {
  return static_cast<std::size_t>(widget_->textCursor().selectionStart());
}

std::size_t QtRichTextBox::SelLength() const {
  const QTextCursor cursor = widget_->textCursor();
  return static_cast<std::size_t>(cursor.selectionEnd() - cursor.selectionStart());
}

void QtRichTextBox::Select(std::size_t start, std::size_t length) {
  {
    const ProgramChange change(*view_);
    const std::size_t from = std::min(start, TextLength());
    const std::size_t to = from + std::min(length, TextLength() - from);
    QTextCursor cursor(widget_->document());
    cursor.setPosition(static_cast<int>(from));
    cursor.setPosition(static_cast<int>(to), QTextCursor::KeepAnchor);
    widget_->setTextCursor(cursor);
    widget_->ensureCursorVisible();
  }
  if (onSelChange) onSelChange();
}

SelectionFormat QtRichTextBox::SelFormat() const {
  return SelectedFormat(widget_->textCursor());
}

void QtRichTextBox::SetSelFormat(const SelectionFormat& format) {
  const ProgramChange change(*view_);
  widget_->mergeCurrentCharFormat(ToQt(format));
  QTextCursor cursor = widget_->textCursor();
  KeepFormatIfEmpty(cursor, cursor.charFormat());
}

void QtRichTextBox::SetSelText(std::u16string_view text) {
  const ProgramChange change(*view_);
  QTextCursor cursor = widget_->textCursor();
  InsertText(cursor, text, lines_);
  FollowTo(cursor);
}

void QtRichTextBox::SetSelRtf(std::u16string_view rtf) {
  const ProgramChange change(*view_);
  QTextCursor cursor = widget_->textCursor();
  InsertDocument(cursor, richtext::ReadRtf(rtf), lines_);
  FollowTo(cursor);
}

void QtRichTextBox::FollowTo(const QTextCursor& cursor) {
  // The widget's own cursor moves with what is inserted; setting it costs half a line's time.
  const QTextCursor own = widget_->textCursor();
  if (own.hasSelection() || own.position() != cursor.position()) widget_->setTextCursor(cursor);
}

void QtRichTextBox::SetFontCharset(int charset) {
  view_->SetCharset(charset);
}

void QtRichTextBox::LoadFile(std::u16string_view path, TextFileFormat format) {
  if (format == TextFileFormat::PlainText) return SetText(files_.ReadText(path));
  ReplaceAll(richtext::ReadRtf(files_.ReadBytes(path)));
}

void QtRichTextBox::SaveFile(std::u16string_view path, TextFileFormat format) const {
  const bool isPlain = format == TextFileFormat::PlainText;
  files_.ReplaceText(path, isPlain ? Text() : richtext::WriteRtfFile(Content()));
}

void QtRichTextBox::SetLocked(bool locked) {
  widget_->setReadOnly(locked);
  if (locked) {
    // The keyboard selects, copies and scrolls too.
    widget_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  widget_->setUndoRedoEnabled(!locked && lines_ == Lines::Single);
}

bool QtRichTextBox::Locked() const {
  return widget_->isReadOnly();
}

void QtRichTextBox::SetBackColor(Color color) {
  QPalette palette = widget_->palette();
  palette.setColor(QPalette::Base, ToQt(color));
  widget_->setPalette(palette);
}

Color QtRichTextBox::BackColor() const {
  return FromQt(widget_->palette().color(QPalette::Base));
}

}  // namespace verlume::qt
