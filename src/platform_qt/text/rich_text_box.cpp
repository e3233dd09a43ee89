#include "platform_qt/text/rich_text_box.h"

#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "platform_qt/convert/text.h"
#include "platform_qt/text/author_margin.h"
#include "platform_qt/text/open_direction.h"
#include "platform_qt/text/paragraph_author.h"
#include "platform_qt/text/readable_text.h"
#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_format.h"
#include "platform_qt/text/text_loading.h"
#include "platform_qt/text/text_update.h"
#include "platform_qt/text/text_writing.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::qt {

namespace {

// How much a locked box inserts before events are handled again, in characters; each run counts as
// several. The rest is inserted between events.
constexpr std::size_t kLengthAtOnce = 8 * 1024;
constexpr std::size_t kLengthOfRun = 8;

}  // namespace

using ProgramChange = RichTextWidget::ProgramChange;

QtRichTextBox::QtRichTextBox(QWidget* parent, FileSystem& files, Lines lines)
    : QtRichTextBox(new RichTextWidget(parent, lines), files, lines) {}

QtRichTextBox::QtRichTextBox(RichTextWidget* widget, FileSystem& files, Lines lines)
    : QtControl(widget), view_(widget), files_(files), lines_(lines) {
  SetLocked(false);
  Clear(DefaultFormat());
  widget->SetEvents(this);
  turnEnd_.setSingleShot(true);
  QObject::connect(&turnEnd_, &QTimer::timeout, &turnEnd_, [this] { inThisTurn_ = 0; });
}

QtRichTextBox::~QtRichTextBox() {
  if (view_) view_->SetEvents(nullptr);
}

std::u16string QtRichTextBox::Text() const {
  return SelectedText(WholeText(), lines_);
}

std::u16string QtRichTextBox::Rtf() const {
  return richtext::WriteRtf(Content());
}

richtext::Document QtRichTextBox::Content() const {
  return SelectedDocument(WholeText(), view_->Charset(), lines_);
}

void QtRichTextBox::FinishInsertions() const {
  if (loading_) loading_->Finish();
  for (const auto& writing : writings_) writing->Finish();
}

QTextCursor QtRichTextBox::WholeText() const {
  FinishInsertions();
  QTextCursor cursor(widget_->document());
  cursor.select(QTextCursor::Document);
  return cursor;
}

std::size_t QtRichTextBox::TextLength() const {
  // The document counts a separator after its last line too.
  return TextPosition(widget_->document()->characterCount() - 1);
}

std::size_t QtRichTextBox::TextPosition(int position) const {
  return view_->seams().TextPosition(position);
}

int QtRichTextBox::DocumentPosition(std::size_t position) const {
  return view_->seams().DocumentPosition(position);
}

void QtRichTextBox::SetText(std::u16string_view text) {
  ReplaceAll(FormattedText(text, FormatOfFirst(widget_->textCursor()), lines_));
}

void QtRichTextBox::SetRtf(std::u16string_view rtf) {
  ReplaceAll(FormattedText(richtext::ReadRtf(rtf), lines_));
}

void QtRichTextBox::ReplaceAll(FormattedText text) {
  Clear(FormatOfFirst(widget_->textCursor()));
  {
    const ProgramChange change(*view_);
    QTextCursor cursor(widget_->document());
    Insert(cursor, std::move(text));
    widget_->document()->clearUndoRedoStacks();
  }
  Select(0, 0);
  RaiseChange();
}

void QtRichTextBox::Clear(const QTextCharFormat& format) {
  if (loading_) loading_->Abandon();
  loading_.reset();
  if (!std::exchange(writings_, {}).empty()) RaiseIfFinished();
  const ProgramChange change(*view_);
  widget_->document()->clear();
  QTextCursor cursor(widget_->document());
  KeepFormatIfEmpty(cursor, format);
}

QTextCursor QtRichTextBox::Cursor() const {
  return update_ ? update_->cursor : widget_->textCursor();
}

void QtRichTextBox::SetCursor(const QTextCursor& cursor) {
  if (update_) {
    update_->cursor = cursor;
  } else {
    view_->MoveCursorTo(cursor);
  }
}

void QtRichTextBox::BeginUpdate() {
  if (update_) {
    ++update_->depth;
  } else {
    update_ = std::make_unique<TextUpdate>(*view_);
  }
}

void QtRichTextBox::EndUpdate() {
  if (--update_->depth > 0) return;
  const bool selChanged = update_->selChanged;
  const bool changed = update_->changed;
  update_.reset();
  if (selChanged) RaiseSelChange();
  if (changed) RaiseChange();
}

void QtRichTextBox::RaiseSelChange() {
  if (update_) {
    update_->selChanged = true;
  } else if (onSelChange) {
    onSelChange();
  }
}

void QtRichTextBox::RaiseChange() {
  if (update_) {
    update_->changed = true;
  } else if (onChange) {
    onChange();
  }
}

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

SelectionFormat QtRichTextBox::SelFormat() const {
  return SelectedFormat(Cursor(), lines_);
}

void QtRichTextBox::SetSelFormat(const SelectionFormat& format) {
  const ProgramChange change(*view_);
  QTextCursor cursor = Cursor();
  cursor.mergeCharFormat(ToQt(format));
  KeepFormatIfEmpty(cursor, cursor.charFormat());
  SetCursor(cursor);
}

void QtRichTextBox::SetSelText(std::u16string_view text) {
  const RichTextUpdate update(*this);
  QTextCursor cursor = Cursor();
  InsertText(cursor, text, lines_);
  SetCursor(cursor);
  RaiseChange();
}

void QtRichTextBox::SetSelDocument(richtext::Document document) {
  const RichTextUpdate update(*this);
  if (FitsIntoThisTurn(document)) {
    QTextCursor cursor = Cursor();
    if (Locked() && !cursor.hasSelection()) EndDirection(cursor);
    InsertDocument(cursor, std::move(document), lines_);
    SetCursor(cursor);
  } else {
    WriteInTurns(std::move(document));
  }
  RaiseChange();
}

void QtRichTextBox::SetSelAuthor(Author author) {
  const ProgramChange change(*view_);
  SetAuthor(Cursor(), author, lines_);
}

Author QtRichTextBox::SelAuthor() const {
  return AuthorOf(widget_->document()->findBlock(Cursor().selectionStart()));
}

void QtRichTextBox::SetAuthorWords(Author author, std::u16string_view words) {
  if (!margin_) {
    BeginLinesAtTheLeft(*widget_->document());
    margin_ = new AuthorMargin(*view_);
    margin_->SetDescription(ToQt(toolTip_));
  }
  margin_->SetWords(author, ToQt(words));
}

void QtRichTextBox::SetToolTip(std::u16string_view text) {
  toolTip_ = text;
  QtControl::SetToolTip(text);
  if (margin_) margin_->SetDescription(ToQt(text));
}

bool QtRichTextBox::FitsIntoThisTurn(const richtext::Document& document) {
  if (!Locked()) return true;
  if (inThisTurn_ == 0) turnEnd_.start(0);
  inThisTurn_ += document.text.size() + kLengthOfRun * document.runs.size();
  const int place = Cursor().position();
  const bool isBehindOther = std::any_of(writings_.begin(), writings_.end(), [&](const auto& w) {
    return !w->IsDone() && w->EndsAt(place);
  });
  return !isBehindOther && inThisTurn_ <= kLengthAtOnce;
}

void QtRichTextBox::WriteInTurns(richtext::Document document) {
  const QTextCursor cursor = Cursor();
  std::erase_if(writings_, [](const auto& writing) { return writing->IsDone(); });
  const auto same = std::find_if(writings_.begin(), writings_.end(), [&](const auto& writing) {
    return !cursor.hasSelection() && writing->EndsAt(cursor.position());
  });
  if (same != writings_.end()) return (*same)->Add(std::move(document));
  const bool wasInserting = IsInserting();
  writings_.push_back(std::make_unique<TextWriting>(*view_, cursor, [this] { RaiseIfFinished(); }));
  writings_.back()->Add(std::move(document));
  if (!wasInserting && onInsertionStarted) onInsertionStarted();
}

bool QtRichTextBox::IsInserting() const {
  return std::any_of(writings_.begin(), writings_.end(),
                     [](const auto& writing) { return !writing->IsDone(); });
}

void QtRichTextBox::RaiseIfFinished() {
  if (!IsInserting() && onInsertionFinished) onInsertionFinished();
}

void QtRichTextBox::SetFontCharset(int charset) {
  view_->SetCharset(charset);
}

void QtRichTextBox::LoadFile(std::u16string_view path, TextFileFormat format) {
  const bool isPlain = format == TextFileFormat::PlainText;
  FormattedText text = isPlain ? FormattedText(files_.ReadText(path), DefaultFormat(), lines_)
                               : FormattedText(richtext::ReadRtf(files_.ReadBytes(path)), lines_);
  Clear(isPlain ? DefaultFormat() : FormatOfFirst(widget_->textCursor()));
  SetSelAuthor(Author::File);
  loading_ = std::make_unique<TextLoading>(*view_, QTextCursor(widget_->document()),
                                           std::move(text), [this](int percent) {
                                             if (onLoadProgress) onLoadProgress(percent);
                                           });
  // A text that the user can change must be complete.
  if (!Locked()) FinishInsertions();
  Select(0, 0);
  RaiseChange();
}

void QtRichTextBox::SaveFile(std::u16string_view path, TextFileFormat format) const {
  const bool isPlain = format == TextFileFormat::PlainText;
  files_.ReplaceText(path, isPlain ? Text() : richtext::WriteRtfFile(Content()));
}

void QtRichTextBox::SetLocked(bool locked) {
  if (!locked) FinishInsertions();
  widget_->setReadOnly(locked);
  if (locked) {
    // The user can also select, copy and scroll with the keyboard.
    widget_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  widget_->setUndoRedoEnabled(!locked && lines_ == Lines::Single);
}

bool QtRichTextBox::Locked() const {
  return widget_->isReadOnly();
}

void QtRichTextBox::SetBackColor(Color color) {
  widget_->setPalette(PanePalette(color));
}

Color QtRichTextBox::BackColor() const {
  return FromQt(widget_->palette().color(QPalette::Base));
}

}  // namespace verlume::qt
