#include "core/regional_locale.h"

#include <langinfo.h>
#include <locale.h>

#include "core/codepage.h"

namespace tamrix {
namespace {

class NamedLocale {
 public:
  NamedLocale(int mask, const std::string& name) : locale_(newlocale(mask, name.c_str(), locale_t{})) {}
  ~NamedLocale() {
    if (locale_ != locale_t{}) freelocale(locale_);
  }
  NamedLocale(const NamedLocale&) = delete;
  NamedLocale& operator=(const NamedLocale&) = delete;

  bool Exists() const { return locale_ != locale_t{}; }
  std::string Raw(nl_item item) const { return nl_langinfo_l(item, locale_); }
  std::string Text(nl_item item) const { return Utf8ToCp1252Lossy(Raw(item)); }
  char Byte(nl_item item) const { return *nl_langinfo_l(item, locale_); }

 private:
  locale_t locale_;
};

nl_item Item(nl_item first, std::size_t offset) { return static_cast<nl_item>(first + static_cast<int>(offset)); }

void ReadNumeric(Regional& settings, const NamedLocale& locale) {
  const std::string radix = locale.Raw(RADIXCHAR);
  if (!radix.empty()) settings.decimalSign = radix[0];
  const std::string grouping = locale.Raw(THOUSEP);
  // A separator outside ASCII (a narrow blank) has no single byte here.
  if (!grouping.empty() && static_cast<unsigned char>(grouping[0]) < 0x80) {
    settings.groupingSign = grouping[0];
  } else {
    settings.groupingSign = settings.decimalSign == ',' ? '.' : ',';
  }
}

// The C library has no long date form; one is made in the short form's order.
std::string LongDateFor(const Regional& settings) {
  switch (settings.ShortDateOrder()) {
    case DateOrder::MonthDayYear: return "dddd, mmmm d, yyyy";
    case DateOrder::YearMonthDay: return "dddd, yyyy mmmm d";
    case DateOrder::DayMonthYear: break;
  }
  return "dddd, d mmmm yyyy";
}

void ReadTime(Regional& settings, const NamedLocale& locale) {
  const std::string dateForm = locale.Text(D_FMT);
  const std::string timeForm = locale.Text(T_FMT);
  const std::string ampmForm = locale.Text(T_FMT_AMPM);
  settings.dateSeparator = SeparatorOf(dateForm, settings.dateSeparator);
  settings.timeSeparator = SeparatorOf(timeForm == "%r" ? ampmForm : timeForm, settings.timeSeparator);
  settings.shortDate = PatternFromStrftime(dateForm, settings.dateSeparator, '/', ampmForm);
  settings.timeForm = PatternFromStrftime(timeForm, settings.timeSeparator, ':', ampmForm);
  settings.longDate = LongDateFor(settings);
  for (std::size_t i = 0; i < 7; ++i) {
    settings.dayNames[i] = locale.Text(Item(DAY_1, i));
    settings.shortDayNames[i] = locale.Text(Item(ABDAY_1, i));
  }
  for (std::size_t i = 0; i < 12; ++i) {
    settings.monthNames[i] = locale.Text(Item(MON_1, i));
    settings.shortMonthNames[i] = locale.Text(Item(ABMON_1, i));
  }
  // Locales without a 12-hour clock leave the markers empty.
  if (const std::string am = locale.Text(AM_STR); !am.empty()) settings.amSign = am;
  if (const std::string pm = locale.Text(PM_STR); !pm.empty()) settings.pmSign = pm;
}

void ReadMonetary(Regional& settings, const NamedLocale& locale) {
  // "-R$": the symbol stands before the number; "+kr" behind it.
  const std::string currency = locale.Text(CRNCYSTR);
  if (currency.size() < 2) return;
  settings.currencySymbol = currency.substr(1);
  settings.currencyFirst = currency[0] == '-';
  const char spacing = locale.Byte(__P_SEP_BY_SPACE);
  settings.currencySpaced = spacing == 1 || spacing == 2;
}

std::string Expand(std::string_view form, char separator, char separatorToken, std::string_view ampmForm,
                   int depth);

// One strftime directive in the pattern language.
std::string Directive(char directive, char separator, char separatorToken, std::string_view ampmForm,
                      int depth) {
  const auto inner = [&](std::string_view form) {
    return depth > 2 ? std::string() : Expand(form, separator, separatorToken, ampmForm, depth + 1);
  };
  switch (directive) {
    case 'd': return "dd";
    case 'e': return "d";
    case 'm': return "mm";
    case 'y': return "yy";
    case 'Y': return "yyyy";
    case 'b':
    case 'h': return "mmm";
    case 'B': return "mmmm";
    case 'a': return "ddd";
    case 'A': return "dddd";
    case 'H':
    case 'I': return "hh";
    case 'k':
    case 'l': return "h";
    case 'M': return "nn";
    case 'S': return "ss";
    case 'p':
    case 'P': return "AMPM";
    case 'T': return inner("%H:%M:%S");
    case 'R': return inner("%H:%M");
    case 'r': return inner(ampmForm.empty() ? "%I:%M:%S %p" : ampmForm);
    case 'D': return inner("%m/%d/%y");
    case 'F': return inner("%Y-%m-%d");
    case 'n':
    case 't': return " ";
    case '%': return "\\%";
    default: return "";
  }
}

std::string Expand(std::string_view form, char separator, char separatorToken, std::string_view ampmForm,
                   int depth) {
  std::string out;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const char c = form[i];
    if (c == '%' && i + 1 < form.size()) {
      char directive = form[++i];
      // "%Ey", "%Od": the alternative forms read as the plain ones.
      if ((directive == 'E' || directive == 'O') && i + 1 < form.size()) directive = form[++i];
      out += Directive(directive, separator, separatorToken, ampmForm, depth);
    } else if (c == separator) {
      out += separatorToken;
    } else if (c == ' ') {
      out += c;
    } else {
      out += '\\';
      out += c;
    }
  }
  return out;
}

bool IsPlain(char c) {
  return c == ' ' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

bool ApplyLocaleCategory(Regional& settings, LocaleCategory category, const std::string& name) {
  static constexpr int kMasks[] = {LC_NUMERIC_MASK, LC_TIME_MASK, LC_MONETARY_MASK};
  const NamedLocale locale(kMasks[static_cast<int>(category)], name);
  if (!locale.Exists()) return false;
  switch (category) {
    case LocaleCategory::Numeric: ReadNumeric(settings, locale); break;
    case LocaleCategory::Time: ReadTime(settings, locale); break;
    case LocaleCategory::Monetary: ReadMonetary(settings, locale); break;
  }
  return true;
}

std::string PatternFromStrftime(std::string_view form, char separator, char separatorToken,
                                std::string_view ampmForm) {
  return Expand(form, separator, separatorToken, ampmForm, 0);
}

char SeparatorOf(std::string_view form, char fallback) {
  for (std::size_t i = 0; i < form.size(); ++i) {
    if (form[i] == '%') {
      ++i;
      continue;
    }
    if (!IsPlain(form[i])) return form[i];
  }
  return fallback;
}

}  // namespace tamrix
