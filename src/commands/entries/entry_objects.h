// What the commands of the entry and label objects share: reaching an
// entry's control as its kind's interface, and the kinds' registrations.
#pragma once

#include "commands/object_frame.h"
#include "core/interpreter.h"

namespace tamrix {

template <class Control>
Control& ControlAt(Interpreter& in, ObjectKind kind, int index) {
  return dynamic_cast<Control&>(*in.Objects().Family(kind).entries[static_cast<std::size_t>(index)].control);
}

template <class Control>
Control& ControlOf(const ObjectCall& call) {
  return dynamic_cast<Control&>(call.Control());
}

// A value of the language read as a whole number of the control's range;
// error 380 when it is negative.
int NonNegative(const Value& value);

void RegisterTextCommand(Dispatcher& dispatcher);
void RegisterValueEntryCommands(Dispatcher& dispatcher);  // Mask, Currency, Calendar
void RegisterChoiceCommands(Dispatcher& dispatcher);      // Check, Radio
void RegisterCaptionCommands(Dispatcher& dispatcher);     // Label, Link, Frame
void RegisterScrollBarCommand(Dispatcher& dispatcher);

}  // namespace tamrix
