#include "core/regional.h"

#include <clocale>
#include <cstdlib>
#include <string>

namespace tamrix {
namespace {

Regional& Settings() {
  static Regional settings = Regional::FromEnvironment();
  return settings;
}

std::string LocaleName() {
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return "C";
}

}  // namespace

Regional Regional::FromEnvironment() {
  Regional settings;
  const std::string name = LocaleName();
  if (name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0) return settings;
  // Ask the C library for the locale's numeric conventions, then put the
  // process back to the "C" numeric locale that the rest of the code assumes.
  const std::string previous = std::setlocale(LC_NUMERIC, nullptr);
  if (std::setlocale(LC_NUMERIC, name.c_str()) != nullptr) {
    const std::lconv* conventions = std::localeconv();
    if (conventions->decimal_point != nullptr && conventions->decimal_point[0] != '\0') {
      settings.decimalSign = conventions->decimal_point[0];
    }
    if (conventions->thousands_sep != nullptr && conventions->thousands_sep[0] != '\0' &&
        static_cast<unsigned char>(conventions->thousands_sep[0]) < 0x80) {
      settings.groupingSign = conventions->thousands_sep[0];
    } else {
      settings.groupingSign = settings.decimalSign == ',' ? '.' : ',';
    }
  }
  std::setlocale(LC_NUMERIC, previous.c_str());
  return settings;
}

const Regional& Regional::Current() { return Settings(); }

void Regional::SetCurrent(const Regional& settings) { Settings() = settings; }

}  // namespace tamrix
