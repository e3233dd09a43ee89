#include "platform_qt/text/rich_text_widget.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform_qt/controls/key_codes.h"
#include "platform_qt/controls/popup.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/readable_text.h"
#include "platform_qt/text/rich_text_mime.h"
#include "platform_qt/text/rule_layout.h"
#include "platform_qt/text/rules.h"
#include "platform_qt/text/text_format.h"
#include "platform_qt/text/text_insertion.h"

namespace verlume::qt {
namespace {

// Whether the keys are the shortcut of a menu entry of the widget's window.
bool IsMenuKey(const QWidget& widget, const QKeyEvent& event) {
  const QKeySequence keys(event.keyCombination());
  const QList<QAction*> actions = widget.window()->findChildren<QAction*>();
  return std::any_of(actions.begin(), actions.end(), [&](const QAction* action) {
    return action->isEnabled() && action->shortcuts().contains(keys);
  });
}

// The widget's document, of a layout that has room for rules.
QTextDocument& WithRuleLayout(QPlainTextEdit& widget) {
  auto* document = new QTextDocument(&widget);
  auto* layout = new RuleLayout(document);
  layout->setPaintDevice(widget.viewport());
  document->setDocumentLayout(layout);
  widget.setDocument(document);
  return *document;
}

}  // namespace

RichTextWidget::ProgramChange::~ProgramChange() {
  if (--widget_.programDepth_ == 0) widget_.lastFormat_ = widget_.textCursor().charFormat();
}

RichTextWidget::UserChange::~UserChange() {
  if (widget_ && --widget_->userDepth_ == 0) widget_->RaisePendingEvents();
}

RichTextWidget::RichTextWidget(QWidget* parent, Lines lines)
    : QPlainTextEdit(parent),
      lines_(lines),
      seams_(WithRuleLayout(*this), lines),
      missingScripts_(*document()) {
  document()->documentLayout()->setPaintDevice(&zoom_);
  QFont font(ToQt(kDefaultFontName));
  font.setPointSizeF(kDefaultFontSize);
  setFont(font);
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const auto note = [this] { NoteSelChange(); };
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, note);
  connect(this, &QPlainTextEdit::selectionChanged, this, note);
  connect(document(), &QTextDocument::contentsChanged, this, [this] { NoteChange(); });
  links_.SetOpener([this](const std::u16string& address) {
    if (events_ && events_->onLink) events_->onLink(address);
  });
  const auto noteScrolled = [this] { NoteScrolled(); };
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, noteScrolled);
  connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, noteScrolled);
}

bool RichTextWidget::Swallowed(int keyCode, int shift, int charCode) {
  const QPointer<RichTextWidget> self(this);
  int code = keyCode;
  if (events_ && events_->onKeyDown) events_->onKeyDown(code, shift);
  if (!self || code == 0) return true;
  if (charCode == 0) return false;
  if (events_ && events_->onKeyPress) events_->onKeyPress(charCode);
  return !self || charCode == 0;
}

bool RichTextWidget::event(QEvent* event) {
  // The shortcuts of the menus go before the keys that edit text: on some desktops Ctrl+U deletes a
  // line.
  if (event->type() == QEvent::ShortcutOverride &&
      IsMenuKey(*this, *static_cast<QKeyEvent*>(event))) {
    event->ignore();
    return true;
  }
  return QPlainTextEdit::event(event);
}

void RichTextWidget::keyPressEvent(QKeyEvent* event) {
  // Qt on X11 knows only the menu key.
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
    const QPoint place = viewport()->mapTo(this, cursorRect().center());
    QContextMenuEvent wish(QContextMenuEvent::Keyboard, place, mapToGlobal(place));
    QCoreApplication::sendEvent(this, &wish);
    return event->accept();
  }
  const UserChange change(*this);
  if (Swallowed(KeyCodeOf(*event), ShiftOf(*event), CharCodeOf(*event))) return event->accept();
  PerformKey(event);
}

void RichTextWidget::PerformKey(QKeyEvent* event) {
  if (event->key() == Qt::Key_Backtab) {
    // Qt does not do this in an editor that accepts tabs.
    QAbstractScrollArea::focusNextPrevChild(false);
    return;
  }
  const QString text = IsEnter(*event) ? QString(u'\n') : event->text();
  const bool typesOther = text.size() > 0 && SafeText(FromQt(text), lines_) != event->text();
  const bool plainKey = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (typesOther && plainKey && !isReadOnly()) return TypeText(text);
  PressAcrossSeams(event);
}

// A seam is no character: a key that did nothing but step over or delete one is pressed again.
void RichTextWidget::PressAcrossSeams(QKeyEvent* event) {
  const QPointer<RichTextWidget> self(this);
  const auto inDocument = [this] {
    return std::pair(textCursor().position(), document()->blockCount());
  };
  const auto inText = [this] {
    return std::pair(seams_.TextPosition(textCursor().position()),
                     seams_.TextPosition(document()->characterCount() - 1));
  };
  const auto documentBefore = inDocument();
  const auto textBefore = inText();
  QPlainTextEdit::keyPressEvent(event);
  const bool crossedASeam = self && inDocument() != documentBefore && inText() == textBefore;
  if (crossedASeam) QPlainTextEdit::keyPressEvent(event);
}

void RichTextWidget::TypeText(const QString& text) {
  QTextCursor cursor = textCursor();
  InsertText(cursor, FromQt(text), lines_);
  setTextCursor(cursor);
  ensureCursorVisible();
}

void RichTextWidget::inputMethodEvent(QInputMethodEvent* event) {
  const UserChange change(*this);
  QString commit = SafeText(FromQt(event->commitString()), lines_);
  if (!commit.isEmpty() && Swallowed(key_code::kOther, 0, commit.front().unicode())) commit.clear();
  QInputMethodEvent safe(event->preeditString(), event->attributes());
  safe.setCommitString(commit, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&safe);
  event->setAccepted(safe.isAccepted());
}

void RichTextWidget::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  if (events_ && events_->onGotFocus) events_->onGotFocus();
}

void RichTextWidget::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (event->reason() == Qt::ActiveWindowFocusReason) isPressed_ = false;
  if (events_ && events_->onLostFocus) events_->onLostFocus();
}

void RichTextWidget::resizeEvent(QResizeEvent* event) {
  const bool showsEnd = ShowsEndWithin(event->oldSize());
  QPlainTextEdit::resizeEvent(event);
  if (showsEnd) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void RichTextWidget::paintEvent(QPaintEvent* event) {
  MakeReadable(firstVisibleBlock(), event->rect().bottom() + 1 - contentOffset().y(),
               FromQt(palette().color(QPalette::Base)));
  QPlainTextEdit::paintEvent(event);
  QPainter painter(viewport());
  const QRectF clip = event->rect();
  VisitBlocks(clip.top(), clip.bottom(), [&](const QTextBlock& block, const QRectF& place) {
    DrawRules(painter, block, place, palette());
    if (IsUnreadFrom(block)) DrawUnreadLine(painter, place);
    links_.Draw(painter, block, {contentOffset().x(), place.top()});
  });
}

void RichTextWidget::VisitBlocks(
    qreal from, qreal to,
    const std::function<void(const QTextBlock&, const QRectF& place)>& visit) const {
  QTextBlock block = firstVisibleBlock();
  qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
  while (block.isValid() && top < to) {
    const qreal height = blockBoundingRect(block).height();
    if (top + height > from) visit(block, QRectF(0, top, viewport()->width(), height));
    top += height;
    block = block.next();
  }
}

void RichTextWidget::DrawUnreadLine(QPainter& painter, const QRectF& place) const {
  constexpr qreal kThickness = 2;
  painter.fillRect(QRectF(place.left(), place.top(), place.width(), kThickness),
                   palette().color(QPalette::Highlight));
}

void RichTextWidget::MarkUnread(const QTextBlock& block) {
  if (!block.isValid() && unread_.isNull()) return;
  unread_ = block.isValid() ? QTextCursor(block) : QTextCursor();
  unread_.setKeepPositionOnInsert(true);
  viewport()->update();
}

bool RichTextWidget::IsUnreadFrom(const QTextBlock& block) const {
  return !unread_.isNull() && block.contains(unread_.position());
}

// Cheap where it does not matter: each line that is written scrolls.
void RichTextWidget::NoteScrolled() {
  if (programDepth_ > 0) return;
  links_.Forget();
  if (!events_ || !events_->onEndShown) return;
  const QScrollBar& bar = *verticalScrollBar();
  if (bar.value() == bar.maximum() && ShowsEnd()) events_->onEndShown();
}

void RichTextWidget::AddRule(RichTextBox::SignWords words) {
  const bool showsEnd = ShowsEnd();
  AddRuleTo(*document(), std::move(words));
  static_cast<RuleLayout*>(document()->documentLayout())->NoteRules();
  if (showsEnd) ShowEnd();
}

void RichTextWidget::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(event);
  event->accept();
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_ -= steps * QWheelEvent::DefaultDeltasPerStep;
  if (steps != 0 && events_ && events_->onZoom) events_->onZoom(steps);
}

void RichTextWidget::SetBackColor(Color color) {
  setPalette(PanePalette(color));
}

void RichTextWidget::SetZoom(int percent) {
  if (percent == zoom_.Zoom()) return;
  const bool showsEnd = ShowsEnd();
  zoom_.SetZoom(percent);
  // The document lays itself out for its default font anew, and with it for the device.
  document()->setDefaultFont(document()->defaultFont());
  if (showsEnd) ShowEnd();
}

void RichTextWidget::MoveCursorTo(const QTextCursor& cursor) {
  const QTextCursor own = textCursor();
  if (own.position() == cursor.position() && own.anchor() == cursor.anchor() &&
      own.charFormat() == cursor.charFormat()) {
    return;
  }
  setTextCursor(cursor);
}

bool RichTextWidget::ShowsEndWithin(const QSize& size) const {
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  return QRect({}, size).contains(cursorRect(end).center());
}

void RichTextWidget::ShowEnd() {
  // The scroll bar's range is an estimate until the text has been laid out.
  constexpr int kMostTries = 4;
  for (int i = 0; i < kMostTries && !(i > 0 && ShowsEnd()); ++i) {
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  }
}

bool RichTextWidget::viewportEvent(QEvent* event) {
  const UserChange change(*this);
  NotePress(*event);
  if (events_ && events_->onLink && links_.Handle(*event)) return true;
  return QPlainTextEdit::viewportEvent(event);
}

// A release that goes to a box which has opened meanwhile does not arrive: then the window is no
// longer active, or the pointer comes back.
void RichTextWidget::NotePress(const QEvent& event) {
  const bool isPress = event.type() == QEvent::MouseButtonPress;
  if (!isPress && event.type() != QEvent::MouseButtonRelease && event.type() != QEvent::Enter)
    return;
  isPressed_ = isPress && static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

void RichTextWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!events_ || !events_->onContextMenu) return QPlainTextEdit::contextMenuEvent(event);
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
  const QTextCursor place = isByKey ? textCursor() : cursorForPosition(event->pos());
  OpenPopup(*this, event->globalPos(),
            events_->onContextMenu(seams_.TextPosition(place.position())));
}

bool RichTextWidget::canInsertFromMimeData(const QMimeData* source) const {
  return source && HoldsText(*source);
}

QMimeData* RichTextWidget::createMimeDataFromSelection() const {
  return new RichTextMimeData(SelectedDocument(textCursor(), charset_, lines_));
}

void RichTextWidget::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly() || !source) return;
  const UserChange change(*this);
  QTextCursor cursor = textCursor();
  InsertMimeData(cursor, *source, lines_);
  setTextCursor(cursor);
  ensureCursorVisible();
}

void RichTextWidget::NoteSelChange() {
  if (programDepth_ > 0) return;
  selChanged_ = true;
  if (userDepth_ == 0) RaisePendingEvents();
}

void RichTextWidget::NoteChange() {
  if (programDepth_ == 0) changed_ = true;
  NoteSelChange();
}

void RichTextWidget::RaisePendingEvents() {
  if (!selChanged_) return KeepInsertionFormat();
  selChanged_ = false;
  if (document()->isEmpty()) {
    const ProgramChange change(*this);
    QTextCursor cursor = textCursor();
    KeepFormatIfEmpty(cursor, lastFormat_);
    setTextCursor(cursor);
  }
  lastFormat_ = textCursor().charFormat();
  const QPointer<RichTextWidget> self(this);
  if (events_ && events_->onSelChange) events_->onSelChange();
  if (!self || !std::exchange(changed_, false)) return;
  if (events_ && events_->onChange) events_->onChange();
}

// A caret key that moves nothing makes Qt forget the format that was set for what is typed next.
void RichTextWidget::KeepInsertionFormat() {
  QTextCursor cursor = textCursor();
  if (cursor.hasSelection() || cursor.charFormat() == lastFormat_) return;
  const ProgramChange change(*this);
  cursor.setCharFormat(lastFormat_);
  setTextCursor(cursor);
}

}  // namespace verlume::qt
