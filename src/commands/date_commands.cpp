// The date and time commands: today and now, the parts of a date, counting
// between dates, and the names of the days in six languages.
#include <array>

#include "commands/command_families.h"
#include "commands/dates/date_arithmetic.h"
#include "commands/dates/date_reading.h"
#include "commands/format/date_format.h"
#include "commands/format/format_value.h"
#include "commands/library_commands.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/regional.h"
#include "core/text.h"

namespace tamrix {

using namespace std::chrono;

namespace {

// Sunday first. The table stands as the language has always had it: "GR"
// names Saturday "Sonntag", and "IT" writes "Lunedi" and "Giovedi" without
// their accent.
struct WeekDayNames {
  std::string_view code;
  std::array<std::string_view, 7> names;
};
constexpr std::array<WeekDayNames, 6> kWeekDayNames{{
    {"EN", {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}},
    {"PT", {"Domingo", "Segunda-feira", "Ter\xE7" "a-feira", "Quarta-feira", "Quinta-feira", "Sexta-feira",
            "S\xE1" "bado"}},
    {"GR", {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Sonntag"}},
    {"SP", {"Domingo", "Lunes", "Martes", "Mi\xE9" "rcoles", "Jueves", "Viernes", "S\xE1" "bado"}},
    {"IT", {"Domenica", "Lunedi", "Marted\xEC", "Mercoled\xEC", "Giovedi", "Venerd\xEC", "Sabato"}},
    {"FR", {"Dimanche", "Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi"}},
}};

std::string DayName(unsigned weekdayIndex, const std::string& language) {
  for (const auto& row : kWeekDayNames) {
    if (row.code == language) return std::string(row.names[weekdayIndex]);
  }
  return std::to_string(weekdayIndex);
}

// A date argument whose empty value means today.
DateTime DateOrToday(CommandArguments& args) {
  const std::string text = args.Text(0);
  return text.empty() ? Now() : DateArgument(text);
}

using DatePartFunction = long (*)(const year_month_day&);

CommandHandler DatePartCommand(DatePartFunction part) {
  return [part](CommandCall& call) -> Value {
    CommandArguments args(call, 1);
    return std::to_string(part(CivilDate(DateOrToday(args))));
  };
}

long DayOf(const year_month_day& date) { return static_cast<unsigned>(date.day()); }
long MonthOf(const year_month_day& date) { return static_cast<unsigned>(date.month()); }
long YearOf(const year_month_day& date) { return static_cast<int>(date.year()); }

Value DateCommand(CommandCall&) { return Quoted(FormatDate(Now(), Regional::Current().shortDate)); }

Value TimeCommand(CommandCall&) { return Quoted(FormatDate(Now(), Regional::Current().timeForm)); }

// Year, month and day as "0000", "00" and "00": the form in which dates sort
// as text.
Value RevDate(CommandCall& call) {
  CommandArguments args(call, 1);
  const year_month_day date = CivilDate(DateArgument(args.Text(0)));
  return Quoted(FormatValue(std::to_string(YearOf(date)), "0000") + FormatValue(std::to_string(MonthOf(date)), "00") +
                FormatValue(std::to_string(DayOf(date)), "00"));
}

Value WeekDay(CommandCall& call) {
  CommandArguments args(call, 2);
  const DateTime date = DateArgument(TextArgument(args, 0));
  const std::string language = Upper(TextArgument(args, 1));
  return Quoted(DayName(weekday{date.day}.c_encoding(), language));
}

DateUnit UnitArgument(const std::string& word) {
  const auto unit = DateUnitNamed(Upper(word));
  if (!unit) Throw(kInvalidCall);
  return *unit;
}

Value DateAdd(CommandCall& call) {
  CommandArguments args(call, 3);
  const DateUnit unit = UnitArgument(TextArgument(args, 0));
  const std::int32_t count = ToInt32(NumberArgument(args, 1));
  return Quoted(DateText(AddToDate(unit, count, DateArgument(TextArgument(args, 2)))));
}

Value DateDiff(CommandCall& call) {
  CommandArguments args(call, 3);
  const DateUnit unit = UnitArgument(args.Text(0));
  const DateTime first = DateArgument(args.Text(1));
  const DateTime second = DateArgument(args.Text(2));
  return ToInt32(static_cast<double>(DateDifference(unit, first, second)));
}

Value TestDate(CommandCall& call) {
  CommandArguments args(call, 1);
  return Quoted(ReadDate(TextArgument(args, 0)) ? "TRUE" : "FALSE");
}

}  // namespace

void RegisterDateCommands(Dispatcher& dispatcher) {
  const std::array<LibraryCommand, 10> commands{{
      {"Date", DateCommand},
      {"Time", TimeCommand},
      {"Day", DatePartCommand(DayOf)},
      {"Month", DatePartCommand(MonthOf)},
      {"Year", DatePartCommand(YearOf)},
      {"RevDate", RevDate},
      {"WeekDay", WeekDay, LibraryGuard::Fixed, FailureResult::Empty, "WeekDay: Invalid parameter!"},
      {"DateAdd", DateAdd},
      {"DateDiff", DateDiff, LibraryGuard::Command, FailureResult::Zero},
      {"TestDate", TestDate},
  }};
  RegisterLibraryCommands(dispatcher, commands);
}

}  // namespace tamrix
