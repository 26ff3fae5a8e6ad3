#include "core/value.h"

#include <cmath>
#include <limits>

#include "core/fault.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

std::size_t textLimit = kMaxTextBytes;

}  // namespace

void CheckTextSize(std::size_t bytes) {
  if (bytes > textLimit) Throw(kOutOfMemory);
}

void SetTextLimit(std::size_t bytes) { textLimit = bytes; }

std::string TextOf(const Value& v) {
  if (const auto* text = std::get_if<std::string>(&v)) return *text;
  if (const auto* integer = std::get_if<std::int32_t>(&v)) return std::to_string(*integer);
  return NumberText(std::get<double>(v));
}

bool IsPlainWholeNumber(const Value& v) {
  if (std::holds_alternative<std::int32_t>(v)) return true;
  const auto* real = std::get_if<double>(&v);
  if (real == nullptr || std::abs(*real) >= 1e15 || *real != std::trunc(*real)) return false;
  return *real != 0 || !std::signbit(*real);
}

double NumberOf(const Value& v) {
  if (const auto* integer = std::get_if<std::int32_t>(&v)) return *integer;
  if (const auto* real = std::get_if<double>(&v)) return *real;
  const auto& text = std::get<std::string>(v);
  if (text.empty()) return 0;
  const auto parsed = ParseRegionalNumber(text);
  if (!parsed) Throw(kTypeMismatch);
  return *parsed;
}

namespace {

Value Combine(const Value& a, const Value& b, int sign) {
  const auto* ia = std::get_if<std::int32_t>(&a);
  const auto* ib = std::get_if<std::int32_t>(&b);
  if (ia != nullptr && ib != nullptr) {
    const long long sum = static_cast<long long>(*ia) + sign * static_cast<long long>(*ib);
    if (sum >= std::numeric_limits<std::int32_t>::min() &&
        sum <= std::numeric_limits<std::int32_t>::max()) {
      return static_cast<std::int32_t>(sum);
    }
    return static_cast<double>(sum);
  }
  return NumberOf(a) + sign * NumberOf(b);
}

}  // namespace

Value AddValues(const Value& a, const Value& b) {
  if (IsText(a) && IsText(b)) {
    CheckTextSize(std::get<std::string>(a).size() + std::get<std::string>(b).size());
    return std::get<std::string>(a) + std::get<std::string>(b);
  }
  return Combine(a, b, 1);
}

Value SubtractValues(const Value& a, const Value& b) { return Combine(a, b, -1); }

}  // namespace tamrix
