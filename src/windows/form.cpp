#include "windows/form.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "controls/virtual_keys.h"

namespace tamrix {

Form::Form(WindowClass kind, std::string name) : RunTimeWidget(kind, std::move(name)) {}

void Form::keyReleaseEvent(QKeyEvent* event) {
  const int code = VirtualKeyCode(*event);
  if (event->isAutoRepeat() || code == 0) return;
  Deliver([code](Interpreter& in) { OnFormKeyUp(in, code); });
}

void Form::closeEvent(QCloseEvent* event) {
  Deliver([this](Interpreter& in) { OnWindowClosing(in, *this); });
  Surface().Clear();
  event->accept();
}

}  // namespace tamrix
