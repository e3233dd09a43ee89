#include "platform_qt/help/help_topic.h"

#include <QEvent>
#include <QScrollBar>

#include "platform_qt/help/help_search.h"

namespace verlume::qt {
namespace {

// The palette's link colour, made lighter if it would be hard to read on a dark background.
QColor LinkColor(const QPalette& palette) {
  constexpr int kDarkGround = 128;
  constexpr int kReadableOnDark = 205;
  QColor link = palette.color(QPalette::Link);
  if (palette.color(QPalette::Base).lightness() < kDarkGround &&
      link.lightness() < kReadableOnDark) {
    link.setHsl(link.hslHue(), link.hslSaturation(), kReadableOnDark);
  }
  return link;
}

}  // namespace

HelpTopicView::HelpTopicView(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setUndoRedoEnabled(false);
  document()->setDocumentMargin(12);
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    if (onLink) onLink(link.fragment());
  });
}

void HelpTopicView::ShowTopic(const QString& html) {
  html_ = html;
  Mark(QString());
  Render();
}

void HelpTopicView::Render() {
  document()->setDefaultStyleSheet(
      QStringLiteral("a { color: %1; }").arg(LinkColor(palette()).name()));
  setHtml(html_);
}

void HelpTopicView::Mark(const QString& query) {
  query_ = query;
  QList<ExtraSelection> marks;
  for (const TextSpan& span : FindWords(toPlainText(), query)) {
    ExtraSelection mark;
    mark.cursor = QTextCursor(document());
    mark.cursor.setPosition(int(span.start));
    mark.cursor.setPosition(int(span.start + span.length), QTextCursor::KeepAnchor);
    mark.format.setBackground(palette().brush(QPalette::Highlight));
    mark.format.setForeground(palette().brush(QPalette::HighlightedText));
    marks.append(mark);
  }
  setExtraSelections(marks);
  if (marks.isEmpty()) return;
  QTextCursor first = marks.first().cursor;
  first.clearSelection();
  setTextCursor(first);
}

QVariant HelpTopicView::loadResource(int, const QUrl&) {
  return {};
}

void HelpTopicView::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() != QEvent::PaletteChange && event->type() != QEvent::ApplicationPaletteChange) {
    return;
  }
  const int scroll = verticalScrollBar()->value();
  Render();
  Mark(query_);
  verticalScrollBar()->setValue(scroll);
}

}  // namespace verlume::qt
