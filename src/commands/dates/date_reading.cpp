#include "commands/dates/date_reading.h"

#include <array>
#include <string>
#include <vector>

#include "core/fault.h"
#include "core/numbers.h"
#include "core/regional.h"
#include "core/text.h"

namespace tamrix {

using namespace std::chrono;

namespace {

constexpr std::array<std::string_view, 12> kEnglishMonths{
    "JANUARY", "FEBRUARY", "MARCH", "APRIL", "MAY", "JUNE",
    "JULY", "AUGUST", "SEPTEMBER", "OCTOBER", "NOVEMBER", "DECEMBER"};
constexpr std::array<std::string_view, 7> kEnglishDays{"SUNDAY", "MONDAY", "TUESDAY", "WEDNESDAY",
                                                       "THURSDAY", "FRIDAY", "SATURDAY"};

enum class Kind { Number, Word, TimeSeparator, DateSeparator };

struct Item {
  Kind kind;
  std::string text;  // the digits, or the word in upper case
};

bool IsWordCharacter(char c) {
  const auto code = static_cast<unsigned char>(c);
  return IsLetter(c) || (code >= 0xC0 && code != 0xD7 && code != 0xF7);
}

std::optional<std::vector<Item>> Lex(std::string_view text, const Regional& regional) {
  std::vector<Item> items;
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i];
    std::size_t j = i + 1;
    if (IsDigit(c)) {
      while (j < text.size() && IsDigit(text[j])) ++j;
      items.push_back({Kind::Number, std::string(text.substr(i, j - i))});
    } else if (IsWordCharacter(c)) {
      while (j < text.size() && IsWordCharacter(text[j])) ++j;
      items.push_back({Kind::Word, Upper(text.substr(i, j - i))});
    } else if ((c == ':' || c == regional.timeSeparator) && c != regional.dateSeparator) {
      items.push_back({Kind::TimeSeparator, {}});
    } else if (c == '/' || c == '-' || c == '.' || c == ',' || c == regional.dateSeparator) {
      items.push_back({Kind::DateSeparator, {}});
    } else if (c != ' ' && c != '\t') {
      return std::nullopt;
    }
    i = j;
  }
  return items;
}

// A number of the text; more digits than any date part has is no number.
std::optional<long> NumberOf(const Item& item) {
  if (item.kind != Kind::Number || item.text.size() > 9) return std::nullopt;
  return std::stol(item.text);
}

enum class Marker { None, Am, Pm };

Marker MarkerOf(const Item& item, const Regional& regional) {
  if (item.kind != Kind::Word) return Marker::None;
  if (item.text == "AM" || item.text == "A" || item.text == Upper(regional.amSign)) return Marker::Am;
  if (item.text == "PM" || item.text == "P" || item.text == Upper(regional.pmSign)) return Marker::Pm;
  return Marker::None;
}

// Where the time begins: the first number followed by a time separator or
// by a marker; the item count when there is no time.
std::size_t TimeStart(const std::vector<Item>& items, const Regional& regional) {
  for (std::size_t k = 0; k + 1 < items.size(); ++k) {
    if (items[k].kind != Kind::Number) continue;
    if (items[k + 1].kind == Kind::TimeSeparator || MarkerOf(items[k + 1], regional) != Marker::None) return k;
  }
  return items.size();
}

std::optional<seconds> ReadTime(const std::vector<Item>& items, std::size_t k, const Regional& regional) {
  std::array<long, 3> parts{0, 0, 0};
  std::size_t count = 0;
  while (k < items.size() && count < parts.size()) {
    const auto number = NumberOf(items[k]);
    if (!number) return std::nullopt;
    parts[count++] = *number;
    ++k;
    if (k < items.size() && items[k].kind == Kind::TimeSeparator && count < parts.size()) {
      ++k;
      if (k == items.size()) return std::nullopt;
    } else {
      break;
    }
  }
  Marker marker = Marker::None;
  if (k < items.size() && items[k].kind == Kind::Word) {
    marker = MarkerOf(items[k++], regional);
    if (marker == Marker::None) return std::nullopt;
  }
  if (k != items.size()) return std::nullopt;
  long hour = parts[0];
  if (marker != Marker::None) {
    if (hour > 12) return std::nullopt;
    if (hour == 12) hour = 0;
    if (marker == Marker::Pm) hour += 12;
  }
  if (hour > 23 || parts[1] > 59 || parts[2] > 59) return std::nullopt;
  return hours{hour} + minutes{parts[1]} + seconds{parts[2]};
}

bool NameIn(const std::string& word, const auto& names) {
  for (const auto& name : names) {
    if (word == Upper(name)) return true;
  }
  return false;
}

// The month (1-12) that a word names, 0 for a day name, nullopt otherwise.
std::optional<unsigned> MonthOfWord(const std::string& word, const Regional& regional) {
  for (unsigned m = 0; m < 12; ++m) {
    if (word == Upper(regional.monthNames[m]) || word == Upper(regional.shortMonthNames[m]) ||
        word == kEnglishMonths[m] || word == kEnglishMonths[m].substr(0, 3)) {
      return m + 1;
    }
  }
  if (NameIn(word, regional.dayNames) || NameIn(word, regional.shortDayNames)) return 0U;
  for (const auto day : kEnglishDays) {
    if (word == day || word == day.substr(0, 3)) return 0U;
  }
  return std::nullopt;
}

int FullYear(const Item& item, long value) {
  if (item.text.size() > 2) return static_cast<int>(value);
  return static_cast<int>(value < 30 ? 2000 + value : 1900 + value);
}

std::optional<sys_days> ReadDay(const std::vector<Item>& items, std::size_t end, const Regional& regional) {
  std::vector<const Item*> numbers;
  unsigned month = 0;
  for (std::size_t k = 0; k < end; ++k) {
    const Item& item = items[k];
    if (item.kind == Kind::Number) {
      numbers.push_back(&item);
    } else if (item.kind == Kind::Word) {
      const auto named = MonthOfWord(item.text, regional);
      if (!named || (*named != 0 && month != 0)) return std::nullopt;
      if (*named != 0) month = *named;
    } else if (item.kind == Kind::TimeSeparator) {
      return std::nullopt;
    }
  }
  std::vector<long> values;
  for (const Item* number : numbers) {
    const auto value = NumberOf(*number);
    if (!value) return std::nullopt;
    values.push_back(*value);
  }
  const int thisYear = static_cast<int>(CivilDate(Now()).year());
  long d = 0;
  long m = month;
  int y = thisYear;
  const DateOrder order = regional.ShortDateOrder();
  if (month != 0 && values.size() == 2) {
    const bool yearFirst = numbers[0]->text.size() > 2 || values[0] > 31;
    d = values[yearFirst ? 1 : 0];
    y = FullYear(*numbers[yearFirst ? 0 : 1], values[yearFirst ? 0 : 1]);
  } else if (month != 0 && values.size() == 1) {
    const bool isYear = numbers[0]->text.size() > 2 || values[0] > 31;
    d = isYear ? 1 : values[0];
    if (isYear) y = FullYear(*numbers[0], values[0]);
  } else if (month == 0 && values.size() == 3) {
    std::array<std::size_t, 3> at{0, 1, 2};  // day, month, year
    if (numbers[0]->text.size() > 2 || order == DateOrder::YearMonthDay) {
      at = {2, 1, 0};
    } else if (order == DateOrder::MonthDayYear) {
      at = {1, 0, 2};
    }
    d = values[at[0]];
    m = values[at[1]];
    y = FullYear(*numbers[at[2]], values[at[2]]);
  } else if (month == 0 && values.size() == 2) {
    const bool dayFirst = order == DateOrder::DayMonthYear;
    d = values[dayFirst ? 0 : 1];
    m = values[dayFirst ? 1 : 0];
  } else {
    return std::nullopt;
  }
  if (d < 1 || d > 31 || m < 1 || m > 12) return std::nullopt;
  const year_month_day date{year{y}, std::chrono::month{static_cast<unsigned>(m)},
                            std::chrono::day{static_cast<unsigned>(d)}};
  if (!date.ok() || !InDateRange(sys_days{date})) return std::nullopt;
  return sys_days{date};
}

}  // namespace

std::optional<DateTime> ReadDate(std::string_view text) {
  const Regional& regional = Regional::Current();
  const auto items = Lex(text, regional);
  if (!items || items->empty()) return std::nullopt;
  const std::size_t timeStart = TimeStart(*items, regional);
  DateTime value{kZeroDate, seconds{0}};
  if (timeStart < items->size()) {
    const auto time = ReadTime(*items, timeStart, regional);
    if (!time) return std::nullopt;
    value.time = *time;
  }
  if (timeStart > 0) {
    const auto day = ReadDay(*items, timeStart, regional);
    if (!day) return std::nullopt;
    value.day = *day;
  }
  return value;
}

DateTime DateArgument(std::string_view text) {
  if (const auto serial = ParseRegionalNumber(text)) return FromSerial(*serial);
  if (const auto date = ReadDate(text)) return *date;
  Throw(kTypeMismatch);
}

}  // namespace tamrix
