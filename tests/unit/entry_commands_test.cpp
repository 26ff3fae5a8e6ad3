// The entry and label objects through the object frame: their create forms,
// the properties that differ from kind to kind, the refusals with their
// error boxes, Timer2's mirror of the texts, and what the controls' events
// write into the variables.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commands/object_events.h"
#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

HeadlessControl& At(ProgramRun& run, ObjectKind kind, std::size_t index = 0) {
  return dynamic_cast<HeadlessControl&>(*run.interpreter.Objects().Family(kind).entries.at(index).control);
}

std::string Text(ProgramRun& run, const std::string& name) {
  return TextOf(run.interpreter.Variables().GetVariable(name));
}

double Number(ProgramRun& run, const std::string& name) {
  return NumberOf(run.interpreter.Variables().GetVariable(name));
}

std::string ErrorBox(int line, const std::string& kind, const std::string& description) {
  return QueryBoxLine("Editor: 0 Line: " + std::to_string(line) + "\\rError in command " + kind + ": " + description);
}

struct TextShape {
  const char* statement;
  bool multiLine;
  int width;   // 0: the template's
  int height;  // 0: the template's
};

class TextShapes : public ::testing::TestWithParam<TextShape> {};

TEST_P(TextShapes, FollowTheLineCount) {
  ProgramRun run;
  run.Run(Lines({GetParam().statement}));
  const HeadlessControl& text = At(run, ObjectKind::Text);
  EXPECT_EQ(text.multiLine, GetParam().multiLine);
  EXPECT_EQ(run.interpreter.Objects().Family(ObjectKind::Text).entries[0].multiLine, GetParam().multiLine);
  EXPECT_EQ(text.width, GetParam().width);
  EXPECT_EQ(text.height, GetParam().height);
  EXPECT_TRUE(text.visible);
  EXPECT_EQ(text.tabIndex, 0);
  EXPECT_TRUE(run.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(EntryTest, TextShapes,
                         ::testing::Values(TextShape{"Text T, 1, 1, 20, 3", true, 160, 42},
                                           TextShape{"Text T, 1, 1, 20, 2", false, 160, 28},
                                           TextShape{"Text T, 1, 1, 20, 1", false, 160, 0},
                                           TextShape{"Text T, 1, 1, 20", false, 160, 0},
                                           TextShape{"Text T, 1, 1", false, 0, 0},
                                           TextShape{"Text T, 1, 1, 20, 8", true, 160, 112}));

TEST(EntryTest, TxtWritesTheVariableAtOnceAndTimer2OverwritesAnAssignment) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1, 20", "Text T.TXT = \"abc\"", "T.Txt = \"x\""}));
  EXPECT_EQ(At(run, ObjectKind::Text).text, "abc");
  EXPECT_EQ(Text(run, "T.Txt"), "x");
  run.desktop.timers.FireRunning();
  EXPECT_EQ(Text(run, "T.Txt"), "abc");
  // A user's typing reaches the variable at the next tick.
  At(run, ObjectKind::Text).text = "typed";
  run.desktop.timers.FireRunning();
  EXPECT_EQ(Text(run, "t.txt"), "typed");
}

TEST(EntryTest, Timer2StopsWhenNoTextHasANameLeft) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1, 20", "Text T.Remove"}));
  const int before = run.desktop.timers.RunningCount();
  run.desktop.timers.FireRunning();
  EXPECT_EQ(run.desktop.timers.RunningCount(), before - 1);
}

TEST(EntryTest, SelectTakesAllOrAOneBasedRangeWithItsLooks) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1, 20, 5", "Text T.TXT = \"Hello world\"", "Text T.SELECT",
                 "Write T.Txt"}));
  EXPECT_EQ(At(run, ObjectKind::Text).selStart, 0);
  EXPECT_EQ(At(run, ObjectKind::Text).selLength, 11);

  ProgramRun looks;
  looks.Run(Lines({"Text T, 1, 1, 20, 5", "Text T.SELECT = 7, 5, \"Arial\", 14, \"bold\", 255"}));
  const HeadlessControl& text = At(looks, ObjectKind::Text);
  EXPECT_EQ(text.selStart, 6);
  EXPECT_EQ(text.selLength, 5);
  EXPECT_EQ(text.look.fontName, "Arial");
  EXPECT_EQ(text.look.fontSize, 14);
  EXPECT_EQ(text.look.bold, true);
  EXPECT_EQ(text.look.colour, 255);

  ProgramRun partial;
  partial.Run(Lines({"Text T, 1, 1, 20, 5", "Text T.SELECT = 1, 2, , , \"italic\""}));
  EXPECT_FALSE(At(partial, ObjectKind::Text).look.fontName.has_value());
  EXPECT_EQ(At(partial, ObjectKind::Text).look.bold, false);
}

TEST(EntryTest, RefusedTextPropertiesEndInTheErrorBox) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1, 20", "Text T.SELECT = 0, 2", "Text T.MAX = -1", "Text T.SELECT = 1, 1, \"Arial\"",
                 "Text T.TEXTRTF = \"x\"", "Text T.RIGHTMARGIN = 3", "Text T.ALIGNMENT = 7", "Text T.CURSORPOS = -2",
                 "Write \"on\""}));
  EXPECT_EQ(run.Boxes(), (Texts{ErrorBox(2, "Text", "Invalid property value"),
                                ErrorBox(3, "Text", "Invalid property value"),
                                ErrorBox(4, "Text", "Object doesn't support this property or method"),
                                ErrorBox(5, "Text", "Object doesn't support this property or method"),
                                ErrorBox(6, "Text", "Object doesn't support this property or method"),
                                ErrorBox(7, "Text", "Invalid property value"),
                                ErrorBox(8, "Text", "Invalid property value")}));
  EXPECT_EQ(run.Written(), Texts{"on"});
  // A start beyond the text is the control's to take to the end.
  ProgramRun beyond;
  beyond.Run(Lines({"Text T, 1, 1, 20", "Text T.SELECT = 50, 3"}));
  EXPECT_TRUE(beyond.Boxes().empty());
  EXPECT_EQ(At(beyond, ObjectKind::Text).selStart, 49);
}

TEST(EntryTest, MultiLineWordsReachTheRichTextBox) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1, 20, 4", "Text T.TEXTRTF = \"{\\rtf1 x}\"", "Text T.RIGHTMARGIN = 10",
                 "Text T.FORECOLOR = 255", "Text T.MAX = 12", "Text T.CURSORPOS = 3", "Text T.ALIGNMENT = 2",
                 "Text T.TXT = \"abc\"", "Var R String", "R = Text(T.TEXTRTF)", "Write R"}));
  const HeadlessControl& text = At(run, ObjectKind::Text);
  EXPECT_EQ(text.rich, "{\\rtf1 x}");
  EXPECT_EQ(text.rightMargin, 80);
  // The whole text takes the colour; the selection is left empty.
  EXPECT_EQ(text.look.colour, 255);
  EXPECT_EQ(text.selLength, 0);
  EXPECT_EQ(text.foreColor, 0);
  EXPECT_EQ(text.maxLength, 12);
  EXPECT_EQ(text.cursor, 3);
  EXPECT_EQ(text.focusTaken, 1);
  EXPECT_EQ(text.alignment, 2);
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(EntryTest, NumericWritesItsTagWithADigitZero) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1, 20", "Text T.NUMERIC = TRUE"}));
  EXPECT_EQ(At(run, ObjectKind::Text).tag, "NUMERIC0");
  ProgramRun off;
  off.Run(Lines({"Text T, 1, 1, 20", "Text T.NUMERIC = TRUE", "Text T.NUMERIC = YES"}));
  EXPECT_EQ(At(off, ObjectKind::Text).tag, "");
}

TEST(EntryTest, AMaskShowsItsPatternAndTakesItBackForAnEmptyText) {
  ProgramRun run;
  run.Run(Lines({"Mask M, \"##/##\", 1, 1, 10", "Write M.Txt", "Mask M.TXT = \"12/34\"", "Write M.Txt",
                 "Mask M.TXT = \"\"", "Write M.Txt", "Mask M.TXT = \"1/234\"", "Write M.Txt", "Mask M.MASK = \"(###)\"",
                 "Mask M.HEIGHT = 2"}));
  EXPECT_EQ(run.Written(), (Texts{"__/__", "12/34", "__/__", "__/__"}));
  EXPECT_EQ(run.Boxes(), Texts{ErrorBox(7, "Mask", "Invalid property value")});
  EXPECT_EQ(At(run, ObjectKind::Mask).text, "(___)");
  EXPECT_EQ(At(run, ObjectKind::Mask).width, 80);
  EXPECT_EQ(At(run, ObjectKind::Mask).height, 28);
}

TEST(EntryTest, CurrencyTakesItsValueAndDecimals) {
  ProgramRun run;
  run.Run(Lines({"Currency C, 1, 1, 12, 1234.5", "Currency D, 2, 1, 12", "Currency C.DECIMALPLACES = 3",
                 "Currency D.VALUE = 7.25", "Currency D.HEIGHT = 2"}));
  EXPECT_EQ(At(run, ObjectKind::Currency, 0).number, 1234.5);
  EXPECT_EQ(At(run, ObjectKind::Currency, 0).decimals, 3);
  EXPECT_EQ(At(run, ObjectKind::Currency, 1).number, 7.25);
  EXPECT_EQ(At(run, ObjectKind::Currency, 1).changes, 2);
  EXPECT_EQ(At(run, ObjectKind::Currency, 1).height, 28);
}

TEST(EntryTest, CalendarReadsItsDateBackIntoTheVariable) {
  ProgramRun run;
  run.Run(Lines({"Calendar K, 1, 1", "Write K.Txt", "Calendar K.TXT = \"25/12/2024\"", "Write K.Txt",
                 "Calendar K.TXT = \"1/1/1700\"", "Calendar K.TXT = \"soon\"", "Write K.Txt"}));
  EXPECT_EQ(run.Written(), (Texts{"15/03/2023", "25/12/2024", "25/12/2024"}));
  EXPECT_EQ(run.Boxes(), (Texts{ErrorBox(5, "Calendar", "Invalid property value"),
                                ErrorBox(6, "Calendar", "Type mismatch")}));
}

TEST(EntryTest, ChecksAndRadiosFitTheirCaptionAndRaiseTheirClickOnlyWhenSet) {
  ProgramRun run;
  run.Run(Lines({"Check C, 1, 1, \"Paid\", 1", "Radio R, 2, 1, \"A\"", "Write C.Value", "Radio R.VALUE = 5",
                 "Check C.VALUE = 3", "Check C.VALUE = 0"}));
  EXPECT_EQ(run.Written(), Texts{"0"});
  EXPECT_EQ(At(run, ObjectKind::Check).fitExtra, 25);
  EXPECT_EQ(At(run, ObjectKind::Check).caption, "Paid");
  EXPECT_EQ(At(run, ObjectKind::Check).choice, 0);
  EXPECT_EQ(At(run, ObjectKind::Check).changes, 1);
  EXPECT_EQ(At(run, ObjectKind::Radio).choice, 1);
  EXPECT_EQ(run.Boxes(), Texts{ErrorBox(5, "Check", "Invalid property value")});
}

TEST(EntryTest, ClicksWriteTheValuesAndARadioTurnsItsGroupOff) {
  ProgramRun run;
  run.Run(Lines({"Radio A, 1, 1, \"A\"", "Radio B, 2, 1, \"B\"", "Check C, 3, 1, \"C\", 0"}));
  Interpreter& in = run.interpreter;
  ChoiceClicked(in, ObjectKind::Radio, 0, 1, true);
  EXPECT_EQ(Number(run, "A.Value"), 1);
  ChoiceClicked(in, ObjectKind::Radio, 1, 1, true);
  EXPECT_EQ(Number(run, "A.Value"), 0);
  EXPECT_EQ(Number(run, "B.Value"), 1);
  EXPECT_EQ(Number(run, "RefIndex"), 1);
  ChoiceClicked(in, ObjectKind::Check, 0, 1, true);
  EXPECT_EQ(Number(run, "C.Value"), 1);
  ValueChanged(in, ObjectKind::Currency, 0, 3.5, true);  // no Currency: nothing
  ObjectTextChanged(in, ObjectKind::Mask, 4, "x");
}

TEST(EntryTest, AFormWindowWritesValorWhichOnlyTheScrollBarForgives) {
  ProgramRun run;
  run.Run(Lines({"ScrollBar S, 10, 1, 1, 1, 10", "Check C, 3, 1, \"C\", 0"}));
  ValueChanged(run.interpreter, ObjectKind::ScrollBar, 0, 4, false);
  EXPECT_EQ(Number(run, "S.Value"), 0);
  EXPECT_THROW(ChoiceClicked(run.interpreter, ObjectKind::Check, 0, 1, false), RuntimeFault);
}

TEST(EntryTest, LabelsLinksAndFramesTakeTheirCaptionsAndPlaces) {
  ProgramRun run;
  run.Run(Lines({"Label L, \"Name:\", 1, 2, 1, 10", "Link K, 3, 2, \"home\", \"https://example.org\"",
                 "Frame F, \"Customer\", 0, 1, 10, 40", "Label L.ALIGNMENT = 1", "Link K.UNDERLINE = TRUE",
                 "Link K.WIDTH = \"12\"", "Label L.TXT = \"Surname:\""}));
  const HeadlessControl& label = At(run, ObjectKind::Label);
  EXPECT_EQ(label.caption, "Surname:");
  EXPECT_EQ(label.fontName, "MS Sans Serif");
  EXPECT_EQ(label.fontSize, 8);
  EXPECT_EQ(label.top, 14);
  EXPECT_EQ(label.left, 16);
  EXPECT_EQ(label.height, 14);
  EXPECT_EQ(label.width, 80);
  EXPECT_EQ(label.alignment, 1);
  EXPECT_EQ(label.tabIndex, -1);
  const HeadlessControl& link = At(run, ObjectKind::Link);
  EXPECT_EQ(link.caption, "home");
  EXPECT_EQ(link.target, "https://example.org");
  EXPECT_EQ(link.fitExtra, 5);
  EXPECT_TRUE(link.underline);
  EXPECT_EQ(link.width, 96);
  EXPECT_EQ(At(run, ObjectKind::Frame).caption, "Customer");
  EXPECT_EQ(At(run, ObjectKind::Frame).height, 140);
  EXPECT_TRUE(run.Boxes().empty());
}

TEST(EntryTest, ARemovedLabelTemplateGoesBackToTheMainWindowEnabled) {
  ProgramRun run;
  run.Run(Lines({"Label L, \"x\", 1, 1, 1, 5", "Label L.ENABLED = FALSE", "Label L.Remove"}));
  const HeadlessControl& label = At(run, ObjectKind::Label);
  EXPECT_TRUE(label.enabled);
  EXPECT_FALSE(label.visible);
  EXPECT_EQ(label.window, "PARENT");
}

TEST(EntryTest, ScrollBarsTakeTheirOrientationByType) {
  ProgramRun run;
  run.Run(Lines({"ScrollBar S, 100, 1, 1, 1, 10", "ScrollBar V, 50, 1, 1, 0, 5", "ScrollBar S.SMALLSTEP = 2",
                 "ScrollBar S.LARGESTEP = 20", "ScrollBar S.VALUE = 30", "ScrollBar V.MAX = 0", "ScrollBar S.Remove",
                 "ScrollBar W, 10, 1, 1, 0, 3"}));
  const HeadlessControl& reused = At(run, ObjectKind::ScrollBar, 0);
  EXPECT_TRUE(reused.vertical);
  EXPECT_EQ(reused.height, 42);
  const HeadlessControl& vertical = At(run, ObjectKind::ScrollBar, 1);
  EXPECT_EQ(vertical.height, 70);
  EXPECT_EQ(vertical.maximum, 0);
  EXPECT_TRUE(run.Boxes().empty());

  ProgramRun horizontal;
  horizontal.Run(Lines({"ScrollBar S, 100, 1, 1, 1, 10", "ScrollBar S.SMALLSTEP = 2", "ScrollBar S.VALUE = 30"}));
  const HeadlessControl& bar = At(horizontal, ObjectKind::ScrollBar);
  EXPECT_FALSE(bar.vertical);
  EXPECT_EQ(bar.width, 80);
  EXPECT_EQ(bar.smallChange, 2);
  EXPECT_EQ(bar.position, 30);
}

TEST(EntryTest, NegativeScrollBarNumbersAreRefused) {
  ProgramRun run;
  run.Run(Lines({"ScrollBar S, -1, 1, 1, 1, 10", "ScrollBar T, 10, 1, 1, 1, 10", "ScrollBar T.VALUE = -3",
                 "ScrollBar T.MAX = -5"}));
  EXPECT_EQ(run.Boxes(), (Texts{ErrorBox(1, "ScrollBar", "Invalid property value"),
                                ErrorBox(3, "ScrollBar", "Invalid property value"),
                                ErrorBox(4, "ScrollBar", "Invalid property value")}));
  EXPECT_EQ(run.interpreter.Objects().Find(ObjectKind::ScrollBar, "S"), -1);
}

TEST(EntryTest, TheVariablesOfEachKindAreDeclaredWithTheirTypes) {
  ProgramRun run;
  run.Run(Lines({"Text T, 1, 1", "Mask M, \"#\", 1, 1, 2", "Currency C, 1, 1, 5", "Calendar K, 1, 1",
                 "Check H, 1, 1, \"h\", 0", "Radio R, 1, 1, \"r\"", "Label L, \"l\", 1, 1, 1, 1",
                 "ScrollBar S, 5, 1, 1, 1, 5", "Write T.Txt, M.Txt, C.Value, H.Value, R.Value, L.Txt, S.Value"}));
  EXPECT_EQ(run.Written(), Texts{"_0000"});
  EXPECT_TRUE(run.Boxes().empty());
}

}  // namespace
}  // namespace tamrix::testing
