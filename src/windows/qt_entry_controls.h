// The Qt controls of the entry and label objects: Text, Mask, Currency,
// Calendar, Check, Radio, Label, Link, Frame and ScrollBar, each a widget of
// src/controls behind its kind's interface, with its events wired to the
// core.
#pragma once

#include <memory>

#include "windows/event_relay.h"
#include "windows/qt_object_control.h"

namespace tamrix {

// Hands an event to the core, if one is attached by then.
using EventSink = std::function<void(const EventRelay::Event&)>;

// The control of a kind of these objects, on `window`; nullptr for another
// kind. `onMainWindow`: the main window's controls report their index.
std::unique_ptr<QtObjectControl> MakeEntryControl(ObjectKind kind, int index, QWidget& window, bool onMainWindow,
                                                  QtObjectControl::WindowLookup lookup, EventSink sink);

}  // namespace tamrix
