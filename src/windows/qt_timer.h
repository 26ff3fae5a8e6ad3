// A timer of the main window made of a QTimer: it ticks only while the
// message loop runs, and never inside its own tick.
#pragma once

#include <QTimer>

#include "core/run_time_window.h"
#include "windows/event_relay.h"

namespace tamrix {

class QtTimer : public DesktopTimer {
 public:
  QtTimer(TimerTick tick, const EventRelay& relay);

  void Start(int milliseconds) override { timer_.start(milliseconds); }
  void Stop() override { timer_.stop(); }

 private:
  QTimer timer_;
};

}  // namespace tamrix
