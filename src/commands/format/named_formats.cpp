#include "commands/format/named_formats.h"

#include "core/regional.h"
#include "core/text.h"

namespace tamrix {
namespace {

// Every character escaped, so that a word stands as written.
std::string Escaped(std::string_view text) {
  std::string out;
  for (char c : text) {
    out += '\\';
    out += c;
  }
  return out;
}

// "Yes/No" and its kind: the first word for any value but zero.
std::string TwoWords(std::string_view nonZero, std::string_view zero) {
  return Escaped(nonZero) + ";" + Escaped(nonZero) + ";" + Escaped(zero);
}

std::string CurrencyPattern() {
  const Regional& regional = Regional::Current();
  const std::string symbol = Escaped(regional.currencySymbol);
  const std::string blank = regional.currencySpaced ? " " : "";
  const std::string number = "#,##0.00";
  return regional.currencyFirst ? symbol + blank + number : number + blank + symbol;
}

std::string YesNo() { return TwoWords("Yes", "No"); }
std::string TrueFalse() { return TwoWords("True", "False"); }
std::string OnOff() { return TwoWords("On", "Off"); }
std::string LongDate() { return Regional::Current().longDate; }
std::string ShortDate() { return Regional::Current().shortDate; }
std::string LongTime() { return Regional::Current().timeForm; }

struct Entry {
  std::string_view name;
  NamedForm form;
  std::string_view pattern;       // a fixed pattern,
  std::string (*made)() = nullptr;  // or one made when asked for
};

constexpr Entry kEntries[] = {
    {"General Number", NamedForm::GeneralNumber, ""},
    {"Currency", NamedForm::Pattern, "", CurrencyPattern},
    {"Fixed", NamedForm::Pattern, "0.00"},
    {"Standard", NamedForm::Pattern, "#,##0.00"},
    {"Percent", NamedForm::Pattern, "0.00%"},
    {"Scientific", NamedForm::Pattern, "0.00E+00"},
    {"Yes/No", NamedForm::Pattern, "", YesNo},
    {"True/False", NamedForm::Pattern, "", TrueFalse},
    {"On/Off", NamedForm::Pattern, "", OnOff},
    {"General Date", NamedForm::GeneralDate, ""},
    {"Long Date", NamedForm::Pattern, "", LongDate},
    {"Medium Date", NamedForm::Pattern, "dd-mmm-yy"},
    {"Short Date", NamedForm::Pattern, "", ShortDate},
    {"Long Time", NamedForm::Pattern, "", LongTime},
    {"Medium Time", NamedForm::Pattern, "hh:nn AMPM"},
    {"Short Time", NamedForm::Pattern, "hh:nn"},
};

}  // namespace

std::optional<NamedFormat> FindNamedFormat(std::string_view name) {
  for (const auto& entry : kEntries) {
    if (!EqualsNoCase(entry.name, name)) continue;
    return NamedFormat{entry.form, entry.made != nullptr ? entry.made() : std::string(entry.pattern)};
  }
  return std::nullopt;
}

}  // namespace tamrix
