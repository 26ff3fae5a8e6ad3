// What the events of the objects' controls write into the language: they
// never call the program, they leave names and indexes in variables and
// mailboxes for the program to poll.
#pragma once

#include "core/object_controls.h"

namespace tamrix {

class Interpreter;

// A button was clicked: its name goes to the ClickedButton mailbox and to
// TestButton; a button of the main window also leaves its index in RefIndex.
void ButtonClicked(Interpreter& interpreter, int index, bool onMainWindow);

// An object got or lost the focus: its name goes to GotFocus or LostFocus.
// A button also sets or clears ButtonHasFocus of its owner window, which
// leaves Enter to the button.
void ObjectFocusChanged(Interpreter& interpreter, ObjectKind kind, int index, bool gained);

}  // namespace tamrix
