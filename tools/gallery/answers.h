// The answers that the photographer gives to boxes after taking their pictures.
#pragma once

#include <QString>
#include <functional>
#include <vector>

class QWidget;

namespace verlume::gallery {

using Answer = std::function<void(QWidget* box)>;
using Answers = std::vector<Answer>;  // for one box after the other

// Presses and releases a key.
void Press(QWidget* widget, int key, const QString& text = {},
           Qt::KeyboardModifiers held = Qt::NoModifier);

Answer Escape();
// Answers Yes, whatever the default is.
Answer Yes();
// Fills in the text and presses Enter.
Answer FillIn(const QString& text);

}  // namespace verlume::gallery
