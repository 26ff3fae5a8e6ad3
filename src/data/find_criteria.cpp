#include "data/find_criteria.h"

#include <array>
#include <cctype>
#include <charconv>
#include <utility>

#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

bool IsNameChar(char c) {
  const auto u = static_cast<unsigned char>(c);
  return std::isalnum(u) || c == '_' || u >= 0x80;
}

bool LikeMatch(std::string_view text, std::string_view pattern) {
  if (pattern.empty()) return text.empty();
  const char p = pattern.front();
  if (p == '*' || p == '%') {
    for (std::size_t skip = 0; skip <= text.size(); ++skip) {
      if (LikeMatch(text.substr(skip), pattern.substr(1))) return true;
    }
    return false;
  }
  if (text.empty()) return false;
  if (p != '_' && p != '?' && UpperChar(p) != UpperChar(text.front())) return false;
  return LikeMatch(text.substr(1), pattern.substr(1));
}

template <typename T>
bool Compare(const T& a, const T& b, CriteriaOperator op) {
  switch (op) {
    case CriteriaOperator::Equal: return a == b;
    case CriteriaOperator::NotEqual: return a != b;
    case CriteriaOperator::Less: return a < b;
    case CriteriaOperator::LessOrEqual: return a <= b;
    case CriteriaOperator::Greater: return a > b;
    case CriteriaOperator::GreaterOrEqual: return a >= b;
    case CriteriaOperator::Like: return false;
  }
  return false;
}

// Numbers in criteria and in database values use "." whatever the region.
std::optional<double> PointNumber(std::string_view text) {
  const std::string trimmed = Trim(text);
  if (trimmed.empty()) return std::nullopt;
  const char* first = trimmed.data() + (trimmed[0] == '+' ? 1 : 0);
  const char* last = trimmed.data() + trimmed.size();
  double value = 0;
  const auto [end, error] = std::from_chars(first, last, value);
  if (error != std::errc() || end != last) return ParseRegionalNumber(trimmed);
  return value;
}

}  // namespace

std::optional<FindCriteria> ReadFindCriteria(std::string_view text) {
  const std::string trimmed = Trim(text);
  std::size_t i = 0;
  FindCriteria criteria;
  if (!trimmed.empty() && trimmed[0] == '[') {
    const std::size_t close = trimmed.find(']');
    if (close == std::string::npos) return std::nullopt;
    criteria.field = trimmed.substr(1, close - 1);
    i = close + 1;
  } else {
    while (i < trimmed.size() && IsNameChar(trimmed[i])) ++i;
    criteria.field = trimmed.substr(0, i);
  }
  if (criteria.field.empty()) return std::nullopt;
  while (i < trimmed.size() && trimmed[i] == ' ') ++i;
  static constexpr std::array<std::pair<std::string_view, CriteriaOperator>, 7> kOperators = {{
      {"<>", CriteriaOperator::NotEqual},
      {"<=", CriteriaOperator::LessOrEqual},
      {">=", CriteriaOperator::GreaterOrEqual},
      {"=", CriteriaOperator::Equal},
      {"<", CriteriaOperator::Less},
      {">", CriteriaOperator::Greater},
      {"LIKE ", CriteriaOperator::Like},
  }};
  const std::string rest = trimmed.substr(i);
  bool found = false;
  for (const auto& [word, op] : kOperators) {
    if (StartsWith(Upper(rest), word)) {
      criteria.op = op;
      i += word.size();
      found = true;
      break;
    }
  }
  if (!found) return std::nullopt;
  std::string value = Trim(std::string_view(trimmed).substr(i));
  if (value.size() >= 2 && (value.front() == '\'' || value.front() == '#') && value.back() == value.front()) {
    criteria.textual = true;
    value = value.substr(1, value.size() - 2);
    // '' inside a quoted value stands for one quote.
    std::string unescaped;
    for (std::size_t k = 0; k < value.size(); ++k) {
      unescaped += value[k];
      if (value[k] == '\'' && k + 1 < value.size() && value[k + 1] == '\'') ++k;
    }
    value = unescaped;
  } else if (value.empty() || (criteria.op != CriteriaOperator::Like && !PointNumber(value))) {
    return std::nullopt;
  }
  criteria.value = value;
  return criteria;
}

bool MatchesCriteria(const FindCriteria& criteria, std::string_view fieldText, bool isNull) {
  if (isNull) return false;
  if (criteria.op == CriteriaOperator::Like) return LikeMatch(fieldText, criteria.value);
  const auto wanted = PointNumber(criteria.value);
  const auto actual = PointNumber(fieldText);
  if (wanted && actual) return Compare(*actual, *wanted, criteria.op);
  return Compare(Upper(fieldText), Upper(criteria.value), criteria.op);
}

}  // namespace tamrix
