#include "commands/format/date_format.h"

#include "core/regional.h"
#include "core/text.h"

namespace tamrix {

using namespace std::chrono;

namespace {

std::string Padded(long value, std::size_t width) { return ZeroPadded(value, static_cast<int>(width)); }

// Sunday is the first day of the week, and the week of 1 January the first.
long WeekOfYear(const year_month_day& date) {
  const sys_days first{date.year() / January / 1};
  const long dayOfYear = (sys_days{date} - first).count();
  return (dayOfYear + weekday{first}.c_encoding()) / 7 + 1;
}

bool HasMarker(const FormatSection& section) {
  for (const auto& token : section) {
    if (token.kind == TokenKind::AmPm) return true;
  }
  return false;
}

std::string MarkerText(const std::string& form, bool afternoon) {
  if (EqualsNoCase(form, "AMPM")) return afternoon ? Regional::Current().pmSign : Regional::Current().amSign;
  const bool lower = form[0] == 'a';
  if (form.size() == 3) return afternoon ? (lower ? "p" : "P") : (lower ? "a" : "A");
  return afternoon ? (lower ? "pm" : "PM") : (lower ? "am" : "AM");
}

// "m" and "mm" right behind "h" or "hh" (other tokens between them aside)
// are minutes.
bool MeansMinutes(const FormatSection& section, std::size_t at) {
  for (std::size_t i = at; i-- > 0;) {
    if (section[i].kind == TokenKind::DatePart) return section[i].code[0] == 'h';
  }
  return false;
}

class DateWriter {
 public:
  DateWriter(const DateTime& value, const FormatSection& section)
      : value_(value), date_(CivilDate(value)), clock_(ClockTime(value)), twelveHours_(HasMarker(section)) {}

  std::string Part(const FormatSection& section, std::size_t at) const {
    const std::string& code = section[at].code;
    const Regional& regional = Regional::Current();
    const long month = static_cast<long>(static_cast<unsigned>(date_.month()));
    const std::size_t weekdayIndex = weekday{value_.day}.c_encoding();
    if ((code == "m" || code == "mm") && MeansMinutes(section, at)) return Padded(clock_.minutes().count(), code.size());
    if (code == "d" || code == "dd") return Padded(static_cast<long>(static_cast<unsigned>(date_.day())), code.size());
    if (code == "ddd") return regional.shortDayNames[weekdayIndex];
    if (code == "dddd") return regional.dayNames[weekdayIndex];
    if (code == "ddddd") return FormatDate(value_, regional.shortDate);
    if (code == "dddddd") return FormatDate(value_, regional.longDate);
    if (code == "w") return std::to_string(weekdayIndex + 1);
    if (code == "ww") return std::to_string(WeekOfYear(date_));
    if (code == "m" || code == "mm") return Padded(month, code.size());
    if (code == "mmm") return regional.shortMonthNames[static_cast<std::size_t>(month - 1)];
    if (code == "mmmm") return regional.monthNames[static_cast<std::size_t>(month - 1)];
    if (code == "q") return std::to_string((month - 1) / 3 + 1);
    if (code == "y") return std::to_string((value_.day - sys_days{date_.year() / January / 1}).count() + 1);
    if (code == "yy") return Padded(static_cast<int>(date_.year()) % 100, 2);
    if (code == "yyyy") return std::to_string(static_cast<int>(date_.year()));
    if (code == "h" || code == "hh") return Padded(Hour(), code.size());
    if (code == "n" || code == "nn") return Padded(clock_.minutes().count(), code.size());
    if (code == "s" || code == "ss") return Padded(clock_.seconds().count(), code.size());
    return FormatDate(value_, regional.timeForm);  // "ttttt"
  }

  std::string Marker(const FormatToken& token) const { return MarkerText(token.code, clock_.hours().count() >= 12); }

 private:
  long Hour() const {
    const long hour = clock_.hours().count();
    if (!twelveHours_) return hour;
    return hour % 12 == 0 ? 12 : hour % 12;
  }

  DateTime value_;
  year_month_day date_;
  hh_mm_ss<seconds> clock_;
  bool twelveHours_;
};

}  // namespace

std::string FormatDate(const DateTime& value, const FormatSection& section) {
  const DateWriter writer(value, section);
  const Regional& regional = Regional::Current();
  std::string out;
  for (std::size_t i = 0; i < section.size(); ++i) {
    const FormatToken& token = section[i];
    switch (token.kind) {
      case TokenKind::DatePart: out += writer.Part(section, i); break;
      case TokenKind::AmPm: out += writer.Marker(token); break;
      case TokenKind::DateSeparator: out += regional.dateSeparator; break;
      case TokenKind::TimeSeparator: out += regional.timeSeparator; break;
      default: out += token.text; break;
    }
  }
  return out;
}

std::string FormatDate(const DateTime& value, std::string_view pattern) {
  return FormatDate(value, Tokenize(SplitSections(pattern).front()));
}

std::string DateText(const DateTime& value) {
  const Regional& regional = Regional::Current();
  if (value.day == kZeroDate) return FormatDate(value, regional.timeForm);
  if (value.time == seconds{0}) return FormatDate(value, regional.shortDate);
  return FormatDate(value, regional.shortDate) + " " + FormatDate(value, regional.timeForm);
}

}  // namespace tamrix
