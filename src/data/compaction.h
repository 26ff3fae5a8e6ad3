// Compaction of a record file: the records that are not deleted are copied
// to "Temp.Zrf" in the same folder, which then takes the file's place. The
// existence of "Temp.Zrf" is the only exclusion between compacting
// processes.
#pragma once

#include <string>

namespace tamrix {

class Interpreter;
struct DataState;

// `name` is the database's name as given (".Zrf" is added unless it ends in
// "ZRF"); `slot` its slot, whose number is also the file number that is
// closed first and holds the compacted file afterwards.
void CompactDatabase(Interpreter& interpreter, DataState& state, const std::string& name, int slot);

}  // namespace tamrix
