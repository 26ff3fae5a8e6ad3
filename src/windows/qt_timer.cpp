#include "windows/qt_timer.h"

#include <utility>

namespace tamrix {

QtTimer::QtTimer(TimerTick tick, const EventRelay& relay) {
  QObject::connect(&timer_, &QTimer::timeout, [tick = std::move(tick), &relay] { relay.Run(tick); });
}

}  // namespace tamrix
