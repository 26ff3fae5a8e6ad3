// The aliased files (OpenFile, SizeFile, ReadFile, WriteFile, CloseFile) and
// the folder commands (Directory, DeleteFile, Copy, MkDir, RmDir, FindFile).
#include <functional>

#include "commands/command_arguments.h"
#include "commands/data_families.h"
#include "core/dispatcher.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/data_state.h"
#include "data/file_operations.h"
#include "data/paths.h"

namespace tamrix {
namespace {

// The row of the alias in argument 0, or null after the box that names the
// command and the alias.
AliasRow* FindAlias(CommandCall& call, DataState& state, CommandArguments& args, const char* command) {
  const std::string alias = args.Text(0);
  AliasRow* row = state.aliases.Find(alias);
  if (row == nullptr) {
    CommandErrorBox(call.interpreter, kCarriageReturn, std::string(command) + " - Alias file not found: " + Upper(alias));
  }
  return row;
}

// A 1-based position of a file as an offset.
std::uint64_t Offset(const Value& position) {
  const std::int32_t at = ToInt32(NumberOf(position));
  if (at < 1) Throw(kInvalidCall);
  return static_cast<std::uint64_t>(at - 1);
}

Value OpenFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 3);
  AliasRow* row = state.aliases.FreeRow();
  if (row == nullptr) return std::string();
  const int number = state.files.FreeNumber();
  row->fileNumber = static_cast<std::int16_t>(number);
  row->alias = Upper(args.Text(0));
  row->mode = Upper(args.Text(2));
  const std::string path = args.Text(1);
  // The row is kept when the open fails; another mode word opens nothing.
  if (row->mode == "BINARY") state.files.Open(number, path, FileMode::Binary);
  if (row->mode == "INPUT") state.files.Open(number, path, FileMode::Input);
  if (row->mode == "APPEND") state.files.Open(number, path, FileMode::Append);
  return std::string();
}

Value SizeFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  const AliasRow* row = FindAlias(call, state, args, "SizeFile");
  if (row == nullptr) return 0;
  return ToInt32(static_cast<double>(state.files.At(row->fileNumber).Size()));
}

Value ReadFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 3);
  const AliasRow* row = FindAlias(call, state, args, "ReadFile");
  if (row == nullptr) return std::string();
  if (row->mode == "BINARY") {
    const std::uint64_t offset = Offset(args.Number(1));
    const std::int32_t length = ToInt32(NumberOf(args.Number(2)));
    if (length < 0) Throw(kInvalidCall);
    return Quoted(state.files.At(row->fileNumber).ReadAt(offset, static_cast<std::size_t>(length)));
  }
  if (row->mode == "INPUT") {
    std::string line;
    return Quoted(state.files.At(row->fileNumber).ReadLine(line) ? line : std::string("EOF"));
  }
  return std::string();
}

Value WriteFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 3);
  const AliasRow* row = FindAlias(call, state, args, "WriteFile");
  if (row == nullptr) return std::string();
  if (row->mode == "BINARY") {
    const std::uint64_t offset = Offset(args.Number(1));
    state.files.At(row->fileNumber).WriteAt(offset, args.Text(2));
  } else if (row->mode == "APPEND") {
    state.files.At(row->fileNumber).AppendLine(args.Text(1));
  }
  return Quoted("");
}

Value CloseFile(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  AliasRow* row = FindAlias(call, state, args, "CloseFile");
  if (row == nullptr) return 0;
  state.files.Close(row->fileNumber);
  *row = AliasRow();
  return 0;
}

// A pattern starts a new listing and gives its first file between quotes;
// no pattern gives the next file without them.
Value Directory(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  const std::string pattern = args.Raw(0).empty() ? std::string() : args.Text(0);
  if (!pattern.empty()) return Quoted(state.listing.Start(pattern).value_or(""));
  return state.listing.Next().value_or("");
}

Value DeleteFile(CommandCall& call, DataState&) {
  CommandArguments args(call, 1);
  const std::string path = ResolvePath(args.Text(0), call.interpreter.Launch().programPath);
  RemoveFile(path);
  return Quoted(path);
}

// Copy, MkDir and RmDir show no box: a failure is their result text.
using ErrorText = std::string (*)(const RuntimeFault&);

std::string CopyErrorText(const RuntimeFault& fault) {
  return "Error " + std::to_string(fault.Number()) + ": " + fault.Description();
}

std::string FolderErrorText(const RuntimeFault& fault) {
  std::string text = fault.Description();
  if (fault.Number() == kPathFileAccessError) text = "Directory already exists or access denied!";
  if (fault.Number() == kPathNotFound) text = "Path not found!";
  return "Erro " + std::to_string(fault.Number()) + ": " + text;
}

CommandHandler ReportingFailure(std::function<void(CommandArguments&)> work, ErrorText errorText) {
  return [work = std::move(work), errorText](CommandCall& call) -> Value {
    try {
      CommandArguments args(call, 2);
      work(args);
      return std::string();
    } catch (const RuntimeFault& fault) {
      return Quoted(errorText(fault));
    }
  };
}

Value FindFile(CommandCall& call, DataState&) {
  CommandArguments args(call, 2);
  return Quoted(FindInTree(args.Text(0), args.Text(1)));
}

}  // namespace

void RegisterFileCommands(Dispatcher& dispatcher, const std::shared_ptr<DataState>& state) {
  RegisterDataHandler(dispatcher, "OpenFile", state, OpenFile);
  RegisterDataHandler(dispatcher, "SizeFile", state, SizeFile);
  RegisterDataHandler(dispatcher, "ReadFile", state, ReadFile);
  RegisterDataHandler(dispatcher, "WriteFile", state, WriteFile);
  RegisterDataHandler(dispatcher, "CloseFile", state, CloseFile);
  RegisterDataHandler(dispatcher, "Directory", state, Directory);
  RegisterDataHandler(dispatcher, "DeleteFile", state, DeleteFile);
  RegisterDataHandler(dispatcher, "FindFile", state, FindFile);
  dispatcher.Register("Copy", GuardForm::None, ReportingFailure([](CommandArguments& args) {
    CopyFile(args.Text(0), args.Text(1));
  }, CopyErrorText));
  dispatcher.Register("MkDir", GuardForm::None, ReportingFailure([](CommandArguments& args) {
    MakeFolder(args.Text(0));
  }, FolderErrorText));
  dispatcher.Register("RmDir", GuardForm::None, ReportingFailure([](CommandArguments& args) {
    RemoveFolder(args.Text(0));
  }, FolderErrorText));
}

}  // namespace tamrix
