// A control that takes key downs into the key tables. The Enter key is
// turned into a Tab before the control sees it, so the window's key preview
// hands it the key down itself.
#pragma once

class QKeyEvent;

namespace tamrix {

class KeyDownReceiver {
 public:
  virtual ~KeyDownReceiver() = default;
  virtual void ReceiveKeyDown(const QKeyEvent& event) = 0;
};

}  // namespace tamrix
