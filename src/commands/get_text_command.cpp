// GetText: the modal dialog EntraTxt asks the user for a text.
#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "core/interpreter.h"

namespace tamrix {
namespace {

// The dialog keeps its answer in the variable that held the prompt, so a
// dialog closed without its buttons gives the prompt back.
Value GetText(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 2);
  const std::string prompt = args.Text(0);
  const std::string text = args.Text(1);
  const std::string& program = in.Launch().programName;
  const std::string title = program.size() > 4 ? program.substr(0, program.size() - 4) : std::string();

  TextAnswer answer;
  if (in.Answers().Active()) {
    const auto scripted = in.Answers().NextText(text);
    answer.button = scripted ? TextAnswer::Button::Ok : TextAnswer::Button::Cancel;
    answer.text = scripted.value_or(std::string());
  } else {
    answer = in.Screen().AskText(title, prompt, text);
  }
  const bool given = answer.button == TextAnswer::Button::Ok;
  in.Tracer().Write({"input", "text", title, prompt, given ? answer.text : "Cancel"});
  switch (answer.button) {
    case TextAnswer::Button::Ok: return Quoted(answer.text);
    case TextAnswer::Button::Cancel: return Quoted("CANCELED");
    case TextAnswer::Button::None: break;
  }
  return Quoted(prompt);
}

}  // namespace

void RegisterGetTextCommand(Dispatcher& dispatcher) { dispatcher.Register("GetText", GuardForm::Command, GetText); }

}  // namespace tamrix
