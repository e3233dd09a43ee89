#include "platform_qt/text/author_margin.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>
#include <utility>

#include "platform_qt/controls/tool_tip.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/author_marks.h"
#include "platform_qt/text/paragraph_author.h"
#include "platform_qt/text/rules.h"

namespace verlume::qt {
namespace {

constexpr int kSpace = 2;  // pixels, on either side of the marks
constexpr int kWidth = kMarkWidth + 2 * kSpace;

}  // namespace

AuthorMargin::AuthorMargin(RichTextWidget& pane) : QWidget(&pane), pane_(pane) {
  pane.setViewportMargins(kWidth, 0, 0, 0);
  pane.viewport()->installEventFilter(this);
  connect(&pane, &QPlainTextEdit::updateRequest, this, &AuthorMargin::Follow);
  connect(&pane, &QPlainTextEdit::cursorPositionChanged, this, &AuthorMargin::DescribeCaret);
  connect(pane.document(), &QTextDocument::contentsChanged, this, &AuthorMargin::DescribeCaret);
  PlaceBeside(pane.viewport()->geometry());
  show();
}

void AuthorMargin::SetWords(Author author, const QString& words) {
  words_[author] = words;
  DescribeCaret();
}

void AuthorMargin::SetDescription(const QString& description) {
  description_ = description;
  DescribeCaret();
}

void AuthorMargin::SetUnreadWords(RichTextBox::SignWords words) {
  if (!words && !unreadWords_) return;
  unreadWords_ = std::move(words);
  DescribeCaret();
}

void AuthorMargin::PlaceBeside(const QRect& text) {
  setGeometry(text.left() - kWidth, text.top(), kWidth, text.height());
}

void AuthorMargin::Follow(const QRect& area, int dy) {
  if (dy != 0) {
    scroll(0, dy);
  } else {
    update(0, area.top(), kWidth, area.height());
  }
}

// Watches the viewport, also while the pane that it belongs to is being destroyed.
bool AuthorMargin::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
    PlaceBeside(static_cast<QWidget*>(watched)->geometry());
    update();
  }
  return false;
}

QString AuthorMargin::WordsOf(Author author) const {
  const auto found = words_.find(author);
  return found == words_.end() ? QString() : found->second;
}

// What is said of a line, and of the rules beside it.
QString AuthorMargin::WordsOf(const QTextBlock& block) const {
  const bool isUnread = unreadWords_ && pane_.IsUnreadFrom(block);
  const QString unread = isUnread ? ToQt(unreadWords_()) + u' ' : QString();
  return (unread + WordsOf(AuthorOf(block)) + u' ' + WordsOfRules(block)).trimmed();
}

void AuthorMargin::DescribeCaret() {
  const QString words = WordsOf(pane_.textCursor().block());
  const QString& description = words.isEmpty() ? description_ : words;
  if (pane_.accessibleDescription() == description) return;
  pane_.setAccessibleDescription(description);
  setAccessibleName(words);
}

QString AuthorMargin::WordsAt(int y) const {
  QString words;
  pane_.VisitBlocks(y, y + 1, [&](const QTextBlock& block, const QRectF& place) {
    const QString rule = WordsOfRuleAt(block, y - place.top(), place.height());
    words = rule.isEmpty() ? WordsOf(AuthorOf(block)) : rule;
  });
  return words;
}

bool AuthorMargin::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QString words = WordsAt(help->pos().y());
  if (words.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help->globalPos(), PlainToolTip(words), this);
  }
  return true;
}

void AuthorMargin::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), MarginGround(pane_.palette().color(QPalette::Base)));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QRectF clip = event->rect();
  pane_.VisitBlocks(clip.top(), clip.bottom(), [&](const QTextBlock& block, const QRectF& place) {
    DrawMarks(painter, block, place.top(), clip);
  });
}

void AuthorMargin::DrawMarks(QPainter& painter, const QTextBlock& block, qreal top,
                             const QRectF& clip) const {
  const Author author = AuthorOf(block);
  if (author == Author::None) return;
  painter.setBrush(MarkColor(author, MarginGround(pane_.palette().color(QPalette::Base))));
  const QTextLayout& layout = *block.layout();
  if (IsHollow(author)) {
    const qreal first = layout.lineCount() > 0 ? layout.lineAt(0).y() : 0;
    const QRectF place(kSpace, top + first, kMarkWidth, layout.boundingRect().height());
    return DrawHollowMark(painter, place);
  }
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QRectF line = layout.lineAt(i).rect();
    const QRectF place(kSpace, top + line.top(), kMarkWidth, line.height());
    if (place.bottom() > clip.top() && place.top() < clip.bottom()) {
      DrawMark(painter, author, place);
    }
  }
}

}  // namespace verlume::qt
