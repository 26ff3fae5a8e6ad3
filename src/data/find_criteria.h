// The criteria of a recordset search: one field, an operator and a value, as
// in "name = 'Pen'", "price >= 2.5" or "name LIKE 'P*'".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tamrix {

enum class CriteriaOperator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Like };

struct FindCriteria {
  std::string field;
  CriteriaOperator op = CriteriaOperator::Equal;
  std::string value;    // without its quotes or "#" marks
  bool textual = false;  // the value stood between quotes or "#" marks
};

// Empty when the text is not of that form.
std::optional<FindCriteria> ReadFindCriteria(std::string_view text);

// Compares a field's text (`isNull` for a null) with the criteria: numbers
// as numbers when both sides read as numbers, texts without regard to case;
// LIKE takes "*" and "%" for any run of characters, "_" and "?" for one.
bool MatchesCriteria(const FindCriteria& criteria, std::string_view fieldText, bool isNull);

}  // namespace tamrix
