// What the photographer answers to a box once its picture is taken.
#pragma once

#include <QString>
#include <functional>
#include <vector>

class QWidget;

namespace verlume::gallery {

using Answer = std::function<void(QWidget* box)>;
using Answers = std::vector<Answer>;  // to one box after the other

// A key that goes down and up again.
void Press(QWidget* widget, int key, const QString& text = {},
           Qt::KeyboardModifiers held = Qt::NoModifier);

Answer Escape();
// Yes, whatever the default is.
Answer Yes();
// Fills in the text and presses Enter.
Answer FillIn(const QString& text);

}  // namespace verlume::gallery
