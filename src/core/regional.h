// The regional settings that every number-to-text and text-to-number
// conversion of the core goes through. Built from the process locale;
// tests may replace them.
#pragma once

namespace tamrix {

struct Regional {
  char decimalSign = '.';
  char groupingSign = ',';

  // From LC_ALL, LC_NUMERIC or LANG; "C" and "POSIX" give the point settings.
  static Regional FromEnvironment();

  static const Regional& Current();
  static void SetCurrent(const Regional& settings);
};

}  // namespace tamrix
