#include <gtest/gtest.h>

#include <tuple>

#include "commands/format/format_value.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

struct FormatCase {
  const char* value;
  const char* pattern;
  const char* result;  // numbers in the point form, localised for the run
};

std::ostream& operator<<(std::ostream& out, const FormatCase& c) {
  return out << "Format(" << c.value << ", " << c.pattern << ")";
}

// Number patterns give the same layout under any settings; only the decimal
// and grouping signs of the output change.
class NumberPatterns : public ::testing::TestWithParam<std::tuple<std::string, FormatCase>> {};

TEST_P(NumberPatterns, LayOutTheNumber) {
  const auto& [locale, c] = GetParam();
  ScopedRegional settings(locale);
  EXPECT_EQ(FormatValue(Localised(c.value), c.pattern), Localised(c.result)) << c;
}

INSTANTIATE_TEST_SUITE_P(
    Format, NumberPatterns,
    ::testing::Combine(
        ::testing::ValuesIn(kPointAndComma),
        ::testing::Values(
            FormatCase{"3.14159", "0.00", "3.14"},
            FormatCase{"1234567", "#,##0", "1,234,567"},
            FormatCase{"1234567.891", "#,##0.00", "1,234,567.89"},
            FormatCase{"-1234.5", "#,##0.00", "-1,234.50"},
            FormatCase{"123", "#,##0", "123"},
            FormatCase{"0.5", "0.00", "0.50"},
            FormatCase{"0.5", "#.##", ".5"},
            FormatCase{"5", "#.##", "5."},
            FormatCase{"1.25", "0.0#", "1.25"},
            FormatCase{"1", "0.0#", "1.0"},
            FormatCase{"0", "#", ""},
            FormatCase{"0", "0", "0"},
            // Half away from zero, on the number's text.
            FormatCase{"2.5", "0", "3"},
            FormatCase{"-2.5", "0", "-3"},
            FormatCase{"1.005", "0.00", "1.01"},
            FormatCase{"0.995", "0.00", "1.00"},
            FormatCase{"-0.001", "0.00", "0.00"},
            // The patterns the language's own code uses.
            FormatCase{"5", "000000", "000005"},
            FormatCase{"123", "00000", "00123"},
            FormatCase{"7", "0000", "0007"},
            FormatCase{"3", "00", "03"},
            FormatCase{"123", "00", "123"},
            FormatCase{"12345", "#0", "12345"},
            // Scaling commas and percent.
            FormatCase{"1234567", "#,##0,", "1,235"},
            FormatCase{"1234567", "0,,", "1"},
            FormatCase{"1234567", "#,##0,,.0", "1.2"},
            FormatCase{"0.256", "0%", "26%"},
            FormatCase{"0.256", "0.0%", "25.6%"},
            // Scientific forms.
            FormatCase{"12345", "0.00E+00", "1.23E+04"},
            FormatCase{"0.00012345", "0.00E+00", "1.23E-04"},
            FormatCase{"12345", "0.00E-00", "1.23E04"},
            FormatCase{"0.00012345", "0.00e-0", "1.23e-4"},
            FormatCase{"9.996", "0.00E+00", "1.00E+01"},
            FormatCase{"0", "0.00E+00", "0.00E+00"},
            FormatCase{"-12345", "0.0E+0", "-1.2E+4"},
            // Literals, escapes and places between literals.
            FormatCase{"5551234", "000-0000", "555-1234"},
            FormatCase{"12.5", "\\$0.00", "$12.50"},
            FormatCase{"12.5", "\"USD \"0.00", "USD 12.50"},
            FormatCase{"12.5", "(0.00)", "(12.50)"},
            FormatCase{"3", "0 \"kg\"", "3 kg"},
            FormatCase{"1e20", "0", "100000000000000000000"},
            // Sections: positive and zero; negative; zero; empty.
            FormatCase{"5", "0;(0)", "5"},
            FormatCase{"-5", "0;(0)", "(5)"},
            FormatCase{"0", "0;(0)", "0"},
            FormatCase{"0", "0;(0);\\z\\e\\r\\o", "zero"},
            FormatCase{"-5", "0;(0);\\z\\e\\r\\o", "(5)"},
            FormatCase{"-5", "0;;", "-5"},
            FormatCase{"", "0;(0);\\z\\e\\r\\o;\\n\\o\\n\\e", "none"},
            // A text that is no number stands as it is.
            FormatCase{"abc", "0.00", "abc"},
            FormatCase{"2.5", "", "2.5"})));

// The named patterns of numbers, compared without regard to case.
INSTANTIATE_TEST_SUITE_P(
    Named, NumberPatterns,
    ::testing::Combine(::testing::ValuesIn(kPointAndComma),
                       ::testing::Values(FormatCase{"1234.5", "Fixed", "1234.50"},
                                         FormatCase{"0.5", "fixed", "0.50"},
                                         FormatCase{"1234.5", "Standard", "1,234.50"},
                                         FormatCase{"0.1234", "Percent", "12.34%"},
                                         FormatCase{"12345", "Scientific", "1.23E+04"},
                                         FormatCase{"1234.5", "General Number", "1234.5"},
                                         FormatCase{"0", "Yes/No", "No"},
                                         FormatCase{"3", "yes/no", "Yes"},
                                         FormatCase{"-1", "True/False", "True"},
                                         FormatCase{"0", "True/False", "False"},
                                         FormatCase{"0", "On/Off", "Off"},
                                         FormatCase{"2", "ON/OFF", "On"})));

TEST(Currency, UsesTheRegionalSymbol) {
  {
    ScopedRegional settings("C.UTF-8");
    EXPECT_EQ(FormatValue("1234.5", "Currency"), "$1,234.50");
  }
  ScopedRegional settings("pt_BR.UTF-8");
  EXPECT_EQ(FormatValue("-1234,5", "Currency"), "-R$ 1.234,50");
}

class DatePatterns : public ::testing::TestWithParam<FormatCase> {};

// Day-month settings with English names: Wednesday, 31 December 2003.
TEST_P(DatePatterns, UseThePointSettings) {
  ScopedRegional settings("C.UTF-8");
  EXPECT_EQ(FormatValue(GetParam().value, GetParam().pattern), GetParam().result) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(
    Format, DatePatterns,
    ::testing::Values(FormatCase{"31/12/2003 13:45:30", "dd/mm/yyyy", "31/12/2003"},
                      FormatCase{"1/2/2003", "d/m/yy", "1/2/03"},
                      FormatCase{"1/2/2003", "dd-mm-yyyy", "01-02-2003"},
                      FormatCase{"31/12/2003", "ddd dddd", "Wed Wednesday"},
                      FormatCase{"31/12/2003", "mmm mmmm", "Dec December"},
                      FormatCase{"31/12/2003", "DD MMM YYYY", "31 Dec 2003"},
                      FormatCase{"31/12/2003", "yyyy-mm-dd", "2003-12-31"},
                      FormatCase{"31/12/2003 13:45:30", "hh:mm:ss", "13:45:30"},
                      FormatCase{"31/12/2003 13:05:30", "h:nn", "13:05"},
                      FormatCase{"31/12/2003 13:45:30", "h:nn AM/PM", "1:45 PM"},
                      FormatCase{"31/12/2003 00:45:30", "h:nn am/pm", "12:45 am"},
                      FormatCase{"31/12/2003 13:45:30", "hh:nn a/p", "01:45 p"},
                      FormatCase{"31/12/2003 09:45:30", "hh:nn A/P", "09:45 A"},
                      FormatCase{"31/12/2003 13:45:30", "hh:nn AMPM", "01:45 PM"},
                      FormatCase{"31/12/2003 13:45:30", "ttttt", "13:45:30"},
                      FormatCase{"31/12/2003 13:45:30", "ddddd", "31/12/2003"},
                      FormatCase{"31/12/2003", "dddddd", "Wednesday, 31 December 2003"},
                      FormatCase{"31/12/2003", "w", "4"},
                      FormatCase{"28/12/2003", "w", "1"},
                      FormatCase{"31/12/2003", "ww", "53"},
                      FormatCase{"1/1/2005", "ww", "1"},
                      FormatCase{"2/1/2005", "ww", "2"},
                      FormatCase{"31/12/2003", "q", "4"},
                      FormatCase{"31/3/2003", "q", "1"},
                      FormatCase{"31/12/2003", "y", "365"},
                      FormatCase{"31/12/2004", "y", "366"},
                      FormatCase{"31/12/2003", "\"day\" d", "day 31"},
                      // The named date and time patterns.
                      FormatCase{"31/12/2003 13:45:30", "General Date", "31/12/2003 13:45:30"},
                      FormatCase{"31/12/2003", "general date", "31/12/2003"},
                      FormatCase{"13:45", "General Date", "13:45:00"},
                      FormatCase{"31/12/2003 13:45:30", "Long Date", "Wednesday, 31 December 2003"},
                      FormatCase{"31/12/2003 13:45:30", "Medium Date", "31-Dec-03"},
                      FormatCase{"31/12/2003 13:45:30", "Short Date", "31/12/2003"},
                      FormatCase{"31/12/2003 13:45:30", "Long Time", "13:45:30"},
                      FormatCase{"31/12/2003 13:45:30", "Medium Time", "01:45 PM"},
                      FormatCase{"31/12/2003 13:45:30", "Short Time", "13:45"},
                      // Numbers and dates stand for each other.
                      FormatCase{"31/12/2003", "0", "37986"},
                      FormatCase{"37986.5", "dd/mm/yyyy hh:nn", "31/12/2003 12:00"},
                      FormatCase{"0.25", "hh:nn", "06:00"},
                      FormatCase{"-1.25", "dd/mm/yyyy hh:nn", "29/12/1899 06:00"},
                      FormatCase{"37986", "General Date", "31/12/2003"},
                      FormatCase{"31/12/2003", "General Number", "37986"},
                      // A text that is neither stands as it is.
                      FormatCase{"31/02/2003", "dd/mm/yyyy", "31/02/2003"}));

TEST(DatePatterns, UseTheRegionalNamesAndForms) {
  ScopedRegional settings("pt_BR.UTF-8");
  EXPECT_EQ(FormatValue("31/12/2003", "dddd, d mmmm yyyy"), "quarta, 31 dezembro 2003");
  EXPECT_EQ(FormatValue("1/3/2003", "ddd mmm"), "s\xE1" "b mar");
  EXPECT_EQ(FormatValue("31/12/2003 13:45:30", "General Date"), "31/12/2003 13:45:30");
  EXPECT_EQ(FormatValue("37986,5", "dd/mm/yyyy hh:nn"), "31/12/2003 12:00");
}

TEST(DatePatterns, FollowAMonthFirstOrderAndTwelveHourTime) {
  ScopedRegional settings("en_US.UTF-8");
  EXPECT_EQ(FormatValue("12/31/2003 13:45:30", "dd.mm.yyyy"), "31.12.2003");
  EXPECT_EQ(FormatValue("12/31/2003 13:45:30", "General Date"), "12/31/2003 01:45:30 PM");
  EXPECT_EQ(FormatValue("31/12/2003", "dd.mm.yyyy"), "31/12/2003");
}

TEST(DatePatterns, WriteTheRegionalSeparators) {
  Regional dotted;
  dotted.dateSeparator = '.';
  dotted.timeSeparator = 'h';
  ScopedRegional settings(dotted);
  EXPECT_EQ(FormatValue("31.12.2003 13h45", "dd/mm/yyyy hh:nn"), "31.12.2003 13h45");
}

class TextPatterns : public ::testing::TestWithParam<FormatCase> {};

TEST_P(TextPatterns, PlaceTheCharacters) {
  EXPECT_EQ(FormatValue(GetParam().value, GetParam().pattern), GetParam().result) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Format, TextPatterns,
                         ::testing::Values(FormatCase{"abc", "@@@@@", "  abc"},
                                           FormatCase{"abc", "!@@@@@", "abc  "},
                                           FormatCase{"abc", "&&&&&", "abc"},
                                           FormatCase{"abcdef", "@@@", "abcdef"},
                                           FormatCase{"abcdef", "!@@@", "abcdef"},
                                           FormatCase{"5551234", "@@@-@@@@", "555-1234"},
                                           FormatCase{"ab", "(@@@)", "( ab)"},
                                           FormatCase{"ab", "!(@@@)", "(ab )"},
                                           FormatCase{"Hello", ">", "HELLO"},
                                           FormatCase{"Hello", "<", "hello"},
                                           FormatCase{"Hello", ">@@@@@@", " HELLO"},
                                           FormatCase{"123", "@@@@@", "  123"},
                                           FormatCase{"", "@;\\e\\m\\p\\t\\y", "empty"}));

}  // namespace
}  // namespace tamrix::testing
