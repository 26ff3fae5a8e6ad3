// Arbitrary expressions through Evaluate, EvaluateText, Calculate and
// conditions, with a few variables of each type declared.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/calculate.h"
#include "core/conditions.h"
#include "core/evaluator.h"
#include "fuzz_limits.h"
#include "headless_desktop.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string expr(reinterpret_cast<const char*>(data), size);
  tamrix::fuzzing::LimitedRun run;
  run.Run(tamrix::testing::Lines({"Variable s String, n Integer, d Decimal, a(3) Integer", "s = \"ab\"",
                                  "n = 7", "d = 1.5", "Function F(x Integer) Integer", "Return x",
                                  "EndFunction"}));
  tamrix::Interpreter& in = run.interpreter;
  run.Guarded([&] {
    bool flag = false;
    tamrix::Evaluate(in, expr, flag);
  });
  run.Guarded([&] {
    bool flag = false;
    tamrix::EvaluateText(in, expr, flag);
  });
  tamrix::Calculate(expr);
  run.Guarded([&] {
    bool flag = false;
    tamrix::ConditionArrays arrays;
    tamrix::EvaluateCondition(in, expr, arrays, flag);
  });
  return 0;
}
