// The object frame through the Button command and the generic steps that
// every kind shares: entries, lookup, removal, properties, closing walks.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commands/object_events.h"
#include "commands/object_frame.h"
#include "core/object_closing.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

const ObjectFamily& Buttons(ProgramRun& run) { return run.interpreter.Objects().Family(ObjectKind::Button); }

HeadlessControl& ControlOf(ProgramRun& run, ObjectKind kind, std::size_t index) {
  return dynamic_cast<HeadlessControl&>(*run.interpreter.Objects().Family(kind).entries.at(index).control);
}
HeadlessControl& ButtonControlAt(ProgramRun& run, std::size_t index) {
  return ControlOf(run, ObjectKind::Button, index);
}

TEST(ObjectFrameTest, ASecondObjectOfTheSameNameGetsItsOwnEntryAndLookupsFindTheFirst) {
  ProgramRun run;
  run.Run(Lines({"Button B1, 2, 3", "Button B1, 2, 3", "Button b1.CAPTION = \"x\""}));
  ASSERT_EQ(Buttons(run).entries.size(), 2u);
  EXPECT_EQ(ButtonControlAt(run, 0).caption, "x");
  EXPECT_EQ(ButtonControlAt(run, 1).caption, "OK");
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(ObjectFrameTest, AFreedEntryIsTakenAgainWithANewInstanceAndANewTabIndex) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1", "Button B1, 2, 3", "Button C, 3, 1", "Button B1.Remove", "Button B2, 2, 3"}));
  ASSERT_EQ(Buttons(run).entries.size(), 3u);
  EXPECT_EQ(Buttons(run).entries[1].name, "B2");
  const auto& loaded = run.desktop.controls.loaded;
  ASSERT_EQ(loaded.size(), 4u);
  EXPECT_TRUE(loaded[1]->unloaded);  // the removed B1
  EXPECT_EQ(&ButtonControlAt(run, 1), loaded[3].get());
  EXPECT_EQ(ButtonControlAt(run, 0).tabIndex, 0);
  EXPECT_EQ(ButtonControlAt(run, 2).tabIndex, 2);
  EXPECT_EQ(ButtonControlAt(run, 1).tabIndex, 3);
}

TEST(ObjectFrameTest, RemovingEntryZeroHidesItsTemplateWithoutUnloadingIt) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1", "Button A.Remove"}));
  HeadlessControl& first = ButtonControlAt(run, 0);
  EXPECT_FALSE(first.visible);
  EXPECT_FALSE(first.unloaded);
  EXPECT_EQ(Buttons(run).entries[0].name, "");
  EXPECT_EQ(Buttons(run).entries[0].owner, "");
}

TEST(ObjectFrameTest, RemoveIsFoundAnywhereInTheFirstElementInExactlyThatSpelling) {
  ProgramRun run;
  run.Run(Lines({"Button Removed1, 1, 1", "Button Other, 2, 1", "Button Other.REMOVE", "Button Removed1.CAPTION = \"x\""}));
  EXPECT_EQ(Buttons(run).entries[0].name, "");
  EXPECT_EQ(ButtonControlAt(run, 0).caption, "OK");
  EXPECT_EQ(Buttons(run).entries[1].name, "Other");
}

TEST(ObjectFrameTest, ADollarNameStandsForTheStringVariableOfThatName) {
  ProgramRun run;
  run.Run(Lines({"Var $n String", "$n = \"B1\"", "Button B0, 1, 1", "Button B1, 2, 3", "Button $n.CAPTION = \"x\""}));
  EXPECT_EQ(ButtonControlAt(run, 0).caption, "OK");
  EXPECT_EQ(ButtonControlAt(run, 1).caption, "x");
}

TEST(ObjectFrameTest, AnUndeclaredDollarNameShowsTheUnreadableVariableBoxAndChangesNothing) {
  ProgramRun run;
  run.Run(Lines({"Button B1, 2, 3", "Button B1.Remove", "Button $n.CAPTION = \"x\""}));
  EXPECT_EQ(run.Boxes(), Texts{StopBoxLine("Editor: 0 Line: 3\\r\\nCan't read $n: undeclared variable!")});
  EXPECT_EQ(ButtonControlAt(run, 0).caption, "OK");  // the free entry is not taken for the empty name
}

TEST(ObjectFrameTest, UnknownNamesAndPropertiesAreSilent) {
  ProgramRun run;
  run.Run(Lines({"Button B1, 2, 3", "Button Missing.ENABLED = FALSE", "Button B1.NOSUCHWORD = 1",
                 "Button Missing.Remove"}));
  EXPECT_TRUE(run.Boxes().empty());
  EXPECT_TRUE(ButtonControlAt(run, 0).enabled);
  EXPECT_EQ(Buttons(run).entries[0].name, "B1");
}

struct TruthCase {
  const char* property;
  const char* value;
  bool before;
  bool after;
};

class TruthProperties : public ::testing::TestWithParam<TruthCase> {};

bool TruthOf(const HeadlessControl& c, const std::string& property) {
  if (property == "ENABLED") return c.enabled;
  if (property == "VISIBLE") return c.visible;
  return property == "BOLD" ? c.bold : c.italic;
}

TEST_P(TruthProperties, SetClearOrLeaveTheControl) {
  const TruthCase& c = GetParam();
  ProgramRun run;
  const std::string start = std::string("Button B1.") + c.property + " = " + (c.before ? "TRUE" : "FALSE");
  const std::string change = std::string("Button B1.") + c.property + " = " + c.value;
  run.Run(Lines({"Button B1, 2, 3", start.c_str(), change.c_str()}));
  EXPECT_EQ(TruthOf(ButtonControlAt(run, 0), c.property), c.after);
  EXPECT_TRUE(run.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    ObjectFrameTest, TruthProperties,
    ::testing::Values(TruthCase{"ENABLED", "FALSE", true, false}, TruthCase{"ENABLED", "true", false, true},
                      TruthCase{"ENABLED", "YES", false, false}, TruthCase{"ENABLED", "YES", true, true},
                      TruthCase{"ENABLED", "1", true, true}, TruthCase{"VISIBLE", "False", true, false},
                      TruthCase{"VISIBLE", "maybe", false, false}, TruthCase{"BOLD", "TRUE", false, true},
                      TruthCase{"BOLD", "YES", true, false}, TruthCase{"ITALIC", "-1", true, false},
                      TruthCase{"ITALIC", "\"true\"", false, true}));

TEST(ObjectFrameTest, ANameHoldingVisibleIsTakenAsTheVisibleProperty) {
  ProgramRun run;
  run.Run(Lines({"Button Invisible1, 2, 3", "Button Invisible1.CAPTION = FALSE", "Button Invisible1.CAPTION = \"x\""}));
  EXPECT_FALSE(ButtonControlAt(run, 0).visible);
  EXPECT_EQ(ButtonControlAt(run, 0).caption, "OK");
}

struct PropertyNameCase {
  const char* element0;
  const char* name;
};

class PropertyNames : public ::testing::TestWithParam<PropertyNameCase> {};

TEST_P(PropertyNames, RunFromTheFirstDotToTheFirstBlank) {
  EXPECT_EQ(PropertyName(GetParam().element0), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(ObjectFrameTest, PropertyNames,
                         ::testing::Values(PropertyNameCase{"B1.caption", ".CAPTION"},
                                           PropertyNameCase{"I.WRITE \"a b\"", ".WRITE"},
                                           PropertyNameCase{"a.b.c", ".B.C"}, PropertyNameCase{"x.", "."},
                                           PropertyNameCase{"plain", ""}));

TEST(ObjectFrameTest, EveryFocusableObjectTakesTheNextTabIndexOfOneSharedCounter) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1", "Button B, 1, 1"}));
  ObjectTable& objects = run.interpreter.Objects();
  EXPECT_EQ(ButtonControlAt(run, 1).tabIndex, 1);
  // A kind that can't take the focus leaves the counter alone.
  const int label = CreateObject(run.interpreter, ObjectKind::Label, "L");
  FinishObject(run.interpreter, ObjectKind::Label, label);
  EXPECT_EQ(ControlOf(run, ObjectKind::Label, 0).tabIndex, -1);
  const int check = CreateObject(run.interpreter, ObjectKind::Check, "C");
  FinishObject(run.interpreter, ObjectKind::Check, check);
  EXPECT_EQ(ControlOf(run, ObjectKind::Check, 0).tabIndex, 2);
  EXPECT_EQ(objects.TakeTabIndex(), 3);
}

TEST(ObjectFrameTest, ObjectsBelongToTheCurrentWindowAndMainWindowKindsAreHandedOver) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1"}));
  run.interpreter.Windows().SetCurrentName("W");
  const int button = CreateObject(run.interpreter, ObjectKind::Button, "B");
  const int label = CreateObject(run.interpreter, ObjectKind::Label, "L");
  EXPECT_EQ(Buttons(run).entries[static_cast<std::size_t>(button)].owner, "W");
  EXPECT_EQ(ControlOf(run, ObjectKind::Button, 1).window, "W");
  EXPECT_EQ(run.desktop.controls.loaded.back()->window, "W");  // loaded on PARENT, then moved
  EXPECT_EQ(run.interpreter.Objects().Family(ObjectKind::Label).entries[static_cast<std::size_t>(label)].owner, "W");
}

TEST(ObjectFrameTest, ValueVariablesAreDeclaredWithTheObjectAndGoWithRemoval) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1"}));
  Interpreter& in = run.interpreter;
  CreateObject(in, ObjectKind::Text, "T1");
  CreateObject(in, ObjectKind::Currency, "Cu");
  CreateObject(in, ObjectKind::Box, "Bx");
  EXPECT_GE(in.Variables().VarIndex("t1.txt"), 0);
  EXPECT_EQ(in.Variables().LastVarType(), VarType::String);
  EXPECT_GE(in.Variables().VarIndex("CU.VALUE"), 0);
  EXPECT_EQ(in.Variables().LastVarType(), VarType::Decimal);
  EXPECT_LT(in.Variables().VarIndex("Bx.Txt"), 0);  // a Box declares it when activated
  RemoveObject(in, ObjectKind::Text, 0);
  EXPECT_LT(in.Variables().VarIndex("T1.Txt"), 0);
}

TEST(ObjectFrameTest, ClosingADynamicWindowFreesItsObjectsButLeavesNumericValuesDeclared) {
  ProgramRun run;
  run.Run(Lines({"Button Main1, 1, 1"}));
  Interpreter& in = run.interpreter;
  CreateObject(in, ObjectKind::Label, "MainLabel");
  run.interpreter.Windows().SetCurrentName("W");
  CreateObject(in, ObjectKind::Button, "Wb");
  CreateObject(in, ObjectKind::Check, "Ch");
  CreateObject(in, ObjectKind::Text, "Tx");
  CreateObject(in, ObjectKind::Label, "Lb");

  CloseWindowObjects(in, "W");
  EXPECT_EQ(Buttons(run).entries[0].name, "Main1");
  EXPECT_EQ(Buttons(run).entries[1].name, "");
  EXPECT_EQ(Buttons(run).entries[1].control, nullptr);
  EXPECT_FALSE(ControlOf(run, ObjectKind::Check, 0).visible);  // entry 0 stays, hidden
  EXPECT_EQ(in.Objects().Family(ObjectKind::Check).entries[0].name, "");
  EXPECT_GE(in.Variables().VarIndex("Ch.Value"), 0);  // removed as "Ch.Valor"
  EXPECT_LT(in.Variables().VarIndex("Tx.Txt"), 0);
  EXPECT_EQ(in.Objects().Family(ObjectKind::Label).entries[0].name, "MainLabel");
  EXPECT_EQ(run.desktop.controls.loaded.back()->window, "PARENT");  // the label went home first
  EXPECT_TRUE(run.desktop.controls.loaded.back()->unloaded);
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(ObjectFrameTest, ShutdownEmptiesEveryFamilyAndRemovesTheRightVariables) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1", "Button B, 2, 1"}));
  Interpreter& in = run.interpreter;
  CreateObject(in, ObjectKind::Check, "Ch");
  ShutdownObjects(in);
  EXPECT_EQ(Buttons(run).entries[0].name, "");
  EXPECT_FALSE(ButtonControlAt(run, 0).visible);
  EXPECT_TRUE(run.desktop.controls.loaded[1]->unloaded);
  EXPECT_LT(in.Variables().VarIndex("Ch.Value"), 0);
}

TEST(ObjectFrameTest, ParentPlacesTheControlIntoTheNamedImage) {
  ProgramRun run;
  run.Run(Lines({"Button B1, 1, 1"}));
  CreateObject(run.interpreter, ObjectKind::Image, "Pic1");
  std::string arguments = "B1.PARENT = \"PIC1\"";
  run.interpreter.Commands().RunCommand(run.interpreter, "Button", arguments);
  EXPECT_EQ(ButtonControlAt(run, 0).placedInto, &ControlOf(run, ObjectKind::Image, 0));
  ButtonControlAt(run, 0).placedInto = nullptr;
  arguments = "B1.PARENT = \"Nowhere\"";
  run.interpreter.Commands().RunCommand(run.interpreter, "Button", arguments);
  EXPECT_EQ(ButtonControlAt(run, 0).placedInto, nullptr);
}

TEST(ObjectFrameTest, AFaultEndsTheCommandWithTheFramesBoxSeparatedByACarriageReturn) {
  ProgramRun run("OK,Cancel");
  run.Run(Lines({"Button B1, 2, 3", "Button B1.TABINDEX = 40000", "Button B1.VISIBLE = FALSE", "Button B1.SETFOCUS",
                 "Button B1.CAPTION = \"never\""}));
  EXPECT_EQ(run.Boxes(), (Texts{QueryBoxLine("Editor: 0 Line: 2\\rError in command Button: Overflow", "OK"),
                                QueryBoxLine("Editor: 0 Line: 4\\rError in command Button: Invalid procedure call or "
                                             "argument",
                                             "Cancel")}));
  EXPECT_EQ(ButtonControlAt(run, 0).caption, "OK");  // Cancel stopped the run
}

TEST(ObjectFrameTest, ATwelfthArgumentIsASubscriptFault) {
  ProgramRun run;
  run.Run(Lines({"Button B1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11"}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 1\\rError in command Button: Subscript out of range")});
  EXPECT_TRUE(Buttons(run).entries.empty());
}

TEST(ObjectEventsTest, AClickLeavesTheNameAndOnTheMainWindowTheIndex) {
  ProgramRun run;
  run.Run(Lines({"Button A, 1, 1", "Button B, 2, 1"}));
  Interpreter& in = run.interpreter;
  ButtonClicked(in, 1, true);
  EXPECT_EQ(in.Mail().clickedButton, "B");
  EXPECT_EQ(TextOf(in.Variables().GetVariable("TestButton")), "B");
  EXPECT_EQ(TextOf(in.Variables().GetVariable("RefIndex")), "1");
  ButtonClicked(in, 0, false);
  EXPECT_EQ(TextOf(in.Variables().GetVariable("TestButton")), "A");
  EXPECT_EQ(TextOf(in.Variables().GetVariable("RefIndex")), "1");  // untouched on other windows
  ObjectFocusChanged(in, ObjectKind::Button, 0, true);
  ObjectFocusChanged(in, ObjectKind::Button, 1, false);
  EXPECT_EQ(TextOf(in.Variables().GetVariable("GotFocus")), "A");
  EXPECT_EQ(TextOf(in.Variables().GetVariable("LostFocus")), "B");
}

TEST(ObjectEventsTest, WaitClickButtonGivesTheLastOfTwoClicksThatCameTogether) {
  ProgramRun run;
  int pumps = 0;
  run.desktop.onPump = [&] {
    if (++pumps != 3) return;
    ButtonClicked(run.interpreter, 0, true);
    ButtonClicked(run.interpreter, 1, true);
  };
  run.Run(Lines({"Button One, 1, 1", "Button Two, 2, 1", "Wait CLICKBUTTON", "Write RetStr, \" \", RefIndex"}));
  EXPECT_EQ(run.Written(), Texts{"Two 1"});
}

}  // namespace
}  // namespace tamrix::testing
