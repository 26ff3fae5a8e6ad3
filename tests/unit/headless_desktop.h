// A desktop without a screen for the core's tests: it records what the
// program prints, answers boxes from a script and turns the end of the
// process into an exception.
#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "commands/command_families.h"
#include "core/automation.h"
#include "core/desktop.h"
#include "core/interpreter.h"

namespace tamrix::testing {

struct ProcessEnded : std::runtime_error {
  explicit ProcessEnded(int s) : std::runtime_error("process ended"), status(s) {}
  int status;
};

class HeadlessSurface : public Surface {
 public:
  std::string Name() const override { return "PARENT"; }
  void PrintText(int, int, const std::string& text) override { printed.push_back(text); }
  void Clear() override { ++clears; }
  int ClientWidth() const override { return 632; }
  int ClientHeight() const override { return 373; }
  void SetCaption(const std::string& text) override { caption = text; }

  std::vector<std::string> printed;
  std::string caption;
  int clears = 0;
};

class HeadlessDesktop : public Desktop {
 public:
  BoxAnswer ShowBox(const BoxRequest& request) override { return request.defaultAnswer; }
  void PumpEvents() override {
    ++pumps;
    if (onPump) onPump();
  }
  void Sleep(int milliseconds) override { slept += milliseconds; }
  Surface& CurrentSurface() override { return surface; }
  void SetMainCaption(const std::string& text) override { mainCaption = text; }
  void ShowMainWindow() override { shown = true; }
  void CloseMainWindow() override { closed = true; }
  int ScreenWidth() const override { return 1024; }
  int ScreenHeight() const override { return 768; }
  void SetLanguageTimer(bool running) override { timerRunning = running; }
  [[noreturn]] void EndProcess(int status) override { throw ProcessEnded(status); }

  HeadlessSurface surface;
  std::function<void()> onPump;
  std::string mainCaption;
  int pumps = 0;
  int slept = 0;
  bool shown = false;
  bool closed = false;
  bool timerRunning = false;
};

// One program run: units in, trace lines out. Boxes are answered from
// `answers` (comma list as in TAMRIX_ANSWERS; empty = every box its default).
class ProgramRun {
 public:
  explicit ProgramRun(const std::string& answers = "")
      : trace([this](const std::string& line) { lines.push_back(line); }),
        scripted(answers),
        interpreter(desktop, trace, scripted) {
    RegisterCoreCommandFamilies(interpreter.Commands());
  }

  // Runs the units (unit 0 first) as the first activation does; returns
  // the exit status if the process ended, else -1.
  int Run(const std::vector<std::string>& units) {
    LaunchInfo launch;
    for (std::size_t i = 0; i < units.size() && i < launch.codes.size(); ++i) launch.codes[i] = units[i];
    launch.programName = "TEST.ZRC";
    launch.programPath = "/tmp/";
    interpreter.SetLaunch(launch);
    try {
      interpreter.RunFirstActivation();
    } catch (const ProcessEnded& ended) {
      return ended.status;
    }
    return -1;
  }
  int Run(const std::string& unit0) { return Run(std::vector<std::string>{unit0}); }

  // The texts of all "write" lines, in order.
  std::vector<std::string> Written() const {
    std::vector<std::string> out;
    for (const auto& line : lines) {
      if (line.rfind("write\t", 0) == 0) out.push_back(line.substr(line.rfind('\t') + 1));
    }
    return out;
  }
  // The "box" lines.
  std::vector<std::string> Boxes() const {
    std::vector<std::string> out;
    for (const auto& line : lines) {
      if (line.rfind("box\t", 0) == 0) out.push_back(line);
    }
    return out;
  }

  std::vector<std::string> lines;
  HeadlessDesktop desktop;
  Trace trace;
  ScriptedAnswers scripted;
  Interpreter interpreter;
};

// Source lines joined by CR LF.
inline std::string Lines(std::initializer_list<const char*> lines) {
  std::string out;
  bool first = true;
  for (const char* line : lines) {
    if (!first) out += "\r\n";
    out += line;
    first = false;
  }
  return out;
}

}  // namespace tamrix::testing
