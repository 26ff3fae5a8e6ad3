// The data command families, which share one DataState for the run.
#pragma once

#include <memory>
#include <string_view>

#include "core/dispatcher.h"

namespace tamrix {

struct DataState;

using DataHandler = Value (*)(CommandCall&, DataState&);

enum class Guard {
  FailureMessage,  // a fault shows "Error in command <name>: ..." and the command ends
  None,            // a fault ends the program
};

void RegisterDataHandler(Dispatcher& dispatcher, std::string_view name, std::shared_ptr<DataState> state,
                         DataHandler handler, Guard guard = Guard::FailureMessage);

// OpenFile ... CloseFile, Directory, DeleteFile, Copy, MkDir, RmDir, FindFile.
void RegisterFileCommands(Dispatcher& dispatcher, const std::shared_ptr<DataState>& state);
// InsertFile, ExtractFile, SaveString, GetString.
void RegisterStoreCommands(Dispatcher& dispatcher, const std::shared_ptr<DataState>& state);
// OpenDB ... CompactDB.
void RegisterRecordCommands(Dispatcher& dispatcher, const std::shared_ptr<DataState>& state);

}  // namespace tamrix
