#include "windows/automation_hooks.h"

#include <cstdlib>

namespace tamrix {
namespace {

std::optional<std::string> Variable(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr) return std::nullopt;
  return std::string(value);
}

}  // namespace

AutomationHooks ReadAutomationHooks() {
  AutomationHooks hooks;
  hooks.tracePath = Variable("TAMRIX_TRACE").value_or("");
  hooks.answers = Variable("TAMRIX_ANSWERS");
  hooks.exitAfterRun = Variable("TAMRIX_EXIT") == "1";
  hooks.snapshotPath = Variable("TAMRIX_SNAPSHOT").value_or("");
  hooks.inputPath = Variable("TAMRIX_INPUT").value_or("");
  return hooks;
}

std::unique_ptr<Trace> OpenTrace(const AutomationHooks& hooks) {
  if (hooks.tracePath.empty()) return std::make_unique<Trace>();
  return std::make_unique<Trace>(hooks.tracePath);
}

ScriptedAnswers MakeAnswers(const AutomationHooks& hooks) {
  if (!hooks.answers) return ScriptedAnswers();
  return ScriptedAnswers(*hooks.answers);
}

}  // namespace tamrix
