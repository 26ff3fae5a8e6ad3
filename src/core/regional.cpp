#include "core/regional.h"

#include <cstdlib>

#include "core/regional_locale.h"

namespace tamrix {
namespace {

Regional& Settings() {
  static Regional settings = Regional::FromEnvironment();
  return settings;
}

// The locale of one category, as the C library would choose it.
std::string LocaleName(const char* categoryVariable) {
  for (const char* variable : {"LC_ALL", categoryVariable, "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return "C";
}

bool IsPointLocale(const std::string& name) {
  return name == "C" || name == "POSIX" || name.rfind("C.", 0) == 0;
}

void Apply(Regional& settings, LocaleCategory category, const std::string& name) {
  if (!IsPointLocale(name)) ApplyLocaleCategory(settings, category, name);
}

}  // namespace

Regional Regional::FromEnvironment() {
  Regional settings;
  Apply(settings, LocaleCategory::Numeric, LocaleName("LC_NUMERIC"));
  Apply(settings, LocaleCategory::Time, LocaleName("LC_TIME"));
  Apply(settings, LocaleCategory::Monetary, LocaleName("LC_MONETARY"));
  return settings;
}

Regional Regional::ForLocale(const std::string& name) {
  Regional settings;
  for (auto category : {LocaleCategory::Numeric, LocaleCategory::Time, LocaleCategory::Monetary}) {
    Apply(settings, category, name);
  }
  return settings;
}

DateOrder Regional::ShortDateOrder() const {
  // The first unescaped d, m and y letters, outside quoted text.
  std::size_t day = std::string::npos;
  std::size_t month = std::string::npos;
  std::size_t year = std::string::npos;
  bool quoted = false;
  for (std::size_t i = 0; i < shortDate.size(); ++i) {
    const char c = shortDate[i];
    if (c == '"') {
      quoted = !quoted;
    } else if (quoted) {
      continue;
    } else if (c == '\\') {
      ++i;
    } else if ((c == 'd' || c == 'D') && day == std::string::npos) {
      day = i;
    } else if ((c == 'm' || c == 'M') && month == std::string::npos) {
      month = i;
    } else if ((c == 'y' || c == 'Y') && year == std::string::npos) {
      year = i;
    }
  }
  if (year < day && year < month) return DateOrder::YearMonthDay;
  return month < day ? DateOrder::MonthDayYear : DateOrder::DayMonthYear;
}

const Regional& Regional::Current() { return Settings(); }

void Regional::SetCurrent(const Regional& settings) { Settings() = settings; }

}  // namespace tamrix
