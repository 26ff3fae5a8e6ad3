// Field values between the variables "<database>.<field>" and a record: the
// only way in which values travel to and from a record file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tamrix {

class Interpreter;
struct DatabaseSlot;

// A record of blanks with each field's scrambled value. A text longer than
// its field is refused with "<command>: The size of the field ..." and the
// field stays blank; an AutoInc field takes `autoIncValue()`.
std::string RecordFromVariables(Interpreter& interpreter, const DatabaseSlot& slot, std::string_view command,
                                const std::function<std::int32_t()>& autoIncValue);

// Sets every field variable from the record; gives the row: each variable's
// text cut or filled with blanks to its field's width.
std::string VariablesFromRecord(Interpreter& interpreter, const DatabaseSlot& slot, std::string_view record);

// Empties the String fields' variables and zeroes the others.
void BlankVariables(Interpreter& interpreter, const DatabaseSlot& slot);

}  // namespace tamrix
