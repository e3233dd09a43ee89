// The font of the program's own texts.
#pragma once

namespace verlume::qt {

// Gives the application another font if its own is no installed one: Windows may name as its own
// font one that only stands for others, and Qt's font dialog ends the program over that. Call it
// before the first window is made.
void UseInstalledFont();

}  // namespace verlume::qt
