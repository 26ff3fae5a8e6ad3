#include "core/calculate.h"

#include <cmath>
#include <cstdint>

#include "core/fault.h"
#include "core/numbers.h"
#include "core/stack_guard.h"
#include "core/text.h"

namespace tamrix {
namespace {

// Level bits: 2 inside a sum's right side, 4 inside a product's, 8 inside a
// power's; bit 1 marks a decimal point in the number being read.
class Reader {
 public:
  explicit Reader(std::string text) : text_(std::move(text)) {}

  double Frame(int level, double accumulator) {
    while (pos_ < text_.size() && error_ == 0) {
      const char c = text_[pos_++];
      if (c == ' ') continue;
      if (IsDigit(c)) {
        buffer_ += c;
        continue;
      }
      switch (c) {
        case '.':
          if ((level & 1) != 0) {
            error_ = 2;
          } else {
            level |= 1;
            buffer_ += c;
          }
          break;
        case '+':
        case '-':
          if ((level & 30) != 0) return Stop(accumulator);
          TakeBuffer(accumulator);
          accumulator = c == '+' ? accumulator + Frame(2, 0) : accumulator - Frame(2, 0);
          break;
        case '*':
        case '/':
        case '%':
        case '&':
        case '@':
          if ((level & 28) != 0) return Stop(accumulator);
          TakeBuffer(accumulator);
          accumulator = Apply(c, accumulator, Frame(4, 0));
          break;
        case '^':
          if ((level & 24) != 0) return Stop(accumulator);
          TakeBuffer(accumulator);
          accumulator = std::pow(accumulator, Frame(8, 0));
          break;
        case '(':
          CheckStackSpace();
          accumulator = Frame(0, 0);
          break;
        case ')':
          TakeBuffer(accumulator);
          return accumulator;  // consumed: the caller goes on behind it
        default:
          error_ = 2;
          return Stop(accumulator);
      }
    }
    TakeBuffer(accumulator);
    return accumulator;
  }

  int Error() const { return error_; }

 private:
  // The frame stops at an operator it may not take: the caller sees it again.
  double Stop(double accumulator) {
    if (pos_ <= text_.size()) --pos_;
    TakeBuffer(accumulator);
    return accumulator;
  }

  void TakeBuffer(double& accumulator) {
    if (buffer_.empty()) return;
    accumulator = Val(buffer_);
    buffer_.clear();
  }

  double Apply(char op, double left, double right) {
    if (error_ != 0) return left;
    switch (op) {
      case '*': return left * right;
      case '/':
        if (right == 0) {
          error_ = 11;
          return 0;
        }
        return left / right;
      case '%': {
        const std::int32_t divisor = ToInt32(right);
        if (divisor == 0) {
          error_ = 11;
          return 0;
        }
        return static_cast<double>(ToInt32(left) % divisor);
      }
      case '&': return static_cast<double>(ToInt32(left) & ToInt32(right));
      default: return static_cast<double>(ToInt32(left) | ToInt32(right));
    }
  }

  std::string text_;
  std::size_t pos_ = 0;
  std::string buffer_;
  int error_ = 0;
};

}  // namespace

CalculateResult Calculate(std::string_view formula) {
  Reader reader(ReplaceAll(formula, ",", "."));
  double value = 0;
  try {
    value = reader.Frame(0, 0);
  } catch (const RuntimeFault&) {
    return {"", 6};  // an overflow in a whole-number operator
  }
  if (reader.Error() != 0) return {"", reader.Error()};
  if (!std::isfinite(value)) return {"", 6};
  return {NumberText(value), 0};
}

}  // namespace tamrix
