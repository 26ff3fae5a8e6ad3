// Helpers for the core's tests: source and prepared text, the point and
// comma settings, an interpreter to call single routines on, tables of whole
// programs, and the box lines of the trace.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/evaluator.h"
#include "core/regional.h"
#include "core/window_events.h"
#include "headless_desktop.h"
#include "library_test_support.h"

namespace tamrix::testing {

// Source lines, each ended by CR LF.
inline std::string Unit(const std::vector<const char*>& lines) {
  std::string out;
  for (const char* line : lines) out += std::string(line) + "\r\n";
  return out;
}

// The lines of a prepared text, without their CR LF.
inline std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const auto end = text.find("\r\n", start);
    lines.push_back(text.substr(start, end - start));
    if (end == std::string::npos) break;
    start = end + 2;
  }
  return lines;
}

// The statements of a prepared text, without their tags.
inline std::vector<std::string> Statements(const std::string& text) {
  std::vector<std::string> out;
  for (const auto& line : SplitLines(text)) out.push_back(line.substr(19));
  return out;
}

// The point or the comma settings of numbers.
inline Regional NumberSettings(char decimalSign) {
  Regional settings;
  settings.decimalSign = decimalSign;
  settings.groupingSign = decimalSign == ',' ? '.' : ',';
  return settings;
}

// Tests that run once with the point and once with the comma settings.
class BothLocales : public ::testing::TestWithParam<char> {
 private:
  ScopedRegional regional_{NumberSettings(GetParam())};
};

// An interpreter with its built-in variables declared, as at the start of a
// run, for calling the core's routines one at a time.
class Sandbox : public ProgramRun {
 public:
  explicit Sandbox(const std::string& answers = "") : ProgramRun(answers) {
    StartWindowSystem(interpreter);
    interpreter.DeclareBuiltInVariables();
  }

  // Prepares units as the first activation does, without running them.
  std::string Load(const std::vector<std::string>& units) {
    LaunchInfo launch;
    for (std::size_t i = 0; i < units.size(); ++i) launch.codes[i] = units[i];
    launch.programName = "TEST.ZRC";
    interpreter.SetLaunch(launch);
    return interpreter.Prepare();
  }

  void Declare(const std::string& list) {
    bool numeric = false;
    interpreter.DeclareVariables(list, numeric);
  }
  void Set(const std::string& name, const Value& value) { interpreter.Variables().SetVariable(name, value, true); }

  Value Eval(const std::string& expr) {
    bool numeric = false;
    return Evaluate(interpreter, expr, numeric);
  }
  Value EvalText(const std::string& expr) {
    bool numeric = false;
    return EvaluateText(interpreter, expr, numeric);
  }
};

// A whole program and the texts it writes; it shows no box. The test runs
// in executor_test.cpp; any test file may add its own tables.
struct ProgramCase {
  const char* name;
  std::vector<const char*> source;
  std::vector<std::string> written;
};

class ProgramCases : public ::testing::TestWithParam<ProgramCase> {};

// Names parameterised cases after their `name` field.
struct ByName {
  template <typename Case>
  std::string operator()(const ::testing::TestParamInfo<Case>& info) const {
    return info.param.name;
  }
};

// A box line of the trace as ProgramRun collects it.
inline std::string BoxLine(const std::string& buttons, const std::string& icon, const std::string& title,
                           const std::string& escapedText, const std::string& answer) {
  return "box\t" + buttons + "\t" + icon + "\t" + title + "\t" + escapedText + "\t" + answer;
}
inline std::string StopBoxLine(const std::string& escapedText) {
  return BoxLine("ok", "critical", "Tamrix", escapedText, "OK");
}
inline std::string QueryBoxLine(const std::string& escapedText, const std::string& answer = "OK") {
  return BoxLine("okcancel", "none", "Tamrix", escapedText, answer);
}

}  // namespace tamrix::testing
