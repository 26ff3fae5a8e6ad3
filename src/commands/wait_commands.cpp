// Wait and Timer: the points where the program lets events run, and the
// periods of the Timer_ subroutines.
#include <chrono>

#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

// Sleeps 10 ms and lets events run until the mailbox holds something; the
// mailbox is emptied first and its text left in RetStr.
void WaitForMailbox(Interpreter& in, std::string& mailbox) {
  mailbox.clear();
  while (mailbox.empty()) {
    in.Screen().Sleep(10);
    in.Screen().PumpEvents();
  }
  in.Variables().SetVariable("RetStr", mailbox, false);
}

Value Wait(CommandCall& call) {
  Interpreter& in = call.interpreter;
  const std::string word = Upper(Trim(call.arguments));
  if (word == "EVENTS") {
    in.Screen().PumpEvents();
  } else if (word == "CLICKBUTTON") {
    WaitForMailbox(in, in.Mail().clickedButton);
  } else if (word == "CLICKBOX") {
    WaitForMailbox(in, in.Mail().clickedBox);
  } else {
    CommandArguments args(call, 1);
    const std::int32_t milliseconds = ToInt32(NumberOf(args.Number(0)));
    in.Screen().Sleep(milliseconds > 0 ? milliseconds : 0);
    in.Screen().PumpEvents();
  }
  return std::string();
}

double SecondsSinceMidnight() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const auto midnight = floor<days>(now);
  return duration<double>(now - midnight).count();
}

// "Timer Clock.ACTIVATE, 50" sets the period of Sub Timer_Clock(...) to 50
// ticks; ".OFF" stops it. As a function it gives the seconds since midnight.
Value Timer(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 3);
  const std::string target = args.Text(0);
  const auto dot = target.find('.');
  if (dot != std::string::npos) {
    const std::string name = Upper(target.substr(0, dot));
    const std::string action = Upper(target.substr(dot + 1));
    std::int16_t period = 0;
    if (action == "ACTIVATE") period = ToInt16(NumberOf(args.Number(1)));
    Procedures& procs = in.Procs();
    for (std::size_t i = 0; i < procs.TimerNames().size(); ++i) {
      const std::string& timer = procs.TimerNames()[i];
      const auto underscore = timer.find('_');
      const auto bracket = timer.find('(');
      const std::string timerName = Upper(timer.substr(underscore + 1, bracket - underscore - 1));
      if (timerName == name && (action == "ACTIVATE" || action == "OFF")) procs.TimerPeriods()[i] = period;
    }
  }
  return SecondsSinceMidnight();
}

}  // namespace

void RegisterWaitCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Wait", GuardForm::Command, Wait);
  dispatcher.Register("Timer", GuardForm::Command, Timer);
}

}  // namespace tamrix
