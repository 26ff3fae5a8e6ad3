#include "bridges/api_command.h"

#include <memory>
#include <string>
#include <vector>

#include "bridges/func_call.h"
#include "commands/command_arguments.h"
#include "core/dispatcher.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

// The sub-command and at most 30 arguments.
constexpr std::size_t kApiParts = 31;

// What stays from one API command to the next.
struct ApiState {
  ApiState(Interpreter& in, std::function<std::uint64_t()> handle)
      : windowHandle(std::move(handle)), call([&in](const std::string& title, const std::string& text) {
          in.Box({BoxButtons::Ok, BoxIcon::Critical, title, text, BoxAnswer::Ok});
        }) {}

  std::function<std::uint64_t()> windowHandle;
  std::string libraryName;
  std::string functionName;
  std::vector<std::string> arguments{std::string()};
  FuncCall call;
};

Value RunApi(CommandCall& call, ApiState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kApiParts);
  const std::string sub = Upper(args.Text(0));
  if (sub == "LIBRARY") state.libraryName = args.Text(1);
  if (sub == "FUNCTIONNAME") state.functionName = args.Text(1);
  if (sub == "EXECUTE") {
    state.arguments.clear();
    for (std::size_t i = 1; i < args.Count() && !Trim(args.Raw(i)).empty(); ++i) {
      std::string value = TextOf(args.Number(i));
      const std::string word = Upper(value);
      if (word == "HWND") value = std::to_string(state.windowHandle());
      // There is no device context to hand out: "HDC" passes a null word.
      if (word == "HDC") value = "0";
      state.arguments.push_back(std::move(value));
    }
    if (state.arguments.empty()) state.arguments.emplace_back();
    state.call.SetLibraryName(state.libraryName);
    state.call.SetFunctionName(state.functionName);
    const std::int32_t result = state.call.CallFunction(state.arguments);
    in.Variables().SetVariable("RetStr", std::to_string(result), false);
  }
  if (sub == "ARGUMENT") {
    const std::int32_t index = ToInt32(NumberOf(args.Number(1)));
    if (index < 0 || static_cast<std::size_t>(index) >= state.arguments.size()) Throw(kSubscriptOutOfRange);
    in.Variables().SetVariable("RetStr", state.arguments[static_cast<std::size_t>(index)], false);
  }
  return std::string();
}

}  // namespace

void RegisterApiCommand(Interpreter& interpreter, std::function<std::uint64_t()> windowHandle) {
  auto state = std::make_shared<ApiState>(interpreter, std::move(windowHandle));
  interpreter.Commands().Register(
      "API", GuardForm::None,
      GuardedHandler("API", kCarriageReturn, [state](CommandCall& call) { return RunApi(call, *state); }));
  // The library is released with the main window.
  interpreter.AddShutdownHook([state] { state->call.Release(); });
}

}  // namespace tamrix
