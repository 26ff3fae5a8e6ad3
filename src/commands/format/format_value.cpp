#include "commands/format/format_value.h"

#include <cmath>
#include <optional>

#include "commands/dates/date_reading.h"
#include "commands/format/date_format.h"
#include "commands/format/format_pattern.h"
#include "commands/format/named_formats.h"
#include "commands/format/number_format.h"
#include "commands/format/text_format.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

// The section for a number: positive (and zero, and all values when alone);
// negative; zero. An empty section stands for the first.
std::string FormatNumberValue(double value, const std::vector<FormatSection>& sections) {
  std::size_t index = 0;
  if (value < 0 && sections.size() >= 2) {
    index = 1;
  } else if (value == 0 && sections.size() >= 3) {
    index = 2;
  }
  if (sections[index].empty()) index = 0;
  const FormatSection& section = sections[index];
  const SectionTraits traits = TraitsOf(section);
  if (traits.dateParts && !traits.digits) return FormatDate(FromSerial(value), section);
  // The negative section brings its own signs.
  return index == 1 ? FormatNumber(std::fabs(value), section, false) : FormatNumber(value, section, true);
}

std::string FormatByPattern(std::string_view value, std::string_view pattern) {
  const std::vector<FormatSection> sections = ParsePattern(pattern);
  const SectionTraits first = TraitsOf(sections.front());
  if (first.textParts && !first.digits) {
    // The second section of a text pattern is for the empty text.
    return FormatText(value, value.empty() && sections.size() > 1 ? sections[1] : sections.front());
  }
  if (const auto number = ParseRegionalNumber(value)) return FormatNumberValue(*number, sections);
  if (const auto date = ReadDate(value)) {
    if (first.digits) return FormatNumberValue(SerialOf(*date), sections);
    return FormatDate(*date, sections.front());
  }
  // The fourth section is for the empty value.
  if (value.empty() && sections.size() >= 4) return FormatNumber(0, sections[3], false);
  return std::string(value);
}

}  // namespace

std::string FormatValue(std::string_view value, std::string_view pattern) {
  if (pattern.empty()) return std::string(value);
  const auto named = FindNamedFormat(pattern);
  if (!named) return FormatByPattern(value, pattern);
  if (named->form == NamedForm::Pattern) return FormatByPattern(value, named->pattern);
  const auto number = ParseRegionalNumber(value);
  const auto date = number ? std::nullopt : ReadDate(value);
  if (named->form == NamedForm::GeneralNumber) {
    if (number) return NumberText(*number);
    return date ? NumberText(SerialOf(*date)) : std::string(value);
  }
  if (number) return DateText(FromSerial(*number));
  return date ? DateText(*date) : std::string(value);
}

}  // namespace tamrix
