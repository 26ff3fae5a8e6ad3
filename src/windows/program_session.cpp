#include "windows/program_session.h"

#include <QFile>
#include <QTimer>
#include <cstdio>
#include <exception>
#include <new>
#include <utility>

#include "bridges/api_command.h"
#include "bridges/qt_database.h"
#include "commands/command_families.h"
#include "commands/sql_command.h"
#include "core/fault.h"
#include "windows/about_window.h"

namespace tamrix {

ProgramSession::ProgramSession(Trace& trace, ScriptedAnswers& answers, AutomationHooks hooks)
    : hooks_(std::move(hooks)), desktop_(janela_), interpreter_(desktop_, trace, answers) {
  RegisterCoreCommandFamilies(interpreter_);
  RegisterSqlCommand(interpreter_, std::make_shared<QtDatabaseLayer>());
  RegisterApiCommand(interpreter_, [this] { return static_cast<std::uint64_t>(janela_.winId()); });
  janela_.SetClosingHandler([this] { Close(); });
  desktop_.Relay().Attach(interpreter_, [this](const std::function<void()>& work) { Guarded(work); });
  desktop_.SetLanguageTickHandler([this] { Guarded([this] { interpreter_.OnLanguageTimerTick(); }); });
}

void ProgramSession::Guarded(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeFault& fault) {
    interpreter_.Fatal(fault);
  } catch (const std::bad_alloc&) {
    interpreter_.Fatal(RuntimeFault(kOutOfMemory, FaultDescription(kOutOfMemory)));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tamrix: %s\n", error.what());
    interpreter_.Fatal(RuntimeFault(kInvalidCall, FaultDescription(kInvalidCall)));
  }
}

void ProgramSession::Start(LaunchInfo launch) {
  interpreter_.SetLaunch(std::move(launch));
  if (!hooks_.inputPath.empty()) {
    replay_ = std::make_unique<InputReplay>(desktop_, ReadInputFile(hooks_.inputPath));
  }
  QTimer::singleShot(0, &janela_, [this] {
    if (replay_) replay_->Start();
    Guarded([this] { interpreter_.RunFirstActivation(); });
    if (hooks_.exitAfterRun) janela_.CloseAsUser();
  });
}

void ProgramSession::RunAboutWindow() {
  desktop_.SetBoxPresenter([](const BoxRequest&) { return ShowAboutWindow(); });
  interpreter_.Box(AboutBoxRequest());
  interpreter_.EndProcess(0);
}

void ProgramSession::Close() {
  if (!hooks_.snapshotPath.empty()) {
    janela_.SaveSnapshot(QFile::decodeName(hooks_.snapshotPath.c_str()));
  }
  Guarded([this] { interpreter_.OnMainWindowClosing(); });
  interpreter_.EndProcess(0);
}

}  // namespace tamrix
