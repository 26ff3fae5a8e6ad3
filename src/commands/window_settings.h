// The settings that Window and NewWindow share: size, position and
// resolution of a window in lines and columns, and its background.
#pragma once

#include <string>

#include "core/run_time_window.h"

namespace tamrix {

class Interpreter;

// SIZE: "MAX" (any case) takes the whole screen height or width from 0.
void ApplySize(Interpreter& in, RunTimeWindow& window, const std::string& lines, const std::string& columns);
// POS: "CENTER" (any case) centres on the screen; anything else is the raw
// argument text read as a number, never an evaluated expression.
void ApplyPosition(Interpreter& in, RunTimeWindow& window, const std::string& rawLine,
                   const std::string& rawColumn);
// RES: the window's client area holds that many lines and columns (0 counts
// as 1); LinSize and ColSize change for the whole program.
void ApplyResolution(Interpreter& in, RunTimeWindow& window, double lines, double columns);

// A colour, a colour variable's name, "NULL" or a picture file; a picture
// with line and column both not 0 is painted there, otherwise it becomes
// the window's picture. False after the "not found" box.
bool SetBackground(Interpreter& in, RunTimeWindow& window, const std::string& rawValue, double line,
                   double column);

// The Command Error Box of the window commands: the source location, a
// line break, the words. False when the user pressed Cancel.
bool WindowErrorBox(Interpreter& in, const std::string& words);

}  // namespace tamrix
