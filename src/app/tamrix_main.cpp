// tamrix: the run-time stub. A copy of it with a program appended runs that
// program; the stub alone shows its about window.
#include <QApplication>
#include <clocale>
#include <string>

#include "image/program_image.h"
#include "windows/automation_hooks.h"
#include "windows/program_session.h"
#include "windows/startup.h"

int main(int argc, char* argv[]) {
  using namespace tamrix;

  // Taken before Qt removes the options it knows from the arguments.
  const std::string commandLine = CommandLineTail(argc, argv);

  QApplication application(argc, argv);
  // Qt takes the C library's locale from the environment; the core reads
  // and writes numbers by its own regional settings and needs the C
  // library's number forms to stay those of the "C" locale.
  std::setlocale(LC_NUMERIC, "C");
  // The process ends when the main window closes, never by itself.
  QApplication::setQuitOnLastWindowClosed(false);

  const AutomationHooks hooks = ReadAutomationHooks();
  const auto trace = OpenTrace(hooks);
  ScriptedAnswers answers = MakeAnswers(hooks);
  ProgramSession session(*trace, answers, hooks);

  session.Guarded([&] {
    const OwnFile own = LocateOwnFile();
    if (!own.accepted) {
      // The run-time refuses to start; nothing is left to run after the box.
      session.Core().StopBox(std::string(kInvalidExtensionMessage));
      session.Core().EndProcess(1);
    }
    const ProgramImage image = ReadProgramImage(ReadWholeFile(own.path));
    if (!image.hasProgram) session.RunAboutWindow();
    session.Start(MakeLaunch(image, own, commandLine));
  });
  return QApplication::exec();
}
