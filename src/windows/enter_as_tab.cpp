#include "windows/enter_as_tab.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include "windows/key_down_receiver.h"
#include "windows/run_time_widget.h"

namespace tamrix {

bool EnterAsTab::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
  auto* target = qobject_cast<QWidget*>(watched);
  if (target == nullptr) return false;
  auto* window = qobject_cast<RunTimeWidget*>(target->window());
  if (window == nullptr || !window->KeyPreview() || window->Flags().buttonHasFocus) return false;
  // The control's key down comes before the window's key press.
  if (auto* receiver = dynamic_cast<KeyDownReceiver*>(target)) receiver->ReceiveKeyDown(*key);
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &tab);
  return true;
}

}  // namespace tamrix
