// Kept readings of expressions must give what the plain reading gives:
// compiled formulas against the formula reader on the expanded text,
// evaluations through a kept plan against evaluations with no plan, and
// names found through a kept place against a fresh lookup.
#include <gtest/gtest.h>

#include <random>

#include "core/calculate.h"
#include "core/fault.h"
#include "core/expression_plan.h"
#include "core/numbers.h"
#include "core/procedures.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

// A formula of random pieces with names standing as placeholders, as the
// compiler sees it, and its text with given digits in the names' places.
struct RandomFormula {
  std::vector<std::string> pieces;  // "" stands for a name
  std::size_t names = 0;

  std::string Placeholders(std::vector<int>& origins) const {
    std::string text;
    int name = 0;
    for (const auto& piece : pieces) {
      if (piece.empty()) {
        text += '0';
        origins.push_back(name++);
      } else {
        text += piece;
        origins.insert(origins.end(), piece.size(), -1);
      }
    }
    return text;
  }

  std::string Expanded(const std::vector<std::string>& digits) const {
    std::string text;
    std::size_t name = 0;
    for (const auto& piece : pieces) text += piece.empty() ? digits[name++] : piece;
    return text;
  }
};

TEST(CompiledFormulaTest, GivesWhatTheReaderGivesOnTheExpandedText) {
  const std::vector<std::string> literals = {"+", "-", "*", "/", "%", "&", "@", "^", "(", ")", " ", "  ",
                                             "7", "0", "12", "2.5", ".5", ".", "3,5", "1000000"};
  std::mt19937 random(5);
  std::uniform_int_distribution<int> length(1, 9);
  std::uniform_int_distribution<std::size_t> pick(0, literals.size() + 3);
  const std::vector<std::string> values = {"0", "1", "2", "7", "10", "007", "65536", "2147483647",
                                           "99999999999999"};
  std::uniform_int_distribution<std::size_t> value(0, values.size() - 1);
  int compiled = 0;
  for (int i = 0; i < 30000; ++i) {
    RandomFormula formula;
    for (int k = length(random); k > 0; --k) {
      const std::size_t p = pick(random);
      if (p >= literals.size()) {
        formula.pieces.emplace_back();
        ++formula.names;
      } else {
        formula.pieces.push_back(literals[p]);
      }
    }
    std::vector<int> origins;
    const CompiledFormula steps = CompiledFormula::Compile(formula.Placeholders(origins), origins);
    if (!steps.Compiled()) continue;
    ++compiled;
    for (int round = 0; round < 3; ++round) {
      std::vector<std::string> digits;
      std::vector<double> numbers;
      for (std::size_t n = 0; n < formula.names; ++n) {
        digits.push_back(values[value(random)]);
        numbers.push_back(Val(digits.back()));
      }
      const std::string text = formula.Expanded(digits);
      const CalculateResult expected = Calculate(text);
      const auto result = steps.Run(numbers);
      ASSERT_EQ(result.has_value(), expected.error == 0) << text;
      if (result) {
        ASSERT_EQ(NumberText(*result), expected.text) << text;
      }
    }
  }
  EXPECT_GT(compiled, 3000);  // the test must exercise the steps
}

TEST(CompiledFormulaTest, CompilesOrdinaryFormulasOnly) {
  const auto compiles = [](const std::vector<std::string>& pieces) {
    RandomFormula formula{pieces, 0};
    std::vector<int> origins;
    return CompiledFormula::Compile(formula.Placeholders(origins), origins).Compiled();
  };
  EXPECT_TRUE(compiles({"", " + ", "", " % 7"}));
  EXPECT_TRUE(compiles({"2*(", "", "+1)+3"}));
  EXPECT_TRUE(compiles({"", " - -", ""}));
  // A name's digits that run into other digits are no longer its value.
  EXPECT_FALSE(compiles({"", " 5"}));
  EXPECT_FALSE(compiles({"", "", " + 1"}));
  EXPECT_FALSE(compiles({".", ""}));
  // What the reader rejects is left to it.
  EXPECT_FALSE(compiles({"", " + x"}));
  EXPECT_FALSE(compiles({"1.2.3 + ", ""}));
}

// Variables of every kind with values that take the compiled way and values
// that don't: signs, fractions, exponents, texts with and without digits.
void DeclareMix(Sandbox& box) {
  box.Declare("i Integer, j Integer, neg Integer, d Decimal, half Decimal, big Decimal, t String, u String, "
              "w String, e String, a(5) Integer, k Integer");
  box.Set("i", 7);
  box.Set("j", 0);
  box.Set("neg", -3);
  box.Set("d", 12.0);
  box.Set("half", 0.5);
  box.Set("big", 1e20);
  box.Set("t", std::string("007"));
  box.Set("u", std::string("abc"));
  box.Set("w", std::string("1,5"));
  box.Set("k", 2);
  box.Set("a(2)", 40);
}

const std::vector<std::string> kExpressions = {
    "i + j", "i * d", "d / j", "i % j", "i % 3 + d ^ 2", "neg + i", "i - neg", "half * 4", "big + 1",
    "t + 1", "u + 1", "w * 2", "e + 1", "a(k) + i", "a(2) * 2", "a(9) + 1", "i + 2147483647 & 1",
    "(i + 1) * (d - 2)", "i / 3", "i 5", "i", "t", "u", "a(k)", "nothing", "nothing + 1", "\"quoted\"",
    "42", "3,5", "1.5", "-", "i +", "2*(1+2)+3", "i @ 8", "d ^ 0.5", "i - - 2"};

// The value's kind and text, or the fault the evaluation ended in.
std::string Describe(Sandbox& box, const std::string& expr) {
  try {
    const Value value = box.Eval(expr);
    return std::to_string(value.index()) + ":" + TextOf(value);
  } catch (const RuntimeFault& fault) {
    return "fault " + std::to_string(fault.Number());
  }
}

class KeptPlans : public BothLocales {};

TEST_P(KeptPlans, EvaluateAsAFreshReading) {
  Sandbox fresh;
  Sandbox kept;
  DeclareMix(fresh);
  DeclareMix(kept);
  for (const auto& expr : kExpressions) {
    fresh.interpreter.Procs().Plans().Clear();
    const std::string expected = Describe(fresh, expr);
    // The first evaluation makes the plan, the second compiles it, the
    // third runs the compiled steps.
    for (int pass = 0; pass < 3; ++pass) EXPECT_EQ(Describe(kept, expr), expected) << expr << " pass " << pass;
  }
  // Undeclared names show their box at every evaluation, kept or not.
  EXPECT_EQ(kept.Boxes().size(), 3 * fresh.Boxes().size());
}

TEST_P(KeptPlans, AreReadAgainUnderOtherSigns) {
  // A number with the comma settings, a literal with the point settings.
  Sandbox box;
  const std::string text = "1.5.5";
  const std::string first = Describe(box, text);
  ScopedRegional other{NumberSettings(GetParam() == '.' ? ',' : '.')};
  Sandbox fresh;
  EXPECT_EQ(Describe(box, text), Describe(fresh, text));
  EXPECT_NE(Describe(box, text), first);
}

INSTANTIATE_TEST_SUITE_P(Locales, KeptPlans, ::testing::Values('.', ','));

TEST(NameCacheTest, KeptPlacesFollowDeclarationsAndRemovals) {
  VariableStore store;
  std::vector<NameCache> caches(6);
  const std::vector<std::string> names = {"a", "B", "c(2)", "long_name", "A", "zz"};
  const std::vector<const char*> types = {"String", "Integer", "Decimal"};
  std::mt19937 random(3);
  std::uniform_int_distribution<std::size_t> name(0, names.size() - 1);
  std::uniform_int_distribution<std::size_t> type(0, 2);
  std::uniform_int_distribution<int> action(0, 9);
  for (int i = 0; i < 5000; ++i) {
    const std::size_t n = name(random);
    switch (action(random)) {
      case 0: store.DeclareScalar(names[n], types[type(random)]); break;
      case 1: store.DeclareArray(names[n] + "(3)", types[type(random)]); break;
      case 2: store.RemoveVariable(names[n], false); break;
      default: {
        const int cached = store.VarIndex(names[n], &caches[n]);
        const std::string cachedType(store.LastType());
        const int plain = store.VarIndex(names[n]);
        ASSERT_EQ(cached, plain) << names[n] << " at step " << i;
        if (plain >= 0) {
          ASSERT_EQ(cachedType, std::string(store.LastType())) << names[n];
        }
      }
    }
  }
}

}  // namespace
}  // namespace tamrix::testing
