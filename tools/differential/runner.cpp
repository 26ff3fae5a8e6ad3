// Prints what each input gives, for comparing two builds of the core:
// the trace of each program file, or with --expr the value, the condition
// result and the formula result of each expression file, evaluated three
// times in one interpreter (kept readings answer from the second time on).
#include <fstream>
#include <iostream>
#include <sstream>

#include "core/calculate.h"
#include "core/conditions.h"
#include "core/evaluator.h"
#include "fuzz_limits.h"

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const bool expr = std::string(argv[1]) == "--expr";
  for (int i = expr ? 2 : 1; i < argc; ++i) {
    std::ifstream f(argv[i], std::ios::binary);
    std::stringstream ss;
    ss << f.rdbuf();
    const std::string text = ss.str();
    std::cout << "== " << argv[i] << "\n";
    tamrix::fuzzing::LimitedRun run;
    if (!expr) {
      int status = -2;
      run.Guarded([&] { status = run.Run(text); });
      for (auto& line : run.lines) std::cout << line << "\n";
      std::cout << "status " << status << "\n";
      continue;
    }
    run.Run(tamrix::testing::Lines({"Variable s String, n Integer, d Decimal, a(3) Integer, t String", "s = \"ab\"",
                                    "n = 7", "d = 1.5", "t = \"12\"", "Function F(x Integer) Integer", "Return x",
                                    "EndFunction"}));
    tamrix::Interpreter& in = run.interpreter;
    for (int pass = 0; pass < 3; ++pass) {
      std::string out = "?";
      run.Guarded([&] {
        bool flag = false;
        auto v = tamrix::Evaluate(in, text, flag);
        out = std::to_string(v.index()) + ":" + tamrix::TextOf(v) + (flag ? " numeric" : "");
      });
      std::cout << "eval " << out << "\n";
      out = "?";
      run.Guarded([&] {
        bool flag = false;
        tamrix::ConditionArrays arrays;
        out = tamrix::EvaluateCondition(in, text, arrays, flag);
      });
      std::cout << "cond " << out << "\n";
    }
    auto c = tamrix::Calculate(text);
    std::cout << "calc " << c.text << " " << c.error << "\n";
    for (auto& line : run.lines) std::cout << line << "\n";
  }
}
