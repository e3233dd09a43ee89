// The layout of a rich-text widget's document: that of plain text, with room for rules.
#pragma once

#include <QPlainTextDocumentLayout>

namespace verlume::qt {

class RuleLayout : public QPlainTextDocumentLayout {
 public:
  using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

  // With the block's rules.
  QRectF blockBoundingRect(const QTextBlock& block) const override;

  // Rules have been added: updates what depends on the height of the text.
  void NoteRules();
};

}  // namespace verlume::qt
