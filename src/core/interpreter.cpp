#include "core/interpreter.h"

#include <cstdlib>

#include "core/block_linking.h"
#include "core/executor.h"
#include "core/object_closing.h"
#include "core/preparation.h"
#include "core/stack_guard.h"
#include "core/text.h"
#include "core/vocabulary.h"

namespace tamrix {
namespace {

const char* ButtonsName(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok: return "ok";
    case BoxButtons::OkCancel: return "okcancel";
    case BoxButtons::YesNo: return "yesno";
  }
  return "ok";
}

const char* IconName(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::None: return "none";
    case BoxIcon::Info: return "info";
    case BoxIcon::Question: return "question";
    case BoxIcon::Warning: return "warning";
    case BoxIcon::Critical: return "critical";
  }
  return "none";
}

std::string EnvironmentOr(const char* name, const std::string& fallback) {
  const char* value = std::getenv(name);
  return value != nullptr && *value != '\0' ? std::string(value) : fallback;
}

// Folders that programs read from built-in variables, in their Linux places.
struct SystemFolders {
  std::string systemDir;  // fonts, sounds and the like live under it
  std::string desktop;
  std::string programs;   // where desktop entries of programs go
};

SystemFolders FindSystemFolders() {
  const std::string home = EnvironmentOr("HOME", "/root");
  return {"/usr/share", EnvironmentOr("XDG_DESKTOP_DIR", home + "/Desktop"),
          EnvironmentOr("XDG_DATA_HOME", home + "/.local/share") + "/applications"};
}

}  // namespace

Interpreter::Interpreter(Desktop& desktop, Trace& trace, ScriptedAnswers& answers)
    : desktop_(desktop), trace_(trace), answers_(answers) {
  RecordStackBase();
  variables_.SetReporting([this](const std::string& text) { StopBox(text); }, &state_.errorPosition);
}

void Interpreter::SetLaunch(LaunchInfo launch) { launch_ = std::move(launch); }

BoxAnswer Interpreter::Box(const BoxRequest& request) {
  const BoxAnswer answer = answers_.Active() ? answers_.NextBoxAnswer(request.buttons, request.defaultAnswer)
                                             : desktop_.ShowBox(request);
  trace_.Write({"box", ButtonsName(request.buttons), IconName(request.icon), request.title, request.text,
                AnswerName(answer)});
  return answer;
}

void Interpreter::StopBox(const std::string& text) {
  Box({BoxButtons::Ok, BoxIcon::Critical, "Tamrix", text, BoxAnswer::Ok});
}

bool Interpreter::QueryBox(const std::string& text) {
  if (Box({BoxButtons::OkCancel, BoxIcon::None, "Tamrix", text, BoxAnswer::Ok}) == BoxAnswer::Cancel) {
    state_.stopFlag = true;
    return false;
  }
  return true;
}

void Interpreter::Fatal(const RuntimeFault& fault) {
  Box({BoxButtons::Ok, BoxIcon::Critical, "Tamrix",
       "Run-time error '" + std::to_string(fault.Number()) + "':\r\n\r\n" + fault.Description(), BoxAnswer::Ok});
  EndProcess(1);
}

void Interpreter::EndProcess(int status) {
  trace_.Write({"exit", std::to_string(status)});
  desktop_.EndProcess(status);
  std::_Exit(status);  // a desktop whose EndProcess returned
}

void Interpreter::DeclareVariables(const std::string& list, bool& numericFlag) {
  for (const auto& item : SplitArguments(*this, list, 101, false, numericFlag)) {
    if (item.empty()) break;
    const auto blank = item.find(' ');
    if (blank == std::string::npos) {
      variables_.DeclareScalar(item, "String");
      continue;
    }
    const std::string name = item.substr(0, blank);
    const std::string type = item.substr(blank + 1);
    if (EndsWith(name, ")")) {
      variables_.DeclareArray(name, type);
    } else {
      variables_.DeclareScalar(name, type);
    }
  }
}

void Interpreter::DeclareBuiltInVariables() {
  bool numeric = false;
  DeclareVariables(std::string(BuiltInVariableDeclarations()), numeric);

  const auto set = [this](const char* name, const Value& value) { variables_.SetVariable(name, value, false); };
  set("Blue", 16711680);
  set("Red", 255);
  set("Green", 65280);
  set("White", 16777215);
  set("Yellow", 65535);
  set("LightBlue", 16776960);
  set("DarkBlue", 7208960);
  set("DarkRed", 110);
  set("DarkGreen", 28160);
  set("DarkYellow", 28270);
  const SystemFolders folders = FindSystemFolders();
  set("WindowsDir", folders.systemDir);
  set("Desktop", folders.desktop);
  set("WindowsPrograms", folders.programs);
  // The program's folder: ProgramDir is the fixed 100-character text trimmed
  // and less its last character; ZRDir the folder itself.
  std::string fixedPath = launch_.programPath.substr(0, 100);
  fixedPath = Trim(fixedPath);
  set("ProgramDir", fixedPath.empty() ? std::string() : fixedPath.substr(0, fixedPath.size() - 1));
  std::string folder = launch_.programPath;
  if (folder.size() > 1 && EndsWith(folder, "/")) folder.pop_back();
  set("ZRDir", folder);
  set("LinSize", 14.0);
  set("ColSize", 8.0);
  set("DefaultBackcolor", static_cast<std::int32_t>(0x8000000F));
  set("CommandLine", launch_.commandLine);
}

std::string Interpreter::Prepare() {
  programText_ = LinkWhileBlocks(LinkIfBlocks(PrepareSource(launch_.codes)));
  procedures_.ScanDeclarations(*this, programText_);
  return CheckBlocks(programText_);
}

void Interpreter::RunFirstActivation() {
  if (activated_) return;
  activated_ = true;
  try {
    variables_.Reset();
    procedures_.Reset();
    objects_.Reset();
    StartWindowSystem(*this);
    tickCount_ = 0;
    desktop_.SetMainCaption("Tamrix - " + launch_.programName);
    DeclareBuiltInVariables();
    cursor_ = TextCursor();
    geometry_ = Geometry();

    const std::string blockMessage = Prepare();
    if (procedures_.HasTimers()) desktop_.SetLanguageTimer(true);
    if (!blockMessage.empty()) {
      StopBox(blockMessage);
      return;
    }
    variables_.SetVariable("LinSize", geometry_.linSize, false);
    variables_.SetVariable("ColSize", geometry_.colSize, false);
    variables_.SetVariable("ScreenHeight", desktop_.ScreenHeight() / geometry_.linSize, false);
    variables_.SetVariable("ScreenWidth", desktop_.ScreenWidth() / geometry_.colSize, false);
    state_.windowStopFlag = false;
    if (!Contains(programText_, "StartWindowInvisible")) desktop_.ShowMainWindow();
    RunStatements(*this, programText_, 0);
  } catch (const RuntimeFault& fault) {
    Fatal(fault);
  }
}

void Interpreter::OnLanguageTimerTick() {
  if (!procedures_.HasTimers()) return;
  ++tickCount_;
  try {
    const auto& names = procedures_.TimerNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
      const int period = procedures_.TimerPeriods()[i];
      if (period > 0 && tickCount_ % period == 0) ExecuteSub(*this, names[i]);
    }
  } catch (const RuntimeFault& fault) {
    Fatal(fault);
  }
}

void Interpreter::OnMainWindowClosing() {
  state_.programActive = false;
  desktop_.SetLanguageTimer(false);
  StopWindowTimers(*this);
  ShutdownObjects(*this);
  for (const auto& hook : shutdownHooks_) hook();
}

}  // namespace tamrix
