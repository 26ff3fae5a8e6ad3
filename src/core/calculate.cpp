#include "core/calculate.h"

#include <cmath>
#include <cstdint>

#include "core/fault.h"
#include "core/numbers.h"
#include "core/stack_guard.h"
#include "core/text.h"

namespace tamrix {
namespace {

// The formula reader, over an algebra that says what a number is and what
// the operators make of two: plain floats for Calculate, the steps of a
// compiled formula for CompileFormula. The reader's course depends only on
// the characters and on the error met so far, so both algebras walk a text
// the same way.
//
// Level bits: 2 inside a sum's right side, 4 inside a product's, 8 inside a
// power's; bit 1 marks a decimal point in the number being read.
template <typename Algebra>
class Reader {
 public:
  using Number = typename Algebra::Number;

  Reader(std::string_view text, Algebra& algebra) : text_(text), algebra_(algebra) {}

  Number Frame(int level, Number accumulator) {
    while (pos_ < text_.size() && error_ == 0) {
      const char c = text_[pos_++];
      if (c == ' ') continue;
      if (IsDigit(c)) {
        algebra_.Append(pos_ - 1, c);
        continue;
      }
      switch (c) {
        case '.':
          if ((level & 1) != 0) {
            error_ = 2;
          } else {
            level |= 1;
            algebra_.Append(pos_ - 1, c);
          }
          break;
        case '+':
        case '-':
          if ((level & 30) != 0) return Stop(accumulator);
          TakeBuffer(accumulator);
          accumulator = algebra_.Apply(c, accumulator, Frame(2, algebra_.Zero()), error_);
          break;
        case '*':
        case '/':
        case '%':
        case '&':
        case '@':
          if ((level & 28) != 0) return Stop(accumulator);
          TakeBuffer(accumulator);
          accumulator = algebra_.Apply(c, accumulator, Frame(4, algebra_.Zero()), error_);
          break;
        case '^':
          if ((level & 24) != 0) return Stop(accumulator);
          TakeBuffer(accumulator);
          accumulator = algebra_.Apply(c, accumulator, Frame(8, algebra_.Zero()), error_);
          break;
        case '(':
          CheckStackSpace();
          accumulator = Frame(0, algebra_.Zero());
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
  Number Stop(Number accumulator) {
    if (pos_ <= text_.size()) --pos_;
    TakeBuffer(accumulator);
    return accumulator;
  }

  // A number read replaces the accumulator, whatever it held.
  void TakeBuffer(Number& accumulator) {
    if (algebra_.HasBuffer()) accumulator = algebra_.Take();
  }

  std::string_view text_;
  Algebra& algebra_;
  std::size_t pos_ = 0;
  int error_ = 0;
};

// Whole-number operators work on 32-bit values; an overflow throws.
double ApplyOperator(char op, double left, double right, int& error) {
  if (error != 0) return left;
  switch (op) {
    case '+': return left + right;
    case '-': return left - right;
    case '*': return left * right;
    case '^': return std::pow(left, right);
    case '/':
      if (right == 0) {
        error = 11;
        return 0;
      }
      return left / right;
    case '%': {
      const std::int32_t divisor = ToInt32(right);
      if (divisor == 0) {
        error = 11;
        return 0;
      }
      return static_cast<double>(ToInt32(left) % divisor);
    }
    case '&': return static_cast<double>(ToInt32(left) & ToInt32(right));
    default: return static_cast<double>(ToInt32(left) | ToInt32(right));
  }
}

class FloatAlgebra {
 public:
  using Number = double;
  static double Zero() { return 0; }
  void Append(std::size_t, char c) { buffer_ += c; }
  bool HasBuffer() const { return !buffer_.empty(); }
  double Take() {
    const double value = Val(buffer_);
    buffer_.clear();
    return value;
  }
  static double Apply(char op, double left, double right, int& error) {
    return ApplyOperator(op, left, right, error);
  }

 private:
  std::string buffer_;
};

// Builds the steps of a formula whose variables stand as one placeholder
// digit each. A number read from literal characters becomes a constant, a
// placeholder read alone a load; a number that mixes them can't be compiled.
class StepAlgebra {
 public:
  using Number = int;  // the step that leaves the number on the stack

  explicit StepAlgebra(const std::vector<int>& origins) : origins_(origins) {}

  int Zero() { return Push({CompiledFormula::Step::Kind::Constant, 0, 0}); }
  void Append(std::size_t at, char c) {
    buffer_ += c;
    const int origin = origins_[at];
    if (origin >= 0) {
      loads_ += 1;
      variable_ = origin;
    }
  }
  bool HasBuffer() const { return !buffer_.empty(); }
  int Take() {
    int step = 0;
    if (loads_ == 0) {
      step = Push({CompiledFormula::Step::Kind::Constant, Val(buffer_), 0});
    } else {
      if (loads_ != 1 || buffer_.size() != 1) failed_ = true;
      step = Push({CompiledFormula::Step::Kind::Load, 0, variable_});
    }
    buffer_.clear();
    loads_ = 0;
    return step;
  }
  int Apply(char op, int left, int right, int&) {
    return Push({CompiledFormula::Step::Kind::Operator, 0, 0, op, left, right});
  }

  bool Failed() const { return failed_; }
  std::vector<CompiledFormula::Step> TakeSteps() { return std::move(steps_); }

 private:
  int Push(CompiledFormula::Step step) {
    steps_.push_back(step);
    return static_cast<int>(steps_.size()) - 1;
  }

  const std::vector<int>& origins_;
  std::vector<CompiledFormula::Step> steps_;
  std::string buffer_;
  int loads_ = 0;
  int variable_ = 0;
  bool failed_ = false;
};

}  // namespace

CalculateResult Calculate(std::string_view formula) {
  const std::string text = ReplaceAll(formula, ",", ".");
  FloatAlgebra algebra;
  Reader reader(text, algebra);
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

CompiledFormula CompiledFormula::Compile(std::string_view text, const std::vector<int>& origins) {
  CompiledFormula formula;
  const std::string plain = ReplaceAll(text, ",", ".");
  StepAlgebra algebra(origins);
  Reader reader(plain, algebra);
  try {
    formula.result_ = reader.Frame(0, algebra.Zero());
  } catch (const RuntimeFault&) {
    return formula;  // nested too deep: the text reading gives its error
  }
  if (reader.Error() != 0 || algebra.Failed()) return formula;
  formula.steps_ = algebra.TakeSteps();
  formula.compiled_ = true;
  return formula;
}

std::optional<double> CompiledFormula::Run(std::span<const double> values) const {
  if (!compiled_) return std::nullopt;
  results_.resize(steps_.size());
  try {
    for (std::size_t i = 0; i < steps_.size(); ++i) {
      const Step& step = steps_[i];
      switch (step.kind) {
        case Step::Kind::Constant: results_[i] = step.constant; break;
        case Step::Kind::Load: results_[i] = values[static_cast<std::size_t>(step.variable)]; break;
        case Step::Kind::Operator: {
          int error = 0;
          results_[i] = ApplyOperator(step.op, results_[static_cast<std::size_t>(step.left)],
                                      results_[static_cast<std::size_t>(step.right)], error);
          if (error != 0) return std::nullopt;
          break;
        }
      }
    }
  } catch (const RuntimeFault&) {
    return std::nullopt;
  }
  const double value = results_[static_cast<std::size_t>(result_)];
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace tamrix
