// Hands the events of the windows and the ticks of the timers to the
// language core, each under the session's guard, so that no fault escapes
// into Qt. Before a core is attached, events are dropped.
#pragma once

#include <functional>

namespace tamrix {

class Interpreter;

class EventRelay {
 public:
  using Guard = std::function<void(const std::function<void()>&)>;
  using Event = std::function<void(Interpreter&)>;

  void Attach(Interpreter& core, Guard guard) {
    core_ = &core;
    guard_ = std::move(guard);
  }
  bool Attached() const { return core_ != nullptr; }
  Interpreter* Core() const { return core_; }

  void Deliver(const Event& event) const {
    if (core_ == nullptr) return;
    guard_([&] { event(*core_); });
  }
  // Work that needs no core but must not let a fault escape.
  void Run(const std::function<void()>& work) const {
    if (guard_) {
      guard_(work);
    } else {
      work();
    }
  }

 private:
  Interpreter* core_ = nullptr;
  Guard guard_;
};

}  // namespace tamrix
