#include "benchmarks/bare_pane.h"

#include <QApplication>
#include <map>

namespace verlume {
namespace {

QTextCharFormat Format(const QString& family, double size, const QColor& color) {
  QTextCharFormat format;
  format.setFontFamilies({family});
  format.setFontPointSize(size);
  format.setForeground(color);
  return format;
}

}  // namespace

BarePane::BarePane(std::int64_t lines)
    : stamp_(Format("Arial", 7, Qt::black)),
      tag_(Format("Arial", 8, Qt::black)),
      message_(Format("Tahoma", 8.5, Qt::blue)) {
  pane_.setReadOnly(true);
  pane_.setUndoRedoEnabled(false);
  pane_.setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  pane_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  pane_.resize(600, 400);
  pane_.show();
  for (std::int64_t line = 0; line < lines; ++line) WriteLine();
  QApplication::processEvents();
}

void BarePane::WriteLine() {
  QTextCursor cursor(pane_.document());
  cursor.movePosition(QTextCursor::End);
  cursor.beginEditBlock();
  if (!pane_.document()->isEmpty()) cursor.insertBlock();
  cursor.insertText(QStringLiteral("[12/10/2002_10:20:30]"), stamp_);
  cursor.insertText(QStringLiteral("<nickname>"), tag_);
  cursor.insertText(QString::fromUtf16(u"καλημέρα, hello there"), message_);
  cursor.endEditBlock();
  pane_.setTextCursor(cursor);
  pane_.ensureCursorVisible();
}

BarePane& BarePaneOf(std::int64_t lines) {
  static auto& panes = *new std::map<std::int64_t, BarePane>;
  return panes.try_emplace(lines, lines).first->second;
}

}  // namespace verlume
