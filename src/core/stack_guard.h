// The run-time's stack fault: deep nesting of frames or formulas ends in
// error 28 "Out of stack space" instead of overrunning the thread's stack.
#pragma once

namespace tamrix {

// Notes the top of the stack of the thread that runs programs.
void RecordStackBase();
// Fault 28 when less than a safety margin of the stack is left.
void CheckStackSpace();

}  // namespace tamrix
