// One run of the run-time: the main window, the Qt desktop and the
// interpreter, wired together. Every call from the window system into the
// language core passes through Guarded, so that no fault escapes into Qt.
#pragma once

#include <functional>
#include <memory>

#include "core/interpreter.h"
#include "windows/automation_hooks.h"
#include "windows/input_replay.h"
#include "windows/janela.h"
#include "windows/qt_desktop.h"

namespace tamrix {

class ProgramSession {
 public:
  ProgramSession(Trace& trace, ScriptedAnswers& answers, AutomationHooks hooks);
  ProgramSession(const ProgramSession&) = delete;
  ProgramSession& operator=(const ProgramSession&) = delete;

  Interpreter& Core() { return interpreter_; }
  Janela& MainWindow() { return janela_; }

  // Runs `work`; a fault that escapes it shows the fatal box and ends the
  // process with status 1. A std::bad_alloc is error 7 "Out of memory"; any
  // other exception is error 5 "Invalid procedure call or argument", its own
  // text going to the standard error stream.
  void Guarded(const std::function<void()>& work);

  // Hands the program to the main window. The first activation runs as soon
  // as the event loop starts, and the replayed input of TAMRIX_INPUT with
  // it; when it ends and TAMRIX_EXIT is on, the main window is closed as if
  // the user closed it.
  void Start(LaunchInfo launch);

  // The about window of a run-time without a program, as a box of the
  // interpreter (traced and answered like any box); then the process ends
  // with status 0.
  [[noreturn]] void RunAboutWindow();

 private:
  // The main window closes: snapshot, the interpreter's closing, the end.
  [[noreturn]] void Close();

  AutomationHooks hooks_;
  Janela janela_;
  QtDesktop desktop_;
  Interpreter interpreter_;
  std::unique_ptr<InputReplay> replay_;
};

}  // namespace tamrix
