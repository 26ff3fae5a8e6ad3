#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

#include "core/accent_folding.h"
#include "core/regional_locale.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

TEST(RegionalSettings, OfTheCommaLocale) {
  const Regional pt = Regional::ForLocale("pt_BR.UTF-8");
  EXPECT_EQ(pt.decimalSign, ',');
  EXPECT_EQ(pt.groupingSign, '.');
  EXPECT_EQ(pt.dateSeparator, '/');
  EXPECT_EQ(pt.timeSeparator, ':');
  EXPECT_EQ(pt.shortDate, "dd/mm/yyyy");
  EXPECT_EQ(pt.timeForm, "hh:nn:ss");
  EXPECT_EQ(pt.ShortDateOrder(), DateOrder::DayMonthYear);
  EXPECT_EQ(pt.dayNames[0], "domingo");
  EXPECT_EQ(pt.shortDayNames[6], "s\xE1" "b");
  EXPECT_EQ(pt.monthNames[2], "mar\xE7o");
  EXPECT_EQ(pt.shortMonthNames[11], "dez");
  EXPECT_EQ(pt.currencySymbol, "R$");
  EXPECT_TRUE(pt.currencyFirst);
  EXPECT_TRUE(pt.currencySpaced);
}

TEST(RegionalSettings, OfAMonthFirstLocaleWithTwelveHours) {
  const Regional us = Regional::ForLocale("en_US.UTF-8");
  EXPECT_EQ(us.decimalSign, '.');
  EXPECT_EQ(us.groupingSign, ',');
  EXPECT_EQ(us.shortDate, "mm/dd/yyyy");
  EXPECT_EQ(us.timeForm, "hh:nn:ss AMPM");
  EXPECT_EQ(us.ShortDateOrder(), DateOrder::MonthDayYear);
  EXPECT_EQ(us.longDate, "dddd, mmmm d, yyyy");
  EXPECT_EQ(us.currencySymbol, "$");
  EXPECT_FALSE(us.currencySpaced);
}

// The C locales keep the run-time's own defaults, not the C library's.
TEST(RegionalSettings, OfThePointLocalesAndUnknownOnes) {
  for (const char* name : {"C", "C.UTF-8", "POSIX", "xx_YY.UTF-8"}) {
    const Regional settings = Regional::ForLocale(name);
    EXPECT_EQ(settings.decimalSign, '.') << name;
    EXPECT_EQ(settings.groupingSign, ',') << name;
    EXPECT_EQ(settings.shortDate, "dd/mm/yyyy") << name;
    EXPECT_EQ(settings.timeForm, "hh:nn:ss") << name;
    EXPECT_EQ(settings.monthNames[0], "January") << name;
  }
}

// Sets environment variables for one test and puts the old values back.
class ScopedEnvironment {
 public:
  ScopedEnvironment(std::initializer_list<std::pair<const char*, const char*>> values) {
    for (const auto& [name, value] : values) {
      const char* old = std::getenv(name);
      saved_.push_back({name, old == nullptr ? std::nullopt : std::optional<std::string>(old)});
      if (value == nullptr) {
        unsetenv(name);
      } else {
        setenv(name, value, 1);
      }
    }
  }
  ~ScopedEnvironment() {
    for (const auto& [name, value] : saved_) {
      if (value) {
        setenv(name, value->c_str(), 1);
      } else {
        unsetenv(name);
      }
    }
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

 private:
  std::vector<std::pair<const char*, std::optional<std::string>>> saved_;
};

TEST(RegionalSettings, ComeFromEachCategorysVariable) {
  {
    ScopedEnvironment env{{"LC_ALL", nullptr}, {"LANG", "C.UTF-8"}, {"LC_NUMERIC", "pt_BR.UTF-8"},
                          {"LC_TIME", "en_US.UTF-8"}, {"LC_MONETARY", nullptr}};
    const Regional settings = Regional::FromEnvironment();
    EXPECT_EQ(settings.decimalSign, ',');
    EXPECT_EQ(settings.ShortDateOrder(), DateOrder::MonthDayYear);
    EXPECT_EQ(settings.currencySymbol, "$");
  }
  ScopedEnvironment env{{"LC_ALL", "pt_BR.UTF-8"}, {"LC_NUMERIC", "C"}, {"LC_TIME", "en_US.UTF-8"}};
  const Regional settings = Regional::FromEnvironment();
  EXPECT_EQ(settings.decimalSign, ',');
  EXPECT_EQ(settings.monthNames[0], "janeiro");
  EXPECT_EQ(settings.currencySymbol, "R$");
}

struct StrftimeCase {
  const char* form;
  char separator;
  char token;
  const char* pattern;
};

TEST(StrftimeForms, BecomePatterns) {
  for (const auto& c : {StrftimeCase{"%d.%m.%Y", '.', '/', "dd/mm/yyyy"},
                        StrftimeCase{"%Y-%m-%d", '-', '/', "yyyy/mm/dd"},
                        StrftimeCase{"%e/%b/%y", '/', '/', "d/mmm/yy"},
                        StrftimeCase{"%A %B", '/', '/', "dddd mmmm"},
                        StrftimeCase{"%T", ':', ':', "hh:nn:ss"},
                        StrftimeCase{"%r", ':', ':', "hh:nn:ss AMPM"},
                        StrftimeCase{"%H.%M", '.', ':', "hh:nn"},
                        StrftimeCase{"%Ey %Od", '/', '/', "yy dd"},
                        StrftimeCase{"%e de %B", '/', '/', "d \\d\\e mmmm"}}) {
    EXPECT_EQ(PatternFromStrftime(c.form, c.separator, c.token, "%I:%M:%S %p"), c.pattern) << c.form;
  }
  EXPECT_EQ(SeparatorOf("%d.%m.%Y", '/'), '.');
  EXPECT_EQ(SeparatorOf("%T", ':'), ':');
  EXPECT_EQ(SeparatorOf("%Y%m%d", '/'), '/');
}

TEST(ShortDateOrder, SkipsEscapedAndQuotedLetters) {
  Regional settings;
  settings.shortDate = "\\m\"y\" yyyy/mm/dd";
  EXPECT_EQ(settings.ShortDateOrder(), DateOrder::YearMonthDay);
  settings.shortDate = "mm/dd/yy";
  EXPECT_EQ(settings.ShortDateOrder(), DateOrder::MonthDayYear);
}

TEST(AccentFolding, ReplacesTheTablesLettersOnly) {
  EXPECT_EQ(FoldAccents("\xC1\xC0\xC3\xC2\xE1\xE0\xE3\xE2"), "AAA\xC2" "aaa\xE2");
  EXPECT_EQ(FoldAccents("\xC9\xCA\xE9\xEA\xCD\xED\xD3\xD5\xD4\xF3\xF5\xF4\xDA\xFA\xC7\xE7"), "EEeeIiOOOoooUuCc");
  EXPECT_EQ(FoldAccents("S\xE3o Jo\xE3o, 12 \xF1\xFC\xC8!"), "Sao Joao, 12 \xF1\xFC\xC8!");
}

TEST(AccentFolding, KeepsTheFirst131Characters) {
  const std::string long200(200, '\xE7');
  EXPECT_EQ(FoldAccents(long200), std::string(131, 'c'));
  EXPECT_EQ(FoldAccents(std::string(131, 'x')).size(), 131U);
  EXPECT_EQ(FoldAccents(""), "");
}

}  // namespace
}  // namespace tamrix::testing
