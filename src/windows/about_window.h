// The about window of a run-time that holds no program: a title line, the
// version and an OK button. It is a box like any other to the trace and to
// scripted answers.
#pragma once

#include "core/desktop.h"

namespace tamrix {

// The about window as the trace records it: title "Tamrix", the title line
// and the version line as its text.
BoxRequest AboutBoxRequest();

// Shows the about window modally until its OK button or close box closes it.
BoxAnswer ShowAboutWindow();

}  // namespace tamrix
