// TxtAux: the text box that each run-time window keeps beyond its right
// edge, where nobody sees it. Event and KeyTest show it and give it the
// focus, so that key downs and ups reach the key tables.
#pragma once

#include <QLineEdit>

#include "windows/event_relay.h"
#include "windows/key_down_receiver.h"

namespace tamrix {

class KeyCatcher : public QLineEdit, public KeyDownReceiver {
  Q_OBJECT

 public:
  explicit KeyCatcher(QWidget* window);

  void SetRelay(const EventRelay* relay) { relay_ = relay; }
  void ReceiveKeyDown(const QKeyEvent& event) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  const EventRelay* relay_ = nullptr;
};

}  // namespace tamrix
