// The rules of a QTextDocument: quiet lines with a few words between two paragraphs. They belong to
// the blocks, but are no part of their text.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QTextBlock>
#include <QTextBlockUserData>
#include <vector>

#include "platform/rich_text_box.h"

namespace verlume::qt {

struct BlockRules : QTextBlockUserData {
  std::vector<RichTextBox::SignWords> above;  // from top to bottom, as is `below`
  std::vector<RichTextBox::SignWords> below;
};

// Null if there are none.
const BlockRules* RulesOf(const QTextBlock& block);

// Below the last block, or above the first one if the document is empty.
void AddRuleTo(QTextDocument& document, RichTextBox::SignWords words);

// The words of all rules of a block, for assistive tools; "" without any.
QString WordsOfRules(const QTextBlock& block);
// Those of the rule at a height, counted from the top of the block's rectangle; "" if there is none
// at that height.
QString WordsOfRuleAt(const QTextBlock& block, qreal y, qreal blockHeight);

// The height of one rule in this document, in the units of its layout.
qreal RuleHeight(const QTextDocument& document);

// Draws the rules of a block into the rectangle of its block.
void DrawRules(QPainter& painter, const QTextBlock& block, const QRectF& place,
               const QPalette& palette);

}  // namespace verlume::qt
