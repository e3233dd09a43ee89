// The marks by which the margin tells who a line is from: each a shape and a colour of its own.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "platform/rich_text_box.h"

namespace verlume::qt {

inline constexpr int kMarkWidth = 8;  // pixels

// The ground of the margin beside a pane of this colour: near to it, and yet another.
QColor MarginGround(const QColor& pane);
// The colour of an author's mark on a ground, which it contrasts with at least 3:1.
QColor MarkColor(Author author, const QColor& ground);

// Draws the mark of one line, whose height `place` has; the width is kMarkWidth. Nothing for
// Author::None.
//
// The user's lines have a bar, which goes on from line to line, the peer's an arrowhead each, that
// points to the text, and those of a file two dots.
void DrawMark(QPainter& painter, Author author, const QRectF& place);

// The mark of what did not go out is hollow: one outline around all lines of a paragraph.
bool IsHollow(Author author);
void DrawHollowMark(QPainter& painter, const QRectF& place);

}  // namespace verlume::qt
