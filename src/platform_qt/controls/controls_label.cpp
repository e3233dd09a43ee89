#include "platform_qt/controls/controls_label.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>

#include "platform_qt/controls/label_accessibility.h"
#include "platform_qt/controls/tool_tip.h"
#include "platform_qt/fonts/installed_scripts.h"
#include "platform_qt/fonts/missing_parts.h"
#include "platform_qt/fonts/turn.h"

namespace verlume::qt {
namespace {

constexpr qreal kMutedOpacity = 0.72;

// A label shows its text as one paragraph.
QString OneParagraph(QString text) {
  for (QChar& unit : text) {
    if (unit == u'\n' || unit == u'\r' || unit == u'\t' || unit == QChar::LineSeparator ||
        unit == QChar::ParagraphSeparator) {
      unit = u' ';
    }
  }
  return text;
}

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  // Does nothing but the first time.
  QAccessible::installFactory(NewLabelInterface);
  connect(&nextTurn_, &QTimer::timeout, this, [this] { RunTurn(); });
}

QString ElidedLabel::DrawnText() const {
  const QString whole = OneParagraph(text());
  if (!NeedsALook(whole)) return whole;
  return WithBoxes(whole,
                   [](QChar::Script script) { return InstalledScripts::Instance().Shows(script); });
}

void ElidedLabel::LookAtFonts() {
  if (nextTurn_.isActive() || InstalledScripts::Instance().IsComplete()) return;
  if (NeedsALook(text())) nextTurn_.start(kPauseBetweenTurns);
}

void ElidedLabel::RunTurn() {
  InstalledScripts::Instance().RunTurn();
  if (!InstalledScripts::Instance().IsComplete()) return;
  nextTurn_.stop();
  updateGeometry();
  update();
}

QSize ElidedLabel::sizeHint() const {
  const int frame = 2 * frameWidth();
  return {fontMetrics().horizontalAdvance(DrawnText()) + frame, minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
  return {0, fontMetrics().height() + 2 * frameWidth()};
}

QStringList ElidedLabel::VisibleLines(bool& cut) const {
  const QRect area = contentsRect();
  const QString whole = DrawnText();
  const int room = wordWrap() ? std::max(1, area.height() / fontMetrics().height()) : 1;
  QStringList lines;
  QTextLayout layout(whole, font(), this);
  layout.beginLayout();
  int start = 0;
  while (lines.size() + 1 < room) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(area.width());
    lines.append(whole.mid(line.textStart(), line.textLength()));
    start = line.textStart() + line.textLength();
  }
  layout.endLayout();
  const QString rest = whole.mid(start);
  const QString shown = fontMetrics().elidedText(rest, Qt::ElideRight, area.width());
  if (!shown.isEmpty()) lines.append(shown);
  cut = shown != rest;
  return lines;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  LookAtFonts();
  QPainter painter(this);
  drawFrame(&painter);
  bool cut = false;
  const QStringList lines = VisibleLines(cut);
  const QRect area = contentsRect();
  const int height = fontMetrics().height();
  int top = area.top();
  if (alignment() & Qt::AlignVCenter) top += (area.height() - height * int(lines.size())) / 2;
  if (muted_) painter.setOpacity(kMutedOpacity);
  painter.setPen(palette().color(foregroundRole()));
  const auto across =
      QStyle::visualAlignment(layoutDirection(), alignment()) & Qt::AlignHorizontal_Mask;
  for (const QString& line : lines) {
    const QRect place(area.left(), std::max(top, area.top()), area.width(), height);
    painter.drawText(place, int(across | Qt::AlignVCenter) | Qt::TextSingleLine, line);
    top += height;
  }
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    bool cut = false;
    VisibleLines(cut);
    if (cut) {
      const auto* help = static_cast<QHelpEvent*>(event);
      QToolTip::showText(help->globalPos(), PlainToolTip(DrawnText()), this);
      return true;
    }
  }
  return QLabel::event(event);
}

}  // namespace verlume::qt
