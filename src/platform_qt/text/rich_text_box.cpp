#include "platform_qt/text/rich_text_box.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTextBlock>
#include <algorithm>
#include <utility>

#include "platform_qt/convert/text.h"
#include "platform_qt/fonts/turn.h"
#include "platform_qt/os/machine.h"
#include "platform_qt/text/look_count.h"
#include "platform_qt/text/open_direction.h"
#include "platform_qt/text/paragraph_author.h"
#include "platform_qt/text/readable_text.h"
#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_format.h"
#include "platform_qt/text/text_limit.h"
#include "platform_qt/text/text_loading.h"
#include "platform_qt/text/text_reading.h"
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

// When a text so long, in characters, has been removed, its memory goes back to the system.
constexpr std::size_t kLongText = 64 * 1024;

}  // namespace

using ProgramChange = RichTextWidget::ProgramChange;

QtRichTextBox::QtRichTextBox(QWidget* parent, FileSystem& files, Lines lines)
    : QtRichTextBox(new RichTextWidget(parent, lines), files, lines) {}

QtRichTextBox::QtRichTextBox(RichTextWidget* widget, FileSystem& files, Lines lines)
    : QtControl(widget), view_(widget), files_(files), lines_(lines) {
  limit_ = std::make_unique<TextLimit>(
      *widget, TextLimit::Events{.onNearlyFull =
                                     [this] {
                                       if (onNearlyFull) onNearlyFull();
                                     },
                                 .onTrimmed =
                                     [this](std::size_t from, std::size_t length) {
                                       if (onLinesRemoved) onLinesRemoved(from, length);
                                     }});
  SetLocked(false);
  Clear(DefaultFormat());
  widget->SetEvents(this);
  memoryReturn_.setSingleShot(true);
  QObject::connect(&memoryReturn_, &QTimer::timeout, &memoryReturn_, [] { GiveBackFreeMemory(); });
  turnEnd_.setSingleShot(true);
  QObject::connect(&turnEnd_, &QTimer::timeout, &turnEnd_, [this] {
    inThisTurn_ = 0;
    looksInThisTurn_ = 0;
  });
}

QtRichTextBox::~QtRichTextBox() {
  if (view_) view_->SetEvents(nullptr);
}

std::u16string QtRichTextBox::Text() const {
  WaitForInsertions();
  QTextCursor cursor(widget_->document());
  cursor.select(QTextCursor::Document);
  return SelectedText(cursor, lines_);
}

std::u16string QtRichTextBox::Rtf() const {
  return richtext::WriteRtf(Content());
}

// What is written behind it meanwhile is not read.
richtext::Document QtRichTextBox::Content() const {
  WaitForInsertions();
  const TextLimit::Hold hold(*limit_);
  PartsReader reader(view_->Charset(), lines_);
  QTextCursor part(widget_->document());
  const int end = widget_->document()->characterCount() - 1;
  const auto readTurn = [&] {
    QElapsedTimer turn;
    turn.start();
    while (part.position() < end && !turn.hasExpired(kTurn.count())) {
      part.setPosition(part.position());
      part.setPosition(std::min(EndOfPart(*widget_->document(), part.position()), end),
                       QTextCursor::KeepAnchor);
      reader.Add(part);
    }
    return part.position() >= end;
  };
  if (!readTurn()) WaitUntil(readTurn);
  return reader.Take();
}

void QtRichTextBox::WaitUntil(const std::function<bool()>& condition) const {
  QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  while (!condition()) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  QGuiApplication::restoreOverrideCursor();
}

// A peer may begin another long line as soon as the one under way is finished: that one is not
// waited for.
void QtRichTextBox::WaitForInsertions() const {
  if (!MoreIsComing()) return;
  const auto hasFinished = [this, before = finished_] {
    const bool hasLoaded = !loading_ || loading_->IsDone();
    return hasLoaded && (!IsInserting() || finished_ != before);
  };
  WaitUntil(hasFinished);
}

bool QtRichTextBox::MoreIsComing() const {
  return (loading_ && !loading_->IsDone()) || IsInserting();
}

void QtRichTextBox::ReadInTurns(TextReader read) {
  reading_.reset();
  reading_ = std::make_unique<TextReading>(*view_, *limit_, std::move(read));
}

void QtRichTextBox::DropInsertions() {
  const bool wasInserting = IsInserting();
  writings_.clear();
  if (wasInserting) RaiseIfFinished();
}

void QtRichTextBox::SetMostParagraphs(std::size_t paragraphs) {
  limit_->SetMost(paragraphs);
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
    limit_->StartBehind(cursor);
  }
  Select(0, 0);
  RaiseChange();
  if (onEndShown) onEndShown();
}

void QtRichTextBox::Clear(const QTextCharFormat& format) {
  if (loading_) loading_->Abandon();
  loading_.reset();
  DropInsertions();
  if (TextLength() > kLongText) memoryReturn_.start(kPauseBetweenTurns);
  const ProgramChange change(*view_);
  view_->MarkUnread({});
  widget_->document()->clear();
  formats_.Clear();
  QTextCursor cursor(widget_->document());
  KeepFormatIfEmpty(cursor, format);
  limit_->StartBehind(cursor);
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

void QtRichTextBox::BeginUpdate(Reader reader) {
  if (update_) {
    ++update_->depth;
  } else {
    update_ = std::make_unique<TextUpdate>(*view_, reader);
  }
}

void QtRichTextBox::EndUpdate() {
  if (--update_->depth > 0) return;
  const bool selChanged = update_->selChanged && !update_->Stays();
  const bool changed = update_->changed;
  update_.reset();
  if (selChanged) RaiseSelChange();
  if (changed) RaiseChange();
  if (selChanged && !changed) view_->NoteScrolled();
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
  limit_->Check();
  RaiseChange();
}

void QtRichTextBox::SetSelDocument(richtext::Document document) {
  const RichTextUpdate update(*this);
  if (FitsIntoThisTurn(document)) {
    QTextCursor cursor = Cursor();
    if (Locked() && !cursor.hasSelection()) EndDirection(cursor);
    InsertDocument(cursor, std::move(document), lines_, &formats_);
    SetCursor(cursor);
  } else {
    WriteInTurns(std::move(document));
  }
  limit_->Check();
  RaiseChange();
}

bool QtRichTextBox::FitsIntoThisTurn(const richtext::Document& document) {
  if (!Locked()) return true;
  if (!turnEnd_.isActive()) turnEnd_.start(0);
  inThisTurn_ += document.text.size() + kLengthOfRun * document.runs.size();
  if (inThisTurn_ > kLengthAtOnce) return false;
  looksInThisTurn_ += CountLooks(document, kMostLooksAtOnce);
  if (looksInThisTurn_ > kMostLooksAtOnce) return false;
  const int place = Cursor().position();
  return std::none_of(writings_.begin(), writings_.end(),
                      [&](const auto& w) { return !w->IsDone() && w->EndsAt(place); });
}

void QtRichTextBox::WriteInTurns(richtext::Document document) {
  const QTextCursor cursor = Cursor();
  std::erase_if(writings_, [](const auto& writing) { return writing->IsDone(); });
  const auto same = std::find_if(writings_.begin(), writings_.end(), [&](const auto& writing) {
    return !cursor.hasSelection() && writing->EndsAt(cursor.position());
  });
  if (same != writings_.end()) return (*same)->Add(std::move(document));
  const bool wasInserting = IsInserting();
  writings_.push_back(
      std::make_unique<TextWriting>(*view_, cursor, formats_, [this] { RaiseIfFinished(); }));
  writings_.back()->Add(std::move(document));
  if (widget_->document()->isEmpty()) writings_.back()->Begin();
  if (!wasInserting && onInsertionStarted) onInsertionStarted();
}

bool QtRichTextBox::IsInserting() const {
  return std::any_of(writings_.begin(), writings_.end(),
                     [](const auto& writing) { return !writing->IsDone(); });
}

void QtRichTextBox::RaiseIfFinished() {
  limit_->Check();
  if (IsInserting()) return;
  ++finished_;
  if (onInsertionFinished) onInsertionFinished();
}

void QtRichTextBox::SetFontCharset(int charset) {
  view_->SetCharset(charset);
}

void QtRichTextBox::SetLocked(bool locked) {
  if (!locked) WaitForInsertions();
  widget_->setReadOnly(locked);
  if (locked) {
    // The user can also select, copy and scroll with the keyboard.
    widget_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  // Addresses under the pointer are underlined where the user reads.
  widget_->viewport()->setMouseTracking(locked);
  widget_->setUndoRedoEnabled(!locked && lines_ == Lines::Single);
}

bool QtRichTextBox::Locked() const {
  return widget_->isReadOnly();
}

}  // namespace verlume::qt
