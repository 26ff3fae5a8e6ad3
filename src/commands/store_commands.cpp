// The file container (InsertFile, ExtractFile) and the text store beside
// the program (SaveString, GetString).
#include "commands/command_arguments.h"
#include "commands/data_families.h"
#include "core/interpreter.h"
#include "data/data_state.h"
#include "data/file_container.h"
#include "data/paths.h"

namespace tamrix {
namespace {

// The one text of the language that stayed in Portuguese.
constexpr const char* kNotInContainer = "Arquivo n\xE3o encontrado!";

std::string TextStorePath(Interpreter& in) { return in.Launch().programPath + "ZR.File"; }

Value InsertFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 3);
  const std::string name = args.Text(0);
  const std::string source = ResolvePath(args.Text(1), call.interpreter.Launch().programPath);
  InsertIntoContainer(state.files, name, source, args.Text(2));
  return Quoted("");
}

Value ExtractFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 3);
  const std::string name = args.Text(0);
  const std::string destination = args.Text(1);
  const std::string container = ResolvePath(args.Text(2), call.interpreter.Launch().programPath);
  if (!ExtractFromContainer(state.files, name, destination, container)) {
    call.interpreter.StopBox(kNotInContainer);
  }
  return Quoted("");
}

Value SaveString(CommandCall& call, DataState& state) {
  CommandArguments args(call, 2);
  const std::string key = args.Text(0);
  state.textStore.Save(state.files, TextStorePath(call.interpreter), key, args.Text(1));
  return Quoted("");
}

Value GetString(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  return Quoted(state.textStore.Get(state.files, TextStorePath(call.interpreter), args.Text(0)));
}

}  // namespace

void RegisterStoreCommands(Dispatcher& dispatcher, const std::shared_ptr<DataState>& state) {
  RegisterDataHandler(dispatcher, "InsertFile", state, InsertFile);
  RegisterDataHandler(dispatcher, "ExtractFile", state, ExtractFile);
  RegisterDataHandler(dispatcher, "SaveString", state, SaveString);
  RegisterDataHandler(dispatcher, "GetString", state, GetString);
}

}  // namespace tamrix
