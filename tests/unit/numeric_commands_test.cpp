#include <gtest/gtest.h>

#include <array>

#include "core/random_source.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

struct CommandCase {
  const char* name;
  const char* word;
  const char* arguments;
  const char* result;  // in the point form; quotes and all
};

class NumericCommandResults : public ::testing::TestWithParam<CommandCase> {};

TEST_P(NumericCommandResults, GiveTheirResultInItsForm) {
  CommandRun run;
  EXPECT_EQ(run.Call(GetParam().word, GetParam().arguments), Localised(GetParam().result));
  EXPECT_EQ(run.BoxText(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumericCommandResults,
    ::testing::Values(
        CommandCase{"IntOfPositive", "Int", "3.7", "3"},
        CommandCase{"IntGoesDown", "Int", "-0.5", "-1"},
        CommandCase{"IntOfMinusOneAndHalf", "Int", "-1.5", "-2"},
        CommandCase{"FixGoesTowardZero", "Fix", "-1.5", "-1"},
        CommandCase{"FixOfNegativeHalfPrintsZero", "Fix", "-0.5", "0"},
        CommandCase{"FixOfPositive", "Fix", "2.7", "2"},
        CommandCase{"AbsOfNegative", "Abs", "-3.5", "3.5"},
        CommandCase{"SgnOfNegative", "Sgn", "-2", "-1"},
        CommandCase{"SgnOfZero", "Sgn", "0", "0"},
        CommandCase{"SgnOfPositive", "Sgn", "0.1", "1"},
        CommandCase{"RoundHalfDownToEven", "Round", "2.5, 0", "2"},
        CommandCase{"RoundHalfUpToEven", "Round", "3.5, 0", "4"},
        CommandCase{"RoundNegativeHalf", "Round", "-2.5, 0", "-2"},
        CommandCase{"RoundFollowsTheDouble", "Round", "1.005, 2", "1"},
        CommandCase{"RoundExactTieToEven", "Round", "0.125, 2", "0.12"},
        CommandCase{"RoundExactTieUp", "Round", "0.375, 2", "0.38"},
        CommandCase{"RoundWithoutDigits", "Round", "7.5", "8"},
        CommandCase{"SqrOfSixteen", "Sqr", "16", "4"},
        CommandCase{"ExpOfZero", "Exp", "0", "1"},
        CommandCase{"LogOfOne", "Log", "1", "0"},
        CommandCase{"SinOfZero", "Sin", "0", "0"},
        CommandCase{"CosOfZero", "Cos", "0", "1"},
        CommandCase{"TanOfZero", "Tan", "0", "0"},
        CommandCase{"AtnOfOne", "Atn", "1", "0.785398163397448"},
        CommandCase{"RandomOfZero", "Random", "0", "0"},
        CommandCase{"StrValLeadingNumber", "StrVal", R"("12abc")", "12"},
        CommandCase{"StrValSkipsBlanks", "StrVal", R"("  3.5 kg")", "3.5"},
        CommandCase{"StrValReadsOnlyThePoint", "StrVal", R"("1,5")", "1"},
        CommandCase{"StrValWithExponent", "StrVal", R"("-2.5e2x")", "-250"},
        CommandCase{"StrValWithoutNumber", "StrVal", R"("abc")", "0"},
        CommandCase{"HexOf255", "Hex", "255", R"("FF")"},
        CommandCase{"HexOfMinusOne", "Hex", "-1", R"("FFFFFFFF")"},
        CommandCase{"HexOfZero", "Hex", "0", R"("0")"},
        CommandCase{"HexRoundsHalfToEven", "Hex", "2.5", R"("2")"},
        CommandCase{"DecToBinOfFive", "DecToBin", "5", "00000101"},
        CommandCase{"DecToBinOfZero", "DecToBin", "0", "00000000"},
        CommandCase{"DecToBinOf255", "DecToBin", "255", "11111111"},
        CommandCase{"DecToBinDoesNotWiden", "DecToBin", "256", "11111111"},
        CommandCase{"DecToBinOfNegative", "DecToBin", "-1", "00000000"},
        CommandCase{"BinToDecOf101", "BinToDec", R"("101")", "5"},
        CommandCase{"BinToDecOfOtherDigit", "BinToDec", R"("2")", "0"},
        CommandCase{"BinToDecOfEmpty", "BinToDec", R"("")", "0"},
        CommandCase{"BinToDecOfZeros", "BinToDec", R"("00000000")", "0"},
        CommandCase{"BinToDecOfFourteenOnes", "BinToDec", R"("11111111111111")", "16383"},
        CommandCase{"FormatOfPi", "Format", R"(3.14159, "0.00")", R"("3.14")"}),
    NamedCase{});

struct FailureCase {
  const char* name;
  const char* word;
  const char* arguments;
  const char* words;  // the box's text behind the error position
};

class NumericCommandFailures : public ::testing::TestWithParam<FailureCase> {};

TEST_P(NumericCommandFailures, ShowTheErrorBoxAndGiveZero) {
  CommandRun run;
  EXPECT_EQ(run.Call(GetParam().word, GetParam().arguments), "0");
  EXPECT_EQ(run.BoxText(), std::string("\\r") + GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, NumericCommandFailures,
    ::testing::Values(
        FailureCase{"LogOfZero", "Log", "0", "Error in command Log: Invalid procedure call or argument"},
        FailureCase{"SqrOfNegative", "Sqr", "-1", "Error in command Sqr: Invalid procedure call or argument"},
        FailureCase{"ExpTooLarge", "Exp", "1000", "Error in command Exp: Overflow"},
        FailureCase{"IntBeyond32Bits", "Int", "3000000000", "Error in function Int: Overflow"},
        FailureCase{"RoundNegativeDigits", "Round", "1.5, -1",
                    "Error in command Round: Invalid procedure call or argument"},
        FailureCase{"AbsOfText", "Abs", R"("abc")", "Error in command Abs: Type mismatch"},
        FailureCase{"HexBeyond32Bits", "Hex", "4294967295", "Error in command Hex: Overflow"},
        FailureCase{"DecToBinBeyond16Bits", "DecToBin", "40000", "Error in command DecToBin: Overflow"},
        FailureCase{"BinToDecOfFifteenCharacters", "BinToDec", R"("000000000000001")",
                    "Error in command BinToDec: Overflow"}),
    NamedCase{});

TEST(TanAndAtn, EndTheProcessOnAFault) {
  for (const char* word : {"Tan", "Atn"}) {
    ProgramRun run;
    EXPECT_EQ(run.Run(Lines({"Variable x Decimal", std::string("x = " + std::string(word) + "(abc)").c_str(),
                             "Write \"after\""})),
              1)
        << word;
    EXPECT_TRUE(run.Written().empty());
    ASSERT_EQ(run.Boxes().size(), 1U);
    EXPECT_EQ(run.Boxes()[0], "box\tok\tcritical\tTamrix\tRun-time error '13':\\r\\n\\r\\nType mismatch\tOK");
  }
}

TEST(WindowSize, IsTheSurfaceInColumnsAndLinesRoundedHalfToEven) {
  CommandRun run;
  // 632 / 8 + 0.5 = 79.5 goes to the even 80; 373 / 14 + 0.5 = 27.1.
  EXPECT_EQ(run.Call("WindowWidth", "ignored"), "80");
  EXPECT_EQ(run.Call("WindowHeight", ""), "27");
  run.interpreter.Coordinates().colSize = 316;  // 2 + 0.5 goes to the even 2
  run.interpreter.Coordinates().linSize = 373;  // 1 + 0.5 goes to the even 2
  EXPECT_EQ(run.Call("WindowWidth", ""), "2");
  EXPECT_EQ(run.Call("WindowHeight", ""), "2");
}

TEST(Random, RunsFromZeroToNWithHalfAsManyAtTheEnds) {
  SeedRandom(12345);
  CommandRun run;
  std::array<int, 11> counts{};
  constexpr int kDraws = 22000;
  for (int i = 0; i < kDraws; ++i) {
    const int value = std::stoi(run.Call("Random", "10"));
    ASSERT_GE(value, 0);
    ASSERT_LE(value, 10);
    ++counts[static_cast<std::size_t>(value)];
  }
  // Inner values come about 2,200 times each, the ends about 1,100.
  for (std::size_t v = 1; v < 10; ++v) EXPECT_NEAR(counts[v], 2200, 250) << v;
  EXPECT_NEAR(counts[0], 1100, 200);
  EXPECT_NEAR(counts[10], 1100, 200);
}

class NumbersInBothLocales : public ::testing::TestWithParam<std::string> {};

// Results go into expressions in the regional form; StrVal and ConvStr keep
// the point whatever the settings.
TEST_P(NumbersInBothLocales, FollowTheSettingsWhereTheyShould) {
  ScopedRegional settings(GetParam());
  CommandRun run;
  EXPECT_EQ(run.Call("Abs", "-2.5"), Localised("2.5"));
  EXPECT_EQ(run.Call("Round", "2.675, 1"), Localised("2.7"));
  EXPECT_EQ(run.Call("StrVal", "\"2.5\""), Localised("2.5"));
  EXPECT_EQ(run.Call("StrVal", "\"2,5\""), "2");
  EXPECT_EQ(run.Call("Format", R"(1234567.891, "#,##0.00")"), Localised("\"1,234,567.89\""));
}

INSTANTIATE_TEST_SUITE_P(Numbers, NumbersInBothLocales, ::testing::ValuesIn(kPointAndComma), LocaleTestName);

}  // namespace
}  // namespace tamrix::testing
