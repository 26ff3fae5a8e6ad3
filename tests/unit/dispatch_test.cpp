#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "core/dispatcher.h"
#include "core/fault.h"
#include "core/keywords.h"
#include "core/text.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

TEST(KeywordListTest, HasTheLanguagesWordsInSearchOrder) {
  const std::string words =
      "JoinStr, Message, Write, Format, StrLen, SubStr, StrPos, OpenFile, OpenDB, AddRecord, AddIconSysTray, "
      "AddSysStartup, Wait, Random, WindowHeight, Exp, Trim, API, Atn, Round, Asc, UpdateRecord, DownFileFTP, "
      "ScrollBar, BinToDec, Box, DialogBox, Calendar, CaptureWindow, Chr, Call, Check, Circle, Cls, Combo, "
      "ConnectFTP, ConnectP2P, ConvStr, Copy, Cos, MkDir, DecToBin, UnCaptureWindow, DrawPictures, WeekDay, "
      "Directory, GetText, SendP2P, OutPort, ListenP2P, ButtonStyle, Event, DeleteRecord, ExtractFile, "
      "CloseFile, CloseDB, Picture, Fonts, Gradient, WriteFile, RecordSound, AnimatedGif, Hex, Time, Image, "
      "InsertFile, WindowWidth, ReadFile, ReadPoint, Inport, GetWinReg, GetString, CompactDB, Straight, Link, "
      "ClearWindow, Log, Mask, SystemMenu, MinimizeSysTray, Currency, Frame, ChangeIcon, ChangeWallpaper, "
      "Browser, NewWindow, OrderDB, Radio, Fix, Paint, UpFileFTP, Position, FindFile, FindDB, Printer, Sqr, "
      "Rep.TestEndPage, RGB, DeleteFile, RemoveSysStartup, RmDir, Rectangle, Label, SaveWinReg, SaveString, "
      "Sin, SeqStr, Sgn, RepStr, SQL, SizeFile, Tan, Timer, TestEmail, TestDate, TestMouse, DateAdd, DateDiff, "
      "KeyTest, Text, TotalRecordsDB, Transition, Abs, Int, StrVal, Var, Variable, Video, WebCam, RevDate, "
      "Button, Date, Day, Month, Year, Font, Icon, Window, ReadRecord, Point, Rep, Sound";
  Texts expected;
  std::istringstream stream(words);
  for (std::string word; std::getline(stream, word, ',');) expected.push_back(Trim(word));
  ASSERT_EQ(expected.size(), 142u);
  EXPECT_EQ(KeywordList(), expected);
}

TEST(KeywordListTest, ElevenKeywordsAreNumeric) {
  Texts numeric;
  for (const auto& word : KeywordList()) {
    if (IsNumericKeyword(Upper(word))) numeric.push_back(word);
  }
  EXPECT_EQ(numeric, (Texts{"Exp", "Atn", "Round", "Cos", "Fix", "Sqr", "Sin", "Tan", "Abs", "Int", "StrVal"}));
}

TEST(IsCommandWordTest, AcceptsKeywordsReservedPrefixesLabelsAndStrayOperators) {
  const std::pair<const char*, bool> cases[] = {
      {"Write", true},
      {"wRITE", true},
      {"Rep.TestEndPage", true},
      {"RemoveSysStartup", true},
      {"EndIf[0]", true},
      {"While[1]", true},
      {"iffy", true},
      {"ElseWhere", true},
      {"GOTOX", true},
      {"EndSub", true},
      {"EndFunction", true},
      {"Start:", true},
      {"x+", true},
      {"x-", true},
      {"ChrX", false},
      {"Cls()", false},
      {"Sub", false},
      {"RemoveSysStartyp", false},
      {"Rep.Add", false},
      {"", false},
  };
  for (const auto& [word, accepted] : cases) EXPECT_EQ(IsCommandWord(word), accepted) << word;
}

struct ArgumentSplit {
  const char* name;
  const char* text;
  bool splitAtEquals;
  Texts parts;  // the parts before the first empty one that follows them all
};

class ArgumentSplits : public ::testing::TestWithParam<ArgumentSplit> {};

TEST_P(ArgumentSplits, CutAtCommasOutsideLiterals) {
  Sandbox box;
  bool numeric = false;
  const auto parts = SplitArguments(box.interpreter, GetParam().text, 8, GetParam().splitAtEquals, numeric);
  ASSERT_EQ(parts.size(), 8u);
  const Texts used(parts.begin(), parts.begin() + static_cast<std::ptrdiff_t>(GetParam().parts.size()));
  EXPECT_EQ(used, GetParam().parts);
  for (std::size_t i = GetParam().parts.size(); i < parts.size(); ++i) EXPECT_EQ(parts[i], "") << i;
}

INSTANTIATE_TEST_SUITE_P(
    Dispatch, ArgumentSplits,
    ::testing::Values(ArgumentSplit{"Literals", "  a , \"b,c\" ,d  ", false, {"a", "\"b,c\"", "d"}},
                      ArgumentSplit{"AnEmptyPartInTheMiddle", "a,,b", false, {"a", "", "b"}},
                      ArgumentSplit{
                          "EqualsAsAPartOfItsOwn", "x = 5, \"a=b\"=y", true, {"x", "=", "5", "\"a=b\"", "=", "y"}},
                      ArgumentSplit{"EqualsKeptWhenNotAsked", "x = 5, y", false, {"x = 5", "y"}},
                      ArgumentSplit{"BracketsDoNotProtectCommas", "Abs(1, 2), 5", false, {"Abs(1", "2)", "5"}},
                      ArgumentSplit{"NoText", "", false, {}}),
    ByName());

TEST(SplitArgumentsTest, ProtectedCallsRunBeforeTheSplit) {
  Sandbox box;
  bool numeric = false;
  // RGB(1, 2, 3) is 1 + 2 * 256 + 3 * 65536.
  EXPECT_EQ(SplitArguments(box.interpreter, "RGB(1, 2, 3), 5", 3, false, numeric), (Texts{"197121", "5", ""}));
}

TEST(SplitArgumentsTest, OnePartMoreThanTheCallerHasRoomForIsAFault) {
  Sandbox box;
  bool numeric = false;
  EXPECT_EQ(SplitArguments(box.interpreter, "a,b", 2, false, numeric), (Texts{"a", "b"}));
  try {
    SplitArguments(box.interpreter, "a,b,c", 2, false, numeric);
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kSubscriptOutOfRange);
  }
}

TEST(RunCommandTest, TheChainThenEveryMatchingPrefixRuns) {
  Sandbox box;
  Dispatcher dispatcher;
  Texts calls;
  const auto recorder = [&calls](const char* result) {
    return [&calls, result](CommandCall& call) -> Value {
      calls.push_back(call.word + "(" + call.arguments + ")=" + result);
      return std::string(result);
    };
  };
  dispatcher.Register("ChrX", GuardForm::Command, recorder("chain"));
  dispatcher.Register("RepStr", GuardForm::Command, recorder("repstr"));
  dispatcher.RegisterPrefix("REP", "Rep", GuardForm::Command, recorder("rep"));
  dispatcher.RegisterPrefix("CHR", "Chr", GuardForm::Function, recorder("chr"));
  dispatcher.RegisterPrefix("PRINTER", "Printer", GuardForm::Command, recorder("printer"));

  const std::pair<const char*, const char*> words[] = {
      {"chrx", "chr"}, {"RepStr", "rep"}, {"Rep.Add", "rep"}, {"PrinterEnd", "printer"}, {"Nothing", ""},
  };
  for (const auto& [word, value] : words) {
    std::string arguments = "1";
    EXPECT_EQ(dispatcher.RunCommand(box.interpreter, word, arguments), Value(std::string(value))) << word;
  }
  EXPECT_EQ(calls, (Texts{"CHRX(1)=chain", "CHRX(1)=chr", "REPSTR(1)=repstr", "REPSTR(1)=rep", "REP.ADD(1)=rep",
                          "PRINTEREND(1)=printer"}));
  EXPECT_EQ(box.Boxes(), Texts{});
}

TEST(RunCommandTest, AHandlersFaultShowsItsGuardAndGivesEmpty) {
  Sandbox box("OK,Cancel");
  Dispatcher dispatcher;
  dispatcher.Register("Hex", GuardForm::Command, [](CommandCall&) -> Value { Throw(kOverflow); });
  dispatcher.Register("Int", GuardForm::Function, [](CommandCall&) -> Value { Throw(kTypeMismatch); });
  box.interpreter.State().errorPosition = "Editor: 0 Line: 9";
  std::string arguments;
  EXPECT_EQ(dispatcher.RunCommand(box.interpreter, "hex", arguments), Value(std::string()));
  EXPECT_FALSE(box.interpreter.State().stopFlag);
  EXPECT_EQ(dispatcher.RunCommand(box.interpreter, "INT", arguments), Value(std::string()));
  EXPECT_TRUE(box.interpreter.State().stopFlag);
  EXPECT_EQ(box.Boxes(),
            (Texts{QueryBoxLine("Editor: 0 Line: 9\\r\\nError in command Hex: Overflow", "OK"),
                   QueryBoxLine("Editor: 0 Line: 9\\r\\nError in function Int: Type mismatch", "Cancel")}));
}

TEST(StatementDispatchTest, WordsThatReachNoCommand) {
  ProgramRun run;
  run.Run(Lines({"Cls()", "ChrX 65", "Start:", "RemoveSysStartup", "RemoveSysStartyp", "Rep.Add \"x\"", "x+", "Cls"}));
  const std::string prefix = "\\r\\nError: variable undeclared: ";
  EXPECT_EQ(run.Boxes(), (Texts{QueryBoxLine("Editor: 0 Line: 1" + prefix + "Cls()"),
                                QueryBoxLine("Editor: 0 Line: 2" + prefix + "ChrX"),
                                QueryBoxLine("Editor: 0 Line: 5" + prefix + "RemoveSysStartyp")}));
  EXPECT_EQ(run.desktop.surface.clears, 1);
}

TEST(StatementDispatchTest, ChrInAnExpressionIsServedByThePrefixTest) {
  ProgramRun run;
  run.Run(Lines({"Variable s String", "s = Chr(65)", "Write s"}));
  EXPECT_EQ(run.Written(), Texts{"A"});
}

}  // namespace
}  // namespace tamrix::testing
