// The DB block: "DB <name>, <folder>[, <password>]", one line per field,
// "EndDB". It fills the next slot of the database table, declares one
// variable per field, and creates the record file or checks the one there.
#pragma once

#include <cstddef>
#include <string>

namespace tamrix {

class Interpreter;
struct DataState;

// Reads the block whose first line starts at `lineStart` in `text`; gives
// the statement number of its "EndDB" line, 0 when there is none.
int ReadDatabaseBlock(Interpreter& interpreter, DataState& state, const std::string& text,
                      std::size_t lineStart);

}  // namespace tamrix
