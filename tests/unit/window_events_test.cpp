// What window events write, and how Event, KeyTest and TestMouse read it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

class WindowEventsTest : public ::testing::Test {
 protected:
  // The raw result of a command, quotes and all, as an expression sees it.
  std::string Call(const std::string& word, std::string arguments = "") {
    return TextOf(in.Commands().RunCommand(in, word, arguments));
  }
  std::string Text(const std::string& name) { return TextOf(in.Variables().GetVariable(name)); }

  Sandbox box;
  Interpreter& in = box.interpreter;
};

TEST_F(WindowEventsTest, KeyTablesStartUpAndFollowKeyDownAndUp) {
  EXPECT_EQ(Call("KeyTest", "\"L\""), "\"L-\"");
  EXPECT_EQ(Call("KeyTest", "\"#\""), "\"#-\"");
  EXPECT_EQ(Call("KeyTest", "65"), "\"65-\"");
  EXPECT_EQ(Call("KeyTest", "256"), "\"\"");
  EXPECT_EQ(Call("KeyTest", "257"), "");
  OnKeyDown(in, kKeyLeft, 0);
  OnKeyDown(in, kKeySpace, 0);
  EXPECT_EQ(Call("KeyTest", "\"l\""), "\"L+\"");
  EXPECT_EQ(Call("KeyTest", "\"#\""), "\"#+\"");
  EXPECT_EQ(Call("KeyTest", "37"), "\"37+\"");
  OnKeyUp(in, kKeyLeft);
  EXPECT_EQ(Call("KeyTest", "\"L\""), "\"L-\"");
  EXPECT_EQ(Call("KeyTest", "37"), "\"37-\"");
  // Both ask the current window's TxtAux to take the keys.
  EXPECT_EQ(box.desktop.mainWindow.keyCatcherFocus, 10);
}

struct KeyPressCase {
  const char* name;
  int code;
  int shift;
  const char* text;
};

class KeyPressTextTest : public ::testing::TestWithParam<KeyPressCase> {};

TEST_P(KeyPressTextTest, NamesTheCodeAndASingleShiftState) {
  EXPECT_EQ(KeyPressText(GetParam().code, GetParam().shift), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyPressTextTest,
                         ::testing::Values(KeyPressCase{"Plain", 65, 0, "65"},
                                           KeyPressCase{"Shift", 65, kShiftMask, "65SHIFT"},
                                           KeyPressCase{"Ctrl", 13, kCtrlMask, "13CTRL"},
                                           KeyPressCase{"ShiftAndCtrl", 65, kShiftMask | kCtrlMask, "65"},
                                           KeyPressCase{"Alt", 65, kAltMask, "65"}),
                         ByName());

TEST_F(WindowEventsTest, TheLastKeyIsReadOnceAndUnquoted) {
  OnKeyDown(in, 65, kShiftMask);
  EXPECT_EQ(Call("KeyTest", "\"?\""), "65SHIFT");
  EXPECT_EQ(Call("KeyTest", "\"?\""), "");
  EXPECT_EQ(Call("Event", "EVENTKEY"), "\"65SHIFT\"");
  EXPECT_EQ(Call("Event", "eventkey"), "\"\"");
  EXPECT_EQ(Call("Event", "EVENTNOTHING"), "");
}

// A key up that a window of the Form1 family takes itself writes older
// codes; TxtAux writes the usual ones only at the next key down and up.
TEST_F(WindowEventsTest, TheFormsOwnKeyUpWritesOlderCodes) {
  OnKeyDown(in, kKeyLeft, 0);
  OnFormKeyUp(in, kKeyLeft);
  OnFormKeyUp(in, kKeyUp);
  OnFormKeyUp(in, 65);
  EXPECT_EQ(Call("KeyTest", "\"L\""), "\"E-\"");
  EXPECT_EQ(Call("KeyTest", "\"U\""), "\"A-\"");
  EXPECT_EQ(Call("KeyTest", "65"), "\"(065)-\"");
  OnKeyDown(in, kKeyLeft, 0);
  OnKeyUp(in, kKeyLeft);
  EXPECT_EQ(Call("KeyTest", "\"L\""), "\"L-\"");
}

TEST_F(WindowEventsTest, EveryMailboxIsEmptiedWhenRead) {
  in.Mail().lastEventResize = "RESIZE W";
  in.Mail().lastEventBox = "Altered";
  in.Mail().lastEventGif = "CLICK";
  EXPECT_EQ(Call("Event", "EVENTRESIZE"), "\"RESIZE W\"");
  EXPECT_EQ(Call("Event", "EVENTBOX"), "\"Altered\"");
  EXPECT_EQ(Call("Event", "EVENTANIMATEDGIF"), "\"CLICK\"");
  EXPECT_EQ(Call("Event", "EVENTBOX"), "\"\"");
}

TEST_F(WindowEventsTest, AClickSleepsAndADoubleClickDoesNot) {
  OnWindowClick(in, false);
  EXPECT_EQ(Text("MouseClick"), "CLICK");
  EXPECT_EQ(box.desktop.slept, 100);
  OnWindowClick(in, true);
  EXPECT_EQ(Text("MouseClick"), "DOUBLECLICK");
  EXPECT_EQ(box.desktop.slept, 100);
  EXPECT_EQ(Call("Event", "EVENTCLICK"), "\"DOUBLECLICK\"");
}

TEST_F(WindowEventsTest, TheMouseWritesLineColumnAndButtons) {
  // Y / LinSize + 0.5 and X / ColSize + 0.5, rounded down.
  OnMainWindowMouse(in, MouseAction::Down, kLeftButton, 11, 20);
  EXPECT_EQ(Text("MouseX"), "1");
  EXPECT_EQ(Text("MouseY"), "1");
  EXPECT_EQ(Call("TestMouse"), "\"10\"");
  OnMainWindowMouse(in, MouseAction::Down, kRightButton, 12, 21);
  EXPECT_EQ(Text("MouseX"), "2");
  EXPECT_EQ(Text("MouseY"), "2");
  EXPECT_EQ(Call("TestMouse"), "\"11\"");
  OnMainWindowMouse(in, MouseAction::Up, kLeftButton, 12, 21);
  OnMainWindowMouse(in, MouseAction::Down, 4, 12, 21);
  EXPECT_EQ(Call("TestMouse"), "\"01\"");
}

TEST_F(WindowEventsTest, WithMouseGeneralTheMouseVariablesStay) {
  OnMainWindowMouse(in, MouseAction::Move, 0, 80, 140);
  in.Windows().Modes().mouseGeneral = true;
  OnMainWindowMouse(in, MouseAction::Move, 0, 8, 14);
  EXPECT_EQ(Text("MouseX"), "10");
  EXPECT_EQ(Text("MouseY"), "10");
}

TEST_F(WindowEventsTest, ACapturedWindowMovesByTheOffsetOfThePress) {
  box.Run("CaptureWindow");
  HeadlessWindow& main = box.desktop.mainWindow;
  const TwipRect start = main.outer;
  OnMainWindowMouse(in, MouseAction::Down, kLeftButton, 10, 10);
  EXPECT_EQ(Call("TestMouse"), "\"10\"");
  OnMainWindowMouse(in, MouseAction::Move, kLeftButton, 30, 20);
  EXPECT_EQ(main.outer.left, start.left + 300);
  EXPECT_EQ(main.outer.top, start.top + 150);
  main.maximized = true;
  OnMainWindowMouse(in, MouseAction::Move, kLeftButton, 50, 50);
  EXPECT_EQ(main.outer.left, start.left + 300);
  Call("UnCaptureWindow");
  EXPECT_FALSE(in.Windows().Modes().windowCaptured);
}

TEST_F(WindowEventsTest, ResizeNamesTheCurrentWindowAndFixedUndoesMaximising) {
  box.Run(Lines({"NewWindow SET, W", "NewWindow W.USE", "Window FIXED = TRUE"}));
  HeadlessWindow& main = box.desktop.mainWindow;
  main.maximized = true;
  OnWindowResize(in, main);
  EXPECT_FALSE(main.maximized);
  EXPECT_EQ(in.Mail().lastEventResize, "RESIZE W");
}

TEST_F(WindowEventsTest, FocusMovesTheCurrentWindowUnlessAnImageIsInUse) {
  box.Run(Lines({"NewWindow SET, W"}));
  RunTimeWindow& w = *box.desktop.windows[0];
  OnWindowFocus(in, w);
  EXPECT_EQ(&in.Windows().Current(), &w);
  EXPECT_EQ(in.Windows().CurrentName(), "W");
  in.Windows().Modes().imageInUse = true;
  OnWindowFocus(in, box.desktop.mainWindow);
  EXPECT_EQ(in.Windows().CurrentName(), "W");
}

TEST(MouseGeneralTickTest, WritesTheScreenPositionIntoTheProgramsVariables) {
  ProgramRun run;
  run.desktop.cursor = {300, 200};
  run.Run(Lines({"Var LinhaMouse Integer, ColunaMouse Integer", "Window MOUSEGENERAL = TRUE"}));
  run.desktop.timers.FireRunning();
  Interpreter& in = run.interpreter;
  EXPECT_EQ(TextOf(in.Variables().GetVariable("LinhaMouse")), "200");
  EXPECT_EQ(TextOf(in.Variables().GetVariable("ColunaMouse")), "300");
}

TEST(MouseGeneralTickTest, UndeclaredVariablesEndTheProcess) {
  ProgramRun run;
  run.Run("Window MOUSEGENERAL = TRUE");
  EXPECT_THROW(run.desktop.timers.FireRunning(), ProcessEnded);
  ASSERT_FALSE(run.Boxes().empty());
  EXPECT_NE(run.Boxes().back().find("Run-time error"), std::string::npos);
}

}  // namespace
}  // namespace tamrix::testing
