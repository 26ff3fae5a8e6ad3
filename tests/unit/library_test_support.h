// Helpers for the command library's tests: regional settings put in place
// for one test, the two locales that locale-dependent tables run under, and
// a run to call single commands on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/regional.h"
#include "core/value.h"
#include "headless_desktop.h"

namespace tamrix::testing {

class ScopedRegional {
 public:
  explicit ScopedRegional(const Regional& settings) : saved_(Regional::Current()) {
    Regional::SetCurrent(settings);
  }
  explicit ScopedRegional(const std::string& locale) : ScopedRegional(Regional::ForLocale(locale)) {}
  ~ScopedRegional() { Regional::SetCurrent(saved_); }
  ScopedRegional(const ScopedRegional&) = delete;
  ScopedRegional& operator=(const ScopedRegional&) = delete;

 private:
  Regional saved_;
};

// A point locale and a comma locale.
inline const std::vector<std::string> kPointAndComma{"C.UTF-8", "pt_BR.UTF-8"};

// Test names may not hold "." or "-".
inline std::string LocaleTestName(const ::testing::TestParamInfo<std::string>& info) {
  return info.param.substr(0, info.param.find('.'));
}

// Names table cases after their `name` field.
struct NamedCase {
  template <typename Case>
  std::string operator()(const ::testing::TestParamInfo<Case>& param) const {
    return param.param.name;
  }
};

// A number written in the point form ("1,234.5") as the current settings
// write it: the decimal and grouping signs change places as they say.
inline std::string Localised(std::string_view pointForm) {
  const Regional& regional = Regional::Current();
  std::string out(pointForm);
  for (char& c : out) {
    if (c == '.') {
      c = regional.decimalSign;
    } else if (c == ',') {
      c = regional.groupingSign;
    }
  }
  return out;
}

class CommandRun : public ProgramRun {
 public:
  // The main window is the current one, as when a run has started.
  explicit CommandRun(const std::string& answers = "") : ProgramRun(answers) {
    interpreter.Windows().Reset(desktop.MainWindow());
  }

  // The result of one command as an expression receives it, quotes and all.
  std::string Call(const std::string& word, std::string arguments) {
    return TextOf(interpreter.Commands().RunCommand(interpreter, word, arguments));
  }
  // The text of the one box shown so far, as the trace escapes it; empty
  // when none was shown.
  std::string BoxText() const {
    const auto boxes = Boxes();
    if (boxes.size() != 1) return boxes.empty() ? "" : "more than one box";
    const auto end = boxes[0].rfind('\t');
    const auto start = boxes[0].rfind('\t', end - 1);
    return boxes[0].substr(start + 1, end - start - 1);
  }
};

}  // namespace tamrix::testing
