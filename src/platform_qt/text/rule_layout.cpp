#include "platform_qt/text/rule_layout.h"

#include <QTextBlock>
#include <QTextLayout>

#include "platform_qt/text/rules.h"

namespace verlume::qt {
namespace {

// The lines of a block begin at its top when it has been laid out anew. Says how far they moved.
qreal MoveLinesTo(qreal top, const QTextLayout& layout) {
  const qreal distance = layout.lineCount() > 0 ? top - layout.lineAt(0).y() : 0;
  if (distance == 0) return 0;
  for (int i = 0; i < layout.lineCount(); ++i) {
    QTextLine line = layout.lineAt(i);
    line.setPosition(line.position() + QPointF(0, distance));
  }
  return distance;
}

}  // namespace

QRectF RuleLayout::blockBoundingRect(const QTextBlock& block) const {
  QRectF place = QPlainTextDocumentLayout::blockBoundingRect(block);
  const BlockRules* rules = block.isValid() ? RulesOf(block) : nullptr;
  if (!rules) return place;
  const qreal height = RuleHeight(*document());
  const qreal above = static_cast<qreal>(rules->above.size()) * height;
  const qreal below = static_cast<qreal>(rules->below.size()) * height;
  const qreal moved = MoveLinesTo(above, *block.layout());
  place.setHeight(place.height() + moved + below);
  return place;
}

void RuleLayout::NoteRules() {
  emit documentSizeChanged(documentSize());
  emit update();
}

}  // namespace verlume::qt
