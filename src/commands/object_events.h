// What the events of the objects' controls write into the language: they
// never call the program, they leave names and indexes in variables and
// mailboxes for the program to poll.
#pragma once

#include <string>

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

// A click or double click on a control that reports no more than where it
// was: a control of the main window leaves its index in RefIndex.
void ObjectClicked(Interpreter& interpreter, ObjectKind kind, int index, bool onMainWindow);

// A Check or Radio was clicked, by the user or by a new value. The windows
// of the Form1 family write "name.Valor", which the objects never declare:
// unless the program declared it, that write ends the process. A Radio that
// came on first sets every Radio's variable to 0.
void ChoiceClicked(Interpreter& interpreter, ObjectKind kind, int index, int value, bool onMainWindow);

// The value of a Currency or a ScrollBar changed; the variable follows, under
// "name.Valor" on a Form1 window. A ScrollBar's write that fails is ignored,
// a Currency's ends the process as a Check's does.
void ValueChanged(Interpreter& interpreter, ObjectKind kind, int index, double value, bool onMainWindow);
// A Currency lost the focus: its value is written once more, failures
// ignored, unless its window is closing.
void NumberLostFocus(Interpreter& interpreter, int index, double value, bool onMainWindow);

// The text of a Mask or a Calendar changed: it goes to "name.Txt".
void ObjectTextChanged(Interpreter& interpreter, ObjectKind kind, int index, const std::string& text);

}  // namespace tamrix
