// The property words that many object kinds share, as handlers for their
// property tables. Each reads its value from element 2.
#pragma once

#include "commands/object_frame.h"

namespace tamrix {

// True/false words: "TRUE" sets, "FALSE" clears, anything else leaves the
// control alone.
Value EnabledProperty(ObjectCall& call);
Value VisibleProperty(ObjectCall& call);
// "TRUE" sets, anything else clears.
Value BoldProperty(ObjectCall& call);
Value ItalicProperty(ObjectCall& call);

Value BackColorProperty(ObjectCall& call);
Value ForeColorProperty(ObjectCall& call);
Value FontNameProperty(ObjectCall& call);
Value FontSizeProperty(ObjectCall& call);
Value TabIndexProperty(ObjectCall& call);
Value SetFocusProperty(ObjectCall& call);
// The tooltip, from the value as text.
Value TipProperty(ObjectCall& call);
// The control goes into the window of the Image object named by the value;
// nothing happens when there is no such image.
Value ParentProperty(ObjectCall& call);

}  // namespace tamrix
