// Message boxes on screen: the one place where a BoxRequest becomes a real
// modal QMessageBox.
#pragma once

#include "core/desktop.h"

class QWidget;

namespace tamrix {

// Shows the box modally over `parent` (may be null) and returns the button
// pressed. Events and timers go on while it is up. Closing the box by its
// close button or Escape gives Cancel on an OK/Cancel box, No on a Yes/No
// box and OK on an OK box.
BoxAnswer ShowMessageBox(QWidget* parent, const BoxRequest& request);

}  // namespace tamrix
