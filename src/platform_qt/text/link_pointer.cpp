#include "platform_qt/text/link_pointer.h"

#include <QTextLayout>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "platform_qt/controls/tool_tip.h"
#include "platform_qt/convert/text.h"
#include "platform_qt/text/seams.h"
#include "richtext/links.h"

namespace verlume::qt {
namespace {

// Part of an address leads elsewhere than the whole: one that a seam cuts is none.
bool IsCutBySeam(const QTextBlock& block, const richtext::Link& link) {
  const bool beginsThere = link.start == 0 && BeginsAtSeam(block, Lines::Many);
  const bool reachesTheEnd = link.start + link.length == std::size_t(block.length() - 1);
  const QTextBlock next = block.next();
  return beginsThere || (reachesTheEnd && next.isValid() && BeginsAtSeam(next, Lines::Many));
}

}  // namespace

QTextCursor LinkAround(const QTextDocument& document, int position) {
  const QTextBlock block = document.findBlock(position);
  if (!block.isValid()) return {};
  const auto place = static_cast<std::size_t>(position - block.position());
  const auto [from, length] =
      richtext::WindowAround(static_cast<std::size_t>(block.length() - 1), place);
  QTextCursor window(block);
  window.setPosition(block.position() + static_cast<int>(from));
  window.setPosition(window.position() + static_cast<int>(length), QTextCursor::KeepAnchor);
  const auto link = richtext::LinkAt(FromQt(window.selectedText()), place - from);
  if (!link || IsCutBySeam(block, {from + link->start, link->length})) return {};
  const int start = block.position() + static_cast<int>(from + link->start);
  window.setPosition(start);
  window.setPosition(start + static_cast<int>(link->length), QTextCursor::KeepAnchor);
  return window;
}

std::u16string AddressIn(const QTextCursor& link) {
  return link.hasSelection() ? richtext::AddressOf(FromQt(link.selectedText())) : std::u16string();
}

void LinkPointer::SetOpener(std::function<void(const std::u16string&)> open) {
  open_ = std::move(open);
}

bool LinkPointer::Handle(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseMove: {
      const auto& move = static_cast<const QMouseEvent&>(event);
      const bool isDrag = move.buttons() != Qt::NoButton;
      PointAt(isDrag ? under_ : LinkUnder(move.position().toPoint()), move.modifiers());
      return false;
    }
    case QEvent::Leave:
      PointAt({}, {});
      return false;
    case QEvent::MouseButtonPress:
      return Press(static_cast<const QMouseEvent&>(event));
    case QEvent::MouseButtonRelease:
      return Release(static_cast<const QMouseEvent&>(event));
    case QEvent::ToolTip:
      return ShowHint(static_cast<const QHelpEvent&>(event));
    default:
      return false;
  }
}

void LinkPointer::Forget() {
  if (under_.hasSelection()) PointAt({}, {});
}

void LinkPointer::PointAt(const QTextCursor& link, Qt::KeyboardModifiers held) {
  const bool opens = link.hasSelection() && held == Qt::ControlModifier;
  pane_.viewport()->setCursor(opens ? Qt::PointingHandCursor : Qt::IBeamCursor);
  if (link == under_) return;
  under_ = link;
  pane_.viewport()->update();
}

// The place nearest to the pointer may be behind the character under it.
QTextCursor LinkPointer::LinkUnder(const QPoint& point) const {
  QTextCursor place = pane_.cursorForPosition(point);
  if (pane_.cursorRect(place).left() > point.x()) place.movePosition(QTextCursor::Left);
  const QRect character = pane_.cursorRect(place);
  if (point.y() < character.top() || point.y() > character.bottom()) return {};
  return LinkAround(*pane_.document(), place.position());
}

bool LinkPointer::Press(const QMouseEvent& event) {
  const bool opens = event.button() == Qt::LeftButton && event.modifiers() == Qt::ControlModifier;
  pressed_ = opens ? LinkUnder(event.position().toPoint()) : QTextCursor();
  return pressed_.hasSelection();
}

bool LinkPointer::Release(const QMouseEvent& event) {
  const QTextCursor pressed = std::exchange(pressed_, {});
  if (!pressed.hasSelection()) return false;
  const QTextCursor released = LinkUnder(event.position().toPoint());
  if (released.hasSelection() && released == pressed) open_(AddressIn(pressed));
  return true;
}

bool LinkPointer::ShowHint(const QHelpEvent& event) const {
  if (!LinkUnder(event.pos()).hasSelection()) return false;
  QToolTip::showText(event.globalPos(), PlainToolTip(hint_), pane_.viewport());
  return true;
}

void LinkPointer::Draw(QPainter& painter, const QTextBlock& block, const QPointF& origin) const {
  if (!under_.hasSelection() || !block.contains(under_.selectionStart())) return;
  const int start = under_.selectionStart() - block.position();
  const int end = under_.selectionEnd() - block.position();
  const QTextLayout& layout = *block.layout();
  painter.setPen(pane_.palette().color(QPalette::Text));
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QTextLine line = layout.lineAt(i);
    const int from = std::max(start, line.textStart());
    const int to = std::min(end, line.textStart() + line.textLength());
    if (from >= to) continue;
    const qreal y = origin.y() + line.y() + line.ascent() + 1;
    painter.drawLine(QPointF(origin.x() + line.cursorToX(from), y),
                     QPointF(origin.x() + line.cursorToX(to), y));
  }
}

}  // namespace verlume::qt
