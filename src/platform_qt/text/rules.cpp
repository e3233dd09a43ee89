#include "platform_qt/text/rules.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QTextDocument>
#include <algorithm>
#include <utility>

#include "platform_qt/convert/text.h"

namespace verlume::qt {
namespace {

constexpr double kRuleFontSize = 8;  // points
constexpr qreal kAroundWords = 8;    // pixels, between the words and the lines on either side
constexpr qreal kShortestLine = 12;

using RuleList = std::vector<RichTextBox::SignWords>;

// In pixels of the layout's device, so that it is as large as text of that size beside it.
QFont RuleFont(const QTextDocument& document) {
  const QPaintDevice* device = document.documentLayout()->paintDevice();
  QFont font;
  constexpr int kUsualDpi = 96;
  constexpr int kPointsOfInch = 72;
  const int dpi = device ? device->logicalDpiY() : kUsualDpi;
  font.setPixelSize(std::max(1, qRound(kRuleFontSize * dpi / kPointsOfInch)));
  return font;
}

void DrawRule(QPainter& painter, const QRectF& place, const QString& words) {
  const QFontMetricsF metrics(painter.font());
  const qreal room = place.width() - 2 * (kAroundWords + kShortestLine);
  const QString shown = metrics.elidedText(words, Qt::ElideRight, room);
  const qreal half = metrics.horizontalAdvance(shown) / 2 + kAroundWords;
  const QPointF middle = place.center();
  painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine, shown);
  painter.drawLine(QPointF(place.left(), middle.y()), QPointF(middle.x() - half, middle.y()));
  painter.drawLine(QPointF(middle.x() + half, middle.y()), QPointF(place.right(), middle.y()));
}

QString Joined(const RuleList& rules) {
  QString text;
  for (const RichTextBox::SignWords& words : rules) {
    if (!text.isEmpty()) text += u' ';
    text += ToQt(words()) + u'.';
  }
  return text;
}

}  // namespace

const BlockRules* RulesOf(const QTextBlock& block) {
  return static_cast<const BlockRules*>(block.userData());
}

void AddRuleTo(QTextDocument& document, RichTextBox::SignWords words) {
  QTextBlock block = document.lastBlock();
  auto* rules = static_cast<BlockRules*>(block.userData());
  if (!rules) block.setUserData(rules = new BlockRules);
  (document.isEmpty() ? rules->above : rules->below).push_back(std::move(words));
}

QString WordsOfRules(const QTextBlock& block) {
  const BlockRules* rules = RulesOf(block);
  if (!rules) return {};
  return (Joined(rules->above) + u' ' + Joined(rules->below)).trimmed();
}

QString WordsOfRuleAt(const QTextBlock& block, qreal y, qreal blockHeight) {
  const BlockRules* rules = RulesOf(block);
  if (!rules) return {};
  const qreal height = RuleHeight(*block.document());
  const auto above = static_cast<std::size_t>(std::max<qreal>(y, 0) / height);
  if (above < rules->above.size()) return ToQt(rules->above[above]());
  const auto fromBottom = static_cast<std::size_t>(std::max<qreal>(blockHeight - y, 0) / height);
  if (fromBottom >= rules->below.size()) return {};
  return ToQt(rules->below[rules->below.size() - 1 - fromBottom]());
}

qreal RuleHeight(const QTextDocument& document) {
  constexpr qreal kSpace = 4;
  return QFontMetricsF(RuleFont(document)).height() + kSpace;
}

void DrawRules(QPainter& painter, const QTextBlock& block, const QRectF& place,
               const QPalette& palette) {
  const BlockRules* rules = RulesOf(block);
  if (!rules) return;
  const QTextDocument& document = *block.document();
  const qreal height = RuleHeight(document);
  const qreal margin = document.documentMargin();
  constexpr float kQuiet = 0.6F;  // opacity; leaves a contrast of 5 to black on white
  QColor quiet = palette.color(QPalette::Text);
  quiet.setAlphaF(kQuiet);
  painter.setFont(RuleFont(document));
  painter.setPen(quiet);
  const auto draw = [&](const RuleList& list, qreal top) {
    for (const RichTextBox::SignWords& words : list) {
      const QRectF line(place.left(), top, place.width(), height);
      DrawRule(painter, line.adjusted(margin, 0, -margin, 0), ToQt(words()));
      top += height;
    }
  };
  draw(rules->above, place.top());
  draw(rules->below, place.bottom() - static_cast<qreal>(rules->below.size()) * height);
}

}  // namespace verlume::qt
