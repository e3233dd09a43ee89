#include "platform_qt/controls/tool_tip.h"

#include <QTextDocument>

namespace verlume::qt {

QString PlainToolTip(const QString& text) {
  // Qt guesses by this function whether a tool tip is markup. Text that it takes for plain must not
  // be escaped.
  if (!Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<span style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() +
         QStringLiteral("</span>");
}

}  // namespace verlume::qt
