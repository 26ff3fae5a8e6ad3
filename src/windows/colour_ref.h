// Colours of the language and of Qt. A language colour is a 32-bit value
// with red in the low byte, then green and blue; a value with the high bit
// set names a system colour by its index (0x8000000F is the button face).
#pragma once

#include <QColor>
#include <cstdint>

namespace tamrix {

QColor ScreenColour(std::int32_t colour);
// The language colour of a screen colour: red + 256 * green + 65536 * blue.
std::int32_t LanguageColour(const QColor& colour);

}  // namespace tamrix
