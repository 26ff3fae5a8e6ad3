// The environment variables that let a program run unattended, read once at
// start: TAMRIX_TRACE, TAMRIX_ANSWERS, TAMRIX_EXIT, TAMRIX_SNAPSHOT and
// TAMRIX_INPUT.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/automation.h"

namespace tamrix {

struct AutomationHooks {
  std::string tracePath;               // empty: no trace
  std::optional<std::string> answers;  // set, even empty: no box is shown
  bool exitAfterRun = false;           // only the value "1" turns it on
  std::string snapshotPath;            // empty: no snapshot
  std::string inputPath;               // empty: no replayed input
};

AutomationHooks ReadAutomationHooks();

// The trace file named by the hooks, or a trace that writes nothing.
std::unique_ptr<Trace> OpenTrace(const AutomationHooks& hooks);
ScriptedAnswers MakeAnswers(const AutomationHooks& hooks);

}  // namespace tamrix
