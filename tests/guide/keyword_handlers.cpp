// Prints the keywords that have a handler in the dispatcher of a fresh run
// (the prefix tests, such as the one of Chr, are not counted), one a line,
// in keyword-list order: the guide's test checks that none of them is
// still described as not available.

#include <iostream>

#include "../unit/headless_desktop.h"
#include "core/keywords.h"
#include "core/text.h"

int main() {
  tamrix::testing::ProgramRun run;
  for (const auto& keyword : tamrix::KeywordList()) {
    if (run.interpreter.Commands().HasHandler(tamrix::Upper(keyword))) std::cout << keyword << "\n";
  }
  return 0;
}
