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
#include "headless_controls.h"
#include "headless_windows.h"

namespace tamrix::testing {

struct ProcessEnded : std::runtime_error {
  explicit ProcessEnded(int s) : std::runtime_error("process ended"), status(s) {}
  int status;
};

class HeadlessDesktop : public Desktop {
 public:
  BoxAnswer ShowBox(const BoxRequest& request) override { return request.defaultAnswer; }
  void PumpEvents() override {
    ++pumps;
    if (onPump) onPump();
  }
  void Sleep(int milliseconds) override { slept += milliseconds; }
  void SetMainCaption(const std::string& text) override { mainCaption = text; }
  void ShowMainWindow() override {
    shown = true;
    mainWindow.Show();
  }
  void CloseMainWindow() override { closed = true; }
  int ScreenWidth() const override { return 1024; }
  int ScreenHeight() const override { return 768; }
  void SetLanguageTimer(bool running) override { timerRunning = running; }
  ObjectControls& Controls() override { return controls; }
  RunTimeWindow& MainWindow() override { return mainWindow; }
  RunTimeWindow& CreateWindow(WindowClass kind, const std::string& name) override {
    windows.push_back(std::make_unique<HeadlessWindow>(kind, name));
    windows.back()->modalLoop = [this] { timers.FireRunning(); };
    return *windows.back();
  }
  void DestroyWindow(RunTimeWindow& window) override {
    window.Hide();
    destroyed.push_back(&window);
  }
  std::unique_ptr<DesktopTimer> CreateTimer(TimerTick tick) override { return timers.Create(std::move(tick)); }
  PixelPoint CursorPosition() const override { return cursor; }
  void ShowCursor(bool show) override { cursorCount += show ? 1 : -1; }
  TextAnswer AskText(const std::string& title, const std::string& prompt, const std::string& text) override {
    asked.push_back(title + "|" + prompt + "|" + text);
    return textAnswer;
  }
  [[noreturn]] void EndProcess(int status) override { throw ProcessEnded(status); }

  HeadlessWindow mainWindow{WindowClass::Janela, "PARENT"};
  HeadlessSurface& surface = mainWindow.surface;
  std::vector<std::unique_ptr<HeadlessWindow>> windows;  // made by NewWindow SET
  std::vector<RunTimeWindow*> destroyed;
  HeadlessTimers timers;
  PixelPoint cursor;
  int cursorCount = 0;
  std::vector<std::string> asked;  // "title|prompt|text" of each text dialog
  TextAnswer textAnswer;
  HeadlessControls controls;
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
    RegisterCoreCommandFamilies(interpreter);
  }

  // Runs the units (unit 0 first) as the first activation does; returns
  // the exit status if the process ended, else -1.
  int Run(const std::vector<std::string>& units) {
    LaunchInfo launch;
    for (std::size_t i = 0; i < units.size() && i < launch.codes.size(); ++i) launch.codes[i] = units[i];
    launch.programName = "TEST.ZRC";
    launch.programPath = programPath;
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
  std::string programPath = "/tmp/";  // the program's folder, ending in "/"
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
