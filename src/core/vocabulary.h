// Words of the language besides the command keywords: the statement words
// that the executor and the declaration scans recognise themselves, the
// three type names and the built-in variables. Editors and the checker read
// them from here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

// The control and declaration words, spelt as programs write them.
const std::vector<std::string>& StatementWords();
// "String", "Integer", "Decimal".
const std::vector<std::string>& TypeNames();
// The declaration list of the built-in variables, "name Type, ...", as the
// first activation declares it.
std::string_view BuiltInVariableDeclarations();
// Their names alone, in declaration order.
std::vector<std::string> BuiltInVariableNames();

}  // namespace tamrix
