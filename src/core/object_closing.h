// The two walks that empty the Object Table when windows close.
#pragma once

#include <string>

namespace tamrix {

class Interpreter;
class ObjectControl;

// The main window closes: every family from its last entry down to entry 1
// is cleared, its value variables removed and its control unloaded; entry 0
// is cleared and hidden.
void ShutdownObjects(Interpreter& interpreter);

// A dynamic window closes: every entry, down to entry 0, whose owner is the
// window's upper-case `tag` is cleared and its control unloaded (entry 0
// hidden). The numeric kinds' variables are removed under the wrong name
// ".Valor", so that their ".Value" stays declared.
void CloseWindowObjects(Interpreter& interpreter, const std::string& tag);

// A control that goes: if it is the Image in use, drawing goes back to the
// Current Window. A surface that has already gone with its window can't
// stay in use either.
void ReleaseUsedImage(Interpreter& interpreter, ObjectControl* control);

}  // namespace tamrix
