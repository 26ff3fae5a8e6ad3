#include "commands/format/decimal_digits.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tamrix {
namespace {

constexpr int kSignificantDigits = 15;

}  // namespace

DecimalDigits::DecimalDigits(double value) {
  if (value == 0 || !std::isfinite(value)) return;
  char buffer[40];
  // "d.dddddddddddddde+XX"
  std::snprintf(buffer, sizeof buffer, "%.*e", kSignificantDigits - 1, std::fabs(value));
  const std::string text = buffer;
  const auto e = text.find('e');
  digits_ = text.substr(0, 1) + text.substr(2, e - 2);
  wholeLength_ = std::atoi(text.c_str() + e + 1) + 1;
  while (!digits_.empty() && digits_.back() == '0') digits_.pop_back();
}

void DecimalDigits::Shift(int places) {
  if (!IsZero()) wholeLength_ += places;
}

void DecimalDigits::Round(int decimals) {
  const int keep = wholeLength_ + decimals;
  if (IsZero() || keep >= static_cast<int>(digits_.size())) return;
  if (keep < 0) {
    digits_.clear();
    wholeLength_ = 0;
    return;
  }
  const bool up = digits_[static_cast<std::size_t>(keep)] >= '5';
  digits_.resize(static_cast<std::size_t>(keep));
  if (up) {
    // Carry from the last kept digit; past the first one the number grows a
    // digit in front.
    std::size_t i = digits_.size();
    while (i > 0 && digits_[i - 1] == '9') digits_[--i] = '0';
    if (i == 0) {
      digits_.insert(digits_.begin(), '1');
      ++wholeLength_;
    } else {
      ++digits_[i - 1];
    }
  }
  while (!digits_.empty() && digits_.back() == '0') digits_.pop_back();
}

std::string DecimalDigits::Whole() const {
  std::string out;
  if (IsZero()) return out;
  for (int i = 0; i < wholeLength_; ++i) {
    out += i < static_cast<int>(digits_.size()) ? digits_[static_cast<std::size_t>(i)] : '0';
  }
  return out;
}

std::string DecimalDigits::Fraction(int count) const {
  std::string out;
  for (int i = wholeLength_; i < wholeLength_ + count; ++i) {
    out += i >= 0 && i < static_cast<int>(digits_.size()) ? digits_[static_cast<std::size_t>(i)] : '0';
  }
  return out;
}

}  // namespace tamrix
