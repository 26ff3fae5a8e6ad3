// Source preparation: the units are joined into the Program Text, one
// statement per CR LF line behind a 19-character tag:
//   "&#" statement number (5 digits) "§#" source line (5) "$#" unit (2) " "
// so that a statement always starts at the 20th character.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tamrix {

inline constexpr std::size_t kStatementColumn = 19;  // 0-based start of a statement
inline constexpr char kSourceTagMark = '\xA7';       // the "§" of "§#"

std::string NumberUnit(std::string_view text, int unit);
std::string NormaliseStatements(std::string_view text);
std::string TagStatements(std::string_view text);

// Joins, numbers, normalises and tags the units; unit 0 is followed by the
// implicit "EndProgram".
std::string PrepareSource(const std::array<std::string, 7>& codes);

}  // namespace tamrix
