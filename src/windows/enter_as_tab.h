// The key preview of the run-time windows: Enter moves the focus on as Tab
// does and is dropped, unless the window's key preview is off or a button
// has the focus. One filter serves the whole application.
#pragma once

#include <QObject>

namespace tamrix {

class EnterAsTab : public QObject {
  Q_OBJECT

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tamrix
