#include <gtest/gtest.h>

#include "library_test_support.h"

namespace tamrix::testing {
namespace {

struct CommandCase {
  const char* name;
  const char* word;
  const char* arguments;
  const char* result;  // as the expression receives it, quotes and all
};

class StringCommandResults : public ::testing::TestWithParam<CommandCase> {};

TEST_P(StringCommandResults, GiveTheirResultInItsForm) {
  CommandRun run;
  EXPECT_EQ(run.Call(GetParam().word, GetParam().arguments), GetParam().result);
  EXPECT_EQ(run.BoxText(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Strings, StringCommandResults,
    ::testing::Values(
        CommandCase{"JoinMixesTextsAndNumbers", "JoinStr", R"("a", 1, "b")", R"("a1b")"},
        CommandCase{"JoinStopsAtAHole", "JoinStr", R"("a",, "b")", R"("a")"},
        CommandCase{"JoinOfNothing", "JoinStr", "", R"("")"},
        CommandCase{"SubStrWithLength", "SubStr", R"("abcdef", 2, 3)", R"("bcd")"},
        CommandCase{"SubStrToTheEnd", "SubStr", R"("abcdef", 5)", R"("ef")"},
        CommandCase{"SubStrBehindTheEnd", "SubStr", R"("abc", 4)", R"("")"},
        CommandCase{"SubStrLengthPastTheEnd", "SubStr", R"("abc", 2, 10)", R"("bc")"},
        CommandCase{"SubStrOfLengthZero", "SubStr", R"("abc", 1, 0)", R"("")"},
        CommandCase{"StrLenCountsCharacters", "StrLen", R"("a b c")", "5"},
        CommandCase{"StrLenOfEmpty", "StrLen", R"("")", "0"},
        CommandCase{"TrimStripsBlanks", "Trim", R"("  a b  ")", R"("a b")"},
        CommandCase{"TrimKeepsTabs", "Trim", "\"\ta \"", "\"\ta\""},
        CommandCase{"TrimOfBlanksOnly", "Trim", R"("    ")", R"("")"},
        CommandCase{"SeqStrRepeatsFirstCharacter", "SeqStr", R"(3, "xy")", R"("xxx")"},
        CommandCase{"SeqStrTakesANumberAsCode", "SeqStr", "3, 65", R"("AAA")"},
        CommandCase{"SeqStrOfNone", "SeqStr", R"(0, "x")", R"("")"},
        CommandCase{"StrPosForward", "StrPos", R"("abcabc", "bc")", "2"},
        CommandCase{"StrPosFromStart", "StrPos", R"("abcabc", "bc", 3)", "5"},
        CommandCase{"StrPosAbsent", "StrPos", R"("abc", "x")", "0"},
        CommandCase{"StrPosStartBehindText", "StrPos", R"("abc", "c", 4)", "0"},
        CommandCase{"StrPosCaseCounts", "StrPos", R"("abc", "B")", "0"},
        CommandCase{"StrPosEmptySearchGivesStart", "StrPos", R"("abc", "", 2)", "2"},
        CommandCase{"StrPosReverseFromEnd", "StrPos", R"("abcabc", "bc", "REVERSE")", "5"},
        CommandCase{"StrPosReverseAnyCase", "StrPos", R"("abcabc", "bc", "reverse", 4)", "2"},
        CommandCase{"StrPosReverseMustEndBeforeStart", "StrPos", R"("abcabc", "bc", "REVERSE", 2)", "0"},
        CommandCase{"ConvStrUsesPoint", "ConvStr", "2.5", R"("2.5")"},
        CommandCase{"ConvStrDropsLeadingZero", "ConvStr", "0.5", R"(".5")"},
        CommandCase{"ConvStrOfNegative", "ConvStr", "-3", R"("-3")"},
        CommandCase{"ChrGivesOneCharacter", "Chr", "65", R"("A")"},
        CommandCase{"ChrOfQuote", "Chr", "34", R"(""")"},
        CommandCase{"AscOfFirstCharacter", "Asc", R"("AB")", "65"},
        CommandCase{"AscOfAccentedLetter", "Asc", "\"\xE9\"", "233"},
        CommandCase{"EmailPasses", "TestEmail", R"("ab@cd.ef")", R"("TRUE")"},
        CommandCase{"EmailTooShort", "TestEmail", R"("a@b.c")", R"("FALSE")"},
        CommandCase{"EmailEndingInAt", "TestEmail", R"("aaaa.bbb@")", R"("FALSE")"},
        CommandCase{"EmailOfDotsPasses", "TestEmail", R"(".....@x")", R"("TRUE")"},
        CommandCase{"EmailWithTwoAts", "TestEmail", R"("a@b@cd.ef")", R"("FALSE")"},
        CommandCase{"EmailStartingWithAt", "TestEmail", R"("@abcd.ef")", R"("FALSE")"},
        CommandCase{"EmailWithoutDot", "TestEmail", R"("abcd@efgh")", R"("FALSE")"},
        CommandCase{"EmailShortWithoutBlanks", "TestEmail", R"("  a@b.cd  ")", R"("FALSE")"}),
    NamedCase{});

struct FailureCase {
  const char* name;
  const char* word;
  const char* arguments;
  const char* description;
};

class StringCommandFailures : public ::testing::TestWithParam<FailureCase> {};

// The box shows the error position (empty here), one carriage return, the
// command's words and the fault's description; the result is empty.
TEST_P(StringCommandFailures, ShowTheErrorBoxAndGiveNothing) {
  CommandRun run;
  EXPECT_EQ(run.Call(GetParam().word, GetParam().arguments), "");
  EXPECT_EQ(run.BoxText(),
            std::string("\\rError in command ") + GetParam().word + ": " + GetParam().description);
}

INSTANTIATE_TEST_SUITE_P(
    Strings, StringCommandFailures,
    ::testing::Values(
        FailureCase{"SubStrFromZero", "SubStr", R"("abc", 0)", "Invalid procedure call or argument"},
        FailureCase{"SubStrNegativeLength", "SubStr", R"("abc", 1, -1)", "Invalid procedure call or argument"},
        FailureCase{"SubStrStartBeyond16Bits", "SubStr", R"("abc", 40000)", "Overflow"},
        FailureCase{"SeqStrOfEmptyText", "SeqStr", R"(3, "")", "Invalid procedure call or argument"},
        FailureCase{"SeqStrNegativeCount", "SeqStr", R"(-1, "a")", "Invalid procedure call or argument"},
        FailureCase{"ChrAbove255", "Chr", "256", "Invalid procedure call or argument"},
        FailureCase{"ChrBelowZero", "Chr", "-1", "Invalid procedure call or argument"},
        FailureCase{"AscOfEmptyText", "Asc", R"("")", "Invalid procedure call or argument"},
        FailureCase{"StrPosWordAsStart", "StrPos", R"("abc", "b", "xyz")", "Type mismatch"},
        FailureCase{"StrPosStartZero", "StrPos", R"("abc", "b", 0)", "Invalid procedure call or argument"},
        FailureCase{"ConvStrOfText", "ConvStr", R"("abc")", "Type mismatch"}),
    NamedCase{});

TEST(JoinStr, TakesAHundredArgumentsAndNoMore) {
  std::string hundred = "1";
  for (int i = 1; i < 100; ++i) hundred += ", 1";
  CommandRun run;
  EXPECT_EQ(run.Call("JoinStr", hundred), "\"" + std::string(100, '1') + "\"");
  EXPECT_EQ(run.Call("JoinStr", hundred + ", 1"), "");
  EXPECT_EQ(run.BoxText(), "\\rError in command JoinStr: Subscript out of range");
}

TEST(ChrInAnExpression, IsReachedByThePrefixTest) {
  ProgramRun run;
  run.Run(Lines({"Variable s String", "s = Chr(72) & Chr(105)", "Write s", "Write Chr(34)"}));
  EXPECT_EQ(run.Written(), (std::vector<std::string>{"Hi", "\""}));
}

TEST(ErrorBox, CancelStopsTheProgram) {
  ProgramRun run("Cancel");
  run.Run(Lines({"Write SubStr(\"abc\", 0)", "Write \"after\""}));
  EXPECT_EQ(run.Written(), (std::vector<std::string>{""}));
  ASSERT_EQ(run.Boxes().size(), 1U);
  EXPECT_EQ(run.Boxes()[0],
            "box\tokcancel\tnone\tTamrix\tEditor: 0 Line: 1\\rError in command SubStr: "
            "Invalid procedure call or argument\tCancel");
}

struct RepStrCase {
  const char* name;
  const char* arguments;  // behind the variable
  const char* result;
};

class RepStrResults : public ::testing::TestWithParam<RepStrCase> {};

TEST_P(RepStrResults, OverwriteInPlaceKeepingTheLength) {
  CommandRun run;
  run.interpreter.Variables().DeclareScalar("s", "String");
  run.interpreter.Variables().SetVariable("s", std::string("abcdef"), true);
  EXPECT_EQ(run.Call("RepStr", std::string("s, ") + GetParam().arguments), "");
  EXPECT_EQ(TextOf(run.interpreter.Variables().GetVariable("s")), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Strings, RepStrResults,
                         ::testing::Values(RepStrCase{"AllCharacters", R"("XY", 2)", "aXYdef"},
                                           RepStrCase{"LimitedByLength", R"("XYZ", 2, 1)", "aXcdef"},
                                           RepStrCase{"LengthZeroMeansAll", R"("XYZ", 2, 0)", "aXYZef"},
                                           RepStrCase{"NothingBehindTheEnd", R"("XYZ", 5)", "abcdXY"},
                                           RepStrCase{"AtTheLastCharacter", R"("XYZ", 6)", "abcdeX"}),
                         NamedCase{});

TEST(RepStr, RefusesAStartOutsideTheText) {
  for (const char* start : {"0", "7"}) {
    CommandRun run;
    run.interpreter.Variables().DeclareScalar("s", "String");
    run.interpreter.Variables().SetVariable("s", std::string("abcdef"), true);
    run.Call("RepStr", std::string("s, \"X\", ") + start);
    EXPECT_EQ(run.BoxText(), "\\rError in command RepStr: Invalid procedure call or argument") << start;
    EXPECT_EQ(TextOf(run.interpreter.Variables().GetVariable("s")), "abcdef");
  }
}

class JoinStrNumbers : public ::testing::TestWithParam<std::string> {};

TEST_P(JoinStrNumbers, JoinInTheVariableStoresForm) {
  ScopedRegional settings(GetParam());
  CommandRun run;
  EXPECT_EQ(run.Call("JoinStr", "2.5, \"|\", 10"), "\"" + Localised("2.5") + "|10\"");
  EXPECT_EQ(run.Call("ConvStr", "2.5"), "\"2.5\"");
}

INSTANTIATE_TEST_SUITE_P(Strings, JoinStrNumbers, ::testing::ValuesIn(kPointAndComma), LocaleTestName);

}  // namespace
}  // namespace tamrix::testing
