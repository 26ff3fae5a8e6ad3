#include "windows/key_catcher.h"

#include <QKeyEvent>

#include "controls/virtual_keys.h"
#include "core/window_events.h"

namespace tamrix {

KeyCatcher::KeyCatcher(QWidget* window) : QLineEdit(window) { hide(); }

void KeyCatcher::ReceiveKeyDown(const QKeyEvent& event) {
  const int code = VirtualKeyCode(event);
  const int shift = ShiftState(event.modifiers());
  if (code == 0 || relay_ == nullptr) return;
  relay_->Deliver([code, shift](Interpreter& in) { OnKeyDown(in, code, shift); });
}

// The text itself is of no use: the keys only go to the tables.
void KeyCatcher::keyPressEvent(QKeyEvent* event) {
  ReceiveKeyDown(*event);
  event->accept();
}

// A held key repeats its downs, and goes up once.
void KeyCatcher::keyReleaseEvent(QKeyEvent* event) {
  event->accept();
  const int code = VirtualKeyCode(*event);
  if (event->isAutoRepeat() || code == 0 || relay_ == nullptr) return;
  relay_->Deliver([code](Interpreter& in) { OnKeyUp(in, code); });
}

}  // namespace tamrix
