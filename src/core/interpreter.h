// The program-wide state of one run and the entry points that the window
// layer calls: the first activation of the main window, the language timer
// tick and the closing of the main window.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/automation.h"
#include "core/call_search_cache.h"
#include "core/desktop.h"
#include "core/dispatcher.h"
#include "core/fault.h"
#include "core/object_table.h"
#include "core/procedures.h"
#include "core/value.h"
#include "core/variable_store.h"
#include "core/window_events.h"
#include "core/window_table.h"

namespace tamrix {

// What start-up hands to the main window.
struct LaunchInfo {
  std::array<std::string, 7> codes;  // source text per unit
  std::string programName;           // the stored name and ".ZRC"
  std::string programPath;           // the program's folder, ending in "/"
  std::string commandLine;           // the command-line tail, quotes stripped
};

// Flags and texts that every frame of the executor reads.
struct RunState {
  bool programActive = true;
  bool stopFlag = false;
  bool windowStopFlag = false;
  std::string errorPosition;
  Value returnValue = std::string();
  // Statements left before the run ends by itself; negative for no limit.
  // Only tests and fuzzing set it.
  long statementBudget = -1;
};

// Pixels per language line and column; the language variables LinSize and
// ColSize are written from here, not read back.
struct Geometry {
  double linSize = 14;
  double colSize = 8;
};

// Mailboxes that window events fill and the program reads.
struct Mailboxes {
  std::string clickedButton;
  std::string clickedBox;
  std::string lastEventKey;
  std::string lastEventClick;
  std::string lastEventResize;
  std::string lastEventBox;
  std::string lastEventGif;
  std::string lastKey;
};

// WriteX and WriteY: the cursor of Write in window units, shared by all
// surfaces; each surface keeps its own CurrentX and CurrentY.
struct TextCursor {
  std::int16_t writeX = 0;
  std::int16_t writeY = 0;
};

class Interpreter {
 public:
  Interpreter(Desktop& desktop, Trace& trace, ScriptedAnswers& answers);

  void SetLaunch(LaunchInfo launch);
  const LaunchInfo& Launch() const { return launch_; }

  // The first activation of the main window: tables, built-in variables,
  // preparation, the block check, and the run of the whole Program Text.
  void RunFirstActivation();
  // One tick of the 10 ms language timer.
  void OnLanguageTimerTick();
  // The main window is about to close: the executor stops, timers stop.
  void OnMainWindowClosing();

  // Every message box of the system: traced, answered from the script or
  // shown on screen.
  BoxAnswer Box(const BoxRequest& request);
  // A box with the critical icon and one OK button, titled "Tamrix".
  void StopBox(const std::string& text);
  // An OK/Cancel box without icon; Cancel sets the stop flag. True for OK.
  bool QueryBox(const std::string& text);
  // An unhandled fault: the fatal box, then the process ends with status 1.
  [[noreturn]] void Fatal(const RuntimeFault& fault);
  // Ends the process, tracing its exit status.
  [[noreturn]] void EndProcess(int status);

  Desktop& Screen() { return desktop_; }
  Trace& Tracer() { return trace_; }
  ScriptedAnswers& Answers() { return answers_; }
  VariableStore& Variables() { return variables_; }
  Dispatcher& Commands() { return dispatcher_; }
  Procedures& Procs() { return procedures_; }
  RunState& State() { return state_; }
  TextCursor& Cursor() { return cursor_; }
  Geometry& Coordinates() { return geometry_; }
  Mailboxes& Mail() { return mailboxes_; }
  WindowTable& Windows() { return windows_; }
  InputState& Input() { return input_; }
  ObjectTable& Objects() { return objects_; }
  const std::string& ProgramText() const { return programText_; }
  // Texts known to hold no keyword call; the keyword list never changes.
  CallSearchCache& CommandCallCache() { return commandCallCache_; }

  // Prepares `codes` into the Program Text, links and scans it; returns the
  // block check's message, empty when the program may run. Used by the
  // first activation and by tests.
  std::string Prepare();
  void DeclareBuiltInVariables();
  // Declares the "name Type" list of a Var line.
  void DeclareVariables(const std::string& list, bool& numericFlag);

  // Extension points filled by command families that the core knows only by
  // their statement forms: the record descriptor block "DB" ... "EndDB"
  // (returns the statement number to go on from) and "x = SQL(...)".
  using DatabaseBlockReaderFunction =
      std::function<int(Interpreter&, const std::string& text, std::size_t lineStart, int pc)>;
  using SqlAssignmentFunction = std::function<Value(Interpreter&, const std::string& expr)>;
  DatabaseBlockReaderFunction& DatabaseBlockReader() { return databaseBlockReader_; }
  SqlAssignmentFunction& SqlAssignment() { return sqlAssignment_; }
  // Work to do when the main window closes (stopping timers, closing files).
  void AddShutdownHook(std::function<void()> hook) { shutdownHooks_.push_back(std::move(hook)); }

 private:
  Desktop& desktop_;
  Trace& trace_;
  ScriptedAnswers& answers_;
  LaunchInfo launch_;
  RunState state_;
  TextCursor cursor_;
  Geometry geometry_;
  Mailboxes mailboxes_;
  WindowTable windows_;
  InputState input_;
  ObjectTable objects_;
  VariableStore variables_;
  Dispatcher dispatcher_;
  Procedures procedures_;
  std::string programText_;
  CallSearchCache commandCallCache_;
  std::int32_t tickCount_ = 0;
  bool activated_ = false;
  DatabaseBlockReaderFunction databaseBlockReader_;
  SqlAssignmentFunction sqlAssignment_;
  std::vector<std::function<void()>> shutdownHooks_;
};

}  // namespace tamrix
