// The statement executor: runs a text of prepared lines, one frame per run.
// Control forms are recognised by marker texts in a fixed order; the rest
// goes to the statement dispatch.
#pragma once

#include <string>

namespace tamrix {

class Interpreter;

// Runs `text` from the statement numbered `firstLine`; with 0, from the
// first line of the text whatever its number.
void RunStatements(Interpreter& interpreter, std::string text, int firstLine);

}  // namespace tamrix
