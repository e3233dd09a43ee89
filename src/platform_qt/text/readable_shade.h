// Which colours can be read on which background, and what to paint instead of one that cannot.
#pragma once

#include "richtext/document.h"

namespace verlume::qt {

// Text and signs with less contrast than this are hard to make out.
inline constexpr double kLegibleContrast = 3;

// The contrast of two colours as WCAG 2 defines it: from 1, where they are equally bright, to 21
// for black and white. Which of them is the background makes no difference.
double Contrast(Color one, Color other);

// The colour to paint text with. A colour whose contrast with the background is legible comes
// back as it is; of any other the nearest shade, darker or lighter, with a contrast of 4.5. It has
// the hue of the colour, unless that has none. Black, which is the colour of all text for which
// nobody chose one, becomes white.
Color ReadableShade(Color color, Color background);

}  // namespace verlume::qt
