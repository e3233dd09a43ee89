#include "platform_qt/controls/tool_tip.h"

#include <QTextDocument>

namespace verlume::qt {

QString PlainToolTip(const QString& text) {
  // A tool tip guesses whether it is markup, and this is its guess. Only what it takes for markup
  // may be escaped: anything else it shows as it is.
  if (!Qt::mightBeRichText(text)) return text;
  return QStringLiteral("<span style=\"white-space:pre-wrap\">") + text.toHtmlEscaped() +
         QStringLiteral("</span>");
}

}  // namespace verlume::qt
