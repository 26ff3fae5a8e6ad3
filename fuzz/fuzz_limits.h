// A program run for fuzzing: a statement budget ends runaway loops, a
// desktop that gives up after many pumps ends the waits that never return,
// and a text limit of 64 KB makes texts that keep growing fail fast.
#pragma once

#include <functional>
#include <string>

#include "core/fault.h"
#include "core/value.h"
#include "headless_desktop.h"

namespace tamrix::fuzzing {

struct WaitedTooLong {};

class LimitedRun : public testing::ProgramRun {
 public:
  static constexpr long kStatements = 20000;
  static constexpr int kPumps = 2000;
  static constexpr std::size_t kTextBytes = std::size_t{1} << 16;

  LimitedRun() {
    SetTextLimit(kTextBytes);
    interpreter.State().statementBudget = kStatements;
    desktop.onPump = [this] {
      if (desktop.pumps > kPumps) throw WaitedTooLong{};
    };
  }

  void Guarded(const std::function<void()>& work) {
    try {
      work();
    } catch (const WaitedTooLong&) {
    } catch (const RuntimeFault&) {
    } catch (const testing::ProcessEnded&) {
    }
  }
};

}  // namespace tamrix::fuzzing
