// A number as a string of decimal digits, so that Format scales and rounds
// on the digits that the number's text shows (15 significant ones), not on
// the binary fraction behind them.
#pragma once

#include <string>

namespace tamrix {

class DecimalDigits {
 public:
  // The magnitude of `value` with up to 15 significant digits.
  explicit DecimalDigits(double value);

  bool IsZero() const { return digits_.empty(); }
  // Digits in front of the decimal point, counting from the first
  // significant one; may be zero or negative for a value below 1.
  int WholeLength() const { return wholeLength_; }

  // Multiplies by 10 to the power `places`.
  void Shift(int places);
  // Rounds half away from zero to `decimals` places behind the point.
  void Round(int decimals);

  // The digits in front of the point, without leading zeros; empty below 1.
  std::string Whole() const;
  // The first `count` digits behind the point, with zeros where none are.
  std::string Fraction(int count) const;

 private:
  std::string digits_;  // significant digits, no trailing zeros
  int wholeLength_ = 0;
};

}  // namespace tamrix
