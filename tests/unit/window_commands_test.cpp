// Window and NewWindow on the headless desktop: the Window Table, the
// settings in twips, and where output goes while window code runs.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

// "WINDOW text" for each write line of a run.
Texts WritesWithWindow(const ProgramRun& run) {
  Texts out;
  for (const auto& line : run.lines) {
    if (line.rfind("write\t", 0) != 0) continue;
    const auto window = line.substr(6, line.find('\t', 6) - 6);
    out.push_back(window + " " + line.substr(line.rfind('\t') + 1));
  }
  return out;
}

HeadlessWindow& WindowNamed(ProgramRun& run, const std::string& name) {
  for (auto& window : run.desktop.windows) {
    if (window->surface.name == name) return *window;
  }
  throw std::runtime_error("no window " + name);
}

TEST(WindowCommandTest, SizeIsTwoHundredTwentyTwipsALinePlusTheFrame) {
  ProgramRun run;
  run.Run("Window SIZE = 20, 60");
  EXPECT_EQ(run.desktop.mainWindow.outer.height, 4400 + 600);
  EXPECT_EQ(run.desktop.mainWindow.outer.width, 7200);
}

TEST(WindowCommandTest, MaxTakesTheScreenAndCenterCentresOnIt) {
  ProgramRun run;
  run.Run(Lines({"Window SIZE = \"max\", Max, POS = center, CENTER"}));
  const TwipRect& outer = run.desktop.mainWindow.outer;
  EXPECT_EQ(outer.height, 768 * 15);
  EXPECT_EQ(outer.width, 1024 * 15);
  EXPECT_EQ(outer.top, 0);
  EXPECT_EQ(outer.left, 0);
  ProgramRun centred;
  centred.Run("Window SIZE = 20, 60, POS = CENTER, CENTER");
  EXPECT_EQ(centred.desktop.mainWindow.outer.top, (768 * 15 - 5000) / 2);
  EXPECT_EQ(centred.desktop.mainWindow.outer.left, (1024 * 15 - 7200) / 2);
}

TEST(WindowCommandTest, PositionTakesTheRawTextAsANumberNotAnExpression) {
  ProgramRun run;
  run.Run(Lines({"Var n Integer", "n = 9", "Window POS = 2 + 1, n"}));
  EXPECT_EQ(run.desktop.mainWindow.outer.top, 2 * 220);
  EXPECT_EQ(run.desktop.mainWindow.outer.left, 0);
}

TEST(WindowCommandTest, ResolutionSplitsTheClientAreaForTheWholeProgram) {
  ProgramRun run;
  run.Run(Lines({"Window RES = 20, 79", "Write LinSize, \" \", ColSize, \" \", ScreenHeight, \" \", ScreenWidth",
                 "Window RES = 0, 0", "Write LinSize, \" \", ColSize"}));
  // The headless client area is 632 by 373 pixels on a 1024 by 768 screen.
  EXPECT_EQ(run.Written(), (Texts{"18.65 8 41 128", "373 632"}));
}

TEST(WindowCommandTest, OnlyUpperCaseFalseSwitchesTheControlBoxOff) {
  ProgramRun lower;
  lower.Run("Window BOX = false");
  EXPECT_TRUE(lower.desktop.mainWindow.controlBox);
  ProgramRun upper;
  upper.Run("Window BOX = FALSE");
  EXPECT_FALSE(upper.desktop.mainWindow.controlBox);
}

TEST(WindowCommandTest, VisibleAndBorderTakeTheirWordsInAnyCase) {
  ProgramRun run;
  run.Run("Window VISIBLE = false, BORDER = False");
  EXPECT_FALSE(run.desktop.mainWindow.visible);
  EXPECT_EQ(run.desktop.mainWindow.borderStyle, 0);
  ProgramRun shown;
  shown.Run(Lines({"Window VISIBLE = FALSE", "Window VISIBLE = true, BORDER = yes"}));
  EXPECT_TRUE(shown.desktop.mainWindow.visible);
  EXPECT_EQ(shown.desktop.mainWindow.borderStyle, 1);
}

// The scan moves one element at a time: the value VISIBLE is a keyword of
// its own, whose value (two elements on) is empty.
TEST(WindowCommandTest, AValueThatSpellsAKeywordIsTakenAsOne) {
  ProgramRun run;
  run.Run("Window BOX = VISIBLE");
  EXPECT_TRUE(run.desktop.mainWindow.controlBox);
  EXPECT_FALSE(run.desktop.mainWindow.visible);
}

TEST(WindowCommandTest, FixedActsOnlyWhenTheStateChanges) {
  ProgramRun run;
  run.Run(Lines({"Window FIXED = TRUE", "Window FIXED = TRUE"}));
  EXPECT_FALSE(run.desktop.mainWindow.sizable);
  EXPECT_TRUE(run.interpreter.Windows().Modes().fixedWindow);
  ProgramRun back;
  back.Run(Lines({"Window FIXED = FALSE", "Window FIXED = TRUE", "Window FIXED = false"}));
  EXPECT_TRUE(back.desktop.mainWindow.sizable);
  EXPECT_FALSE(back.interpreter.Windows().Modes().fixedWindow);
}

TEST(WindowCommandTest, CursorCallsCountAndEnterTurnsKeyPreview) {
  ProgramRun run;
  run.Run(Lines({"Window CURSOR = FALSE, CURSOR = no, CURSOR = TRUE", "Window ENTER = FALSE"}));
  EXPECT_EQ(run.desktop.cursorCount, -1);
  EXPECT_FALSE(run.desktop.mainWindow.keyPreview);
}

TEST(WindowCommandTest, MouseGeneralStartsTimerThreeAndOffLeavesItRunning) {
  ProgramRun run;
  run.Run(Lines({"Window MOUSEGENERAL = TRUE", "Window MOUSEGENERAL = FALSE"}));
  EXPECT_FALSE(run.interpreter.Windows().Modes().mouseGeneral);
  int fiftyMillisecondTimers = 0;
  for (const auto& timer : run.desktop.timers.All()) {
    fiftyMillisecondTimers += timer->running && timer->interval == 50 ? 1 : 0;
  }
  EXPECT_EQ(fiftyMillisecondTimers, 1);
}

TEST(WindowCommandTest, BackgroundTakesAColourOrAColourVariable) {
  ProgramRun run;
  run.Run("Window BACKGROUND = 255");
  EXPECT_EQ(run.desktop.mainWindow.backColor, 255);
  ProgramRun named;
  named.Run("Window BACKGROUND = Yellow");
  EXPECT_EQ(named.desktop.mainWindow.backColor, 65535);
}

TEST(WindowCommandTest, AMissingBackgroundPictureShowsBothBoxes) {
  ProgramRun run("OK,OK");
  run.Run(Lines({"Write 1", "Window BACKGROUND = \"no such picture.png\""}));
  EXPECT_EQ(run.Boxes(),
            (Texts{BoxLine("ok", "none", "Tamrix",
                           "Editor: 0 Line: 2\\rBackground - Image file not found:\\rno such picture.png", "OK"),
                   QueryBoxLine("Editor: 0 Line: 2\\r\\nError in the Background property!")}));
}

// A bare file name is looked up in the program's folder, /tmp/ here.
TEST(WindowCommandTest, APictureIsPaintedAtLineAndColumnOrBecomesTheBackground) {
  const std::string name = "tamrix_background_" + std::to_string(::getpid()) + ".png";
  std::FILE* file = std::fopen(("/tmp/" + name).c_str(), "w");
  ASSERT_NE(file, nullptr);
  std::fclose(file);
  ProgramRun run;
  run.Run(Lines({("Window BACKGROUND = \"" + name + "\", 2, 3").c_str(), "NewWindow SET, W",
                 ("NewWindow W.BACKGROUND = \"" + name + "\"").c_str()}));
  EXPECT_EQ(run.desktop.mainWindow.painted, Texts{"/tmp/" + name + " 24 28"});
  EXPECT_EQ(WindowNamed(run, "W").picture, "/tmp/" + name);
  ProgramRun cleared;
  cleared.Run(Lines({("Window BACKGROUND = \"" + name + "\"").c_str(), "Window BACKGROUND = null"}));
  EXPECT_EQ(cleared.desktop.mainWindow.picture, "");
  std::remove(("/tmp/" + name).c_str());
}

TEST(WindowCommandTest, TheMouseIconGoesToTheCurrentWindowFromTheResolvedPath) {
  ProgramRun run;
  run.desktop.mainWindow.mouseIcon = "before";
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.USE", "Window MOUSEICON = \"/etc/hostname\"",
                 "NewWindow PARENT.USE", "Window MOUSEICON = \"missing.ico\""}));
  EXPECT_EQ(WindowNamed(run, "W").mouseIcon, "/etc/hostname");
  EXPECT_EQ(run.desktop.mainWindow.mouseIcon, "");
}

TEST(NewWindowTest, AMissingBackgroundShowsTheErrorIconBox) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.BACKGROUND = \"none.png\", 1, 1"}));
  ASSERT_EQ(run.Boxes().size(), 2u);
  EXPECT_EQ(run.Boxes()[1], StopBoxLine("Error in BackGround property!Editor: 0 Line: 2"));
}

TEST(WindowCommandTest, AConversionFaultGoesToTheCommandErrorBox) {
  ProgramRun run("OK");
  run.Run("Window POINTSIZE = 40000");
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 1\\r\\nError in command Window: Overflow")});
}

TEST(NewWindowTest, NineteenWindowsFitAndTheTwentiethIsRefused) {
  std::vector<std::string> program;
  for (int i = 0; i < 20; ++i) program.push_back("NewWindow SET, W" + std::to_string(i));
  std::string text;
  for (const auto& line : program) text += line + "\r\n";
  ProgramRun run("OK");
  run.Run(text);
  EXPECT_EQ(run.desktop.windows.size(), 19u);
  EXPECT_EQ(run.Boxes(),
            Texts{QueryBoxLine("Editor: 0 Line: 20\\r\\nCould not set window: more than 20 windows defined!")});
  EXPECT_EQ(run.interpreter.Windows().Name(19), "W18");
}

TEST(NewWindowTest, TheKindWordChoosesTheWindowClass) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, A", "NewWindow set, b, fixed", "NewWindow SET, C, WithoutBox",
                 "NewWindow SET, D, other", "NewWindow MAKE, E"}));
  ASSERT_EQ(run.desktop.windows.size(), 4u);
  EXPECT_EQ(run.desktop.windows[0]->Class(), WindowClass::Form1);
  EXPECT_EQ(run.desktop.windows[1]->Class(), WindowClass::Form2);
  EXPECT_EQ(run.desktop.windows[2]->Class(), WindowClass::Form3);
  EXPECT_EQ(run.desktop.windows[3]->Class(), WindowClass::Form1);
  EXPECT_EQ(run.desktop.windows[1]->Tag(), "B");
  EXPECT_FALSE(run.desktop.windows[0]->visible);
}

TEST(NewWindowTest, AnUnknownNameDoesNothingAndSaysNothing) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow Missing.SIZE = 1, 1", "NewWindow Missing.USE"}));
  EXPECT_TRUE(run.Boxes().empty());
  EXPECT_EQ(WindowNamed(run, "W").outer.height, 6200);
}

TEST(NewWindowTest, AnEmptyNameFindsAFreeSlotAndDoesNothing) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow .SIZE = 1, 1", "NewWindow .USE", "Write \"on\""}));
  EXPECT_TRUE(run.Boxes().empty());
  EXPECT_EQ(WindowNamed(run, "W").outer.height, 6200);
  EXPECT_EQ(WritesWithWindow(run), (Texts{"PARENT on"}));
}

TEST(NewWindowTest, PropertiesWorkOnTheFirstSlotOfTheNameInAnyCase) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, \"Win\"", "NewWindow win.SIZE = 10, 20", "NewWindow WIN.POS = 1, CENTER",
                 "NewWindow Win.POINTSIZE = 4", "NewWindow Win.BORDER = false", "NewWindow PARENT.SIZE = 5, 5"}));
  HeadlessWindow& win = WindowNamed(run, "WIN");
  EXPECT_EQ(win.outer.height, 2800);
  EXPECT_EQ(win.outer.width, 2400);
  EXPECT_EQ(win.outer.top, 220);
  EXPECT_EQ(win.outer.left, (1024 * 15 - 2400) / 2);
  EXPECT_EQ(win.surface.drawWidth, 4);
  EXPECT_EQ(win.borderStyle, 0);
  EXPECT_EQ(run.desktop.mainWindow.outer.height, 1700);
}

TEST(NewWindowTest, UseMakesTheWindowCurrentAndWriteFollowsIt) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.USE", "Write \"one\"", "NewWindow PARENT.USE", "Write \"two\""}));
  EXPECT_EQ(WritesWithWindow(run), (Texts{"W one", "PARENT two"}));
  EXPECT_TRUE(WindowNamed(run, "W").visible);
}

TEST(NewWindowTest, VisibleShowsAndHidesWithoutChangingTheCurrentWindow) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.VISIBLE = TRUE", "Write \"here\""}));
  EXPECT_TRUE(WindowNamed(run, "W").visible);
  EXPECT_EQ(WritesWithWindow(run), Texts{"PARENT here"});
}

TEST(NewWindowTest, DynamicCodeWritesOnItsWindowAndThenTheMainWindowIsCurrent) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, Dyn", "NewWindow Dyn.ACTIVATE", "Write \"after\"", "EndProgram",
                 "Sub Dyn_Code()", "Write \"inside \", RefIndex", "NewWindow Dyn.USE", "EndSub"}));
  EXPECT_EQ(WritesWithWindow(run), (Texts{"DYN inside 0", "PARENT after"}));
  EXPECT_TRUE(WindowNamed(run, "DYN").visible);
  EXPECT_TRUE(run.interpreter.Windows().WindowCodeOwner().empty());
}

TEST(NewWindowTest, TheCodeNameIsSpelledAsInTheCommand) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, Dyn", "NewWindow dyn.ACTIVATE, Dynamic", "EndProgram", "Sub Dyn_Code()",
                 "EndSub"}));
  EXPECT_EQ(run.Boxes(), Texts{StopBoxLine("Subroutine not found: dyn_Code")});
}

TEST(NewWindowTest, AnyOtherActivationWordOnlyMakesTheWindowCurrent) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.ACTIVATE, LATER", "Write \"x\"", "EndProgram", "Sub W_Code()",
                 "Write \"code\"", "EndSub"}));
  EXPECT_EQ(WritesWithWindow(run), Texts{"W x"});
  EXPECT_EQ(run.interpreter.Windows().CurrentName(), "PARENT");
  EXPECT_FALSE(WindowNamed(run, "W").visible);
}

// The static window's code runs in the first tick of its timer, inside the
// modal show; its Tag is the name that was current, not its own.
TEST(NewWindowTest, StaticCodeRunsInsideTheModalShow) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, Stat", "NewWindow Stat.ACTIVATE, static", "Write \"after\"", "EndProgram",
                 "Sub Stat_Code()", "Write \"inside\"", "EndSub"}));
  HeadlessWindow& stat = WindowNamed(run, "STAT");
  EXPECT_EQ(stat.modalShows, 1);
  EXPECT_EQ(stat.Tag(), "PARENT");
  EXPECT_EQ(WritesWithWindow(run), (Texts{"STAT inside", "PARENT after"}));
  EXPECT_EQ(run.desktop.timers.RunningCount(), 0);
}

// The test is on the window's own slot, and the timer starts all the same.
TEST(NewWindowTest, AStaticWindowInSlotFiveIsRefusedThoughNoneIsOpen) {
  ProgramRun run("OK");
  run.Run(Lines({"NewWindow SET, A", "NewWindow SET, B", "NewWindow SET, C", "NewWindow SET, D",
                 "NewWindow SET, E", "NewWindow E.ACTIVATE, STATIC", "EndProgram", "Sub E_Code()", "EndSub"}));
  EXPECT_EQ(run.Boxes(),
            Texts{QueryBoxLine("Editor: 0 Line: 6\\r\\nCan't open static window, maximum overlapping windows = 5!")});
  EXPECT_EQ(WindowNamed(run, "E").modalShows, 0);
  EXPECT_EQ(run.desktop.timers.RunningCount(), 1);
}

// Restoring after a nested static window takes the window saved one level
// up, but the name of the Window Table's slot at that depth.
TEST(NewWindowTest, NestedStaticCodeRestoresByDepth) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, One", "NewWindow SET, Two", "NewWindow One.ACTIVATE, STATIC", "EndProgram",
                 "Sub One_Code()", "NewWindow Two.ACTIVATE, STATIC", "Write \"back in one\"", "EndSub",
                 "Sub Two_Code()", "Write \"in two\"", "EndSub"}));
  EXPECT_EQ(WritesWithWindow(run), (Texts{"TWO in two", "ONE back in one"}));
  EXPECT_EQ(run.interpreter.Windows().CurrentName(), "PARENT");
  EXPECT_EQ(WindowNamed(run, "TWO").Tag(), "PARENT");
}

TEST(NewWindowTest, UseWhileAModalWindowIsUpGivesItsMessage) {
  ProgramRun run("OK");
  run.Run(Lines({"NewWindow SET, Stat", "NewWindow SET, Other", "NewWindow Stat.ACTIVATE, STATIC", "EndProgram",
                 "Sub Stat_Code()", "NewWindow Other.USE", "EndSub"}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine(
                             "Editor: 0 Line: 6\\r\\nThe command 'NewWindow Use' can only be used in dynamic windows!")});
  EXPECT_FALSE(WindowNamed(run, "OTHER").visible);
}

TEST(NewWindowTest, OffFreesTheSlotAndUnloadsTheWindow) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.USE", "NewWindow W.OFF", "Write \"x\"", "NewWindow SET, V"}));
  EXPECT_EQ(run.desktop.destroyed.size(), 1u);
  EXPECT_EQ(run.desktop.destroyed[0], &WindowNamed(run, "W"));
  EXPECT_EQ(WritesWithWindow(run), Texts{"PARENT x"});
  EXPECT_EQ(run.interpreter.Windows().Name(1), "V");
  EXPECT_EQ(run.interpreter.Windows().Find("W"), -1);
}

TEST(NewWindowTest, ClosingTheWindowStopsItsRunningCode) {
  ProgramRun run;
  int pumps = 0;
  run.desktop.onPump = [&] {
    if (++pumps == 2) OnWindowClosing(run.interpreter, WindowNamed(run, "W"));
  };
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.ACTIVATE", "Write \"after\"", "EndProgram", "Sub W_Code()",
                 "Write \"one\"", "Write \"two\"", "Write \"three\"", "EndSub"}));
  EXPECT_EQ(WritesWithWindow(run), (Texts{"W one", "W two", "PARENT after"}));
  EXPECT_FALSE(run.interpreter.State().windowStopFlag);
}

TEST(GetTextTest, ScriptedAnswersGiveTheTextOrCanceled) {
  ProgramRun run("=Maria,Cancel");
  run.Run(Lines({"Var s String", "s = GetText(\"Name?\", \"nobody\")", "Write s", "s = GetText(\"Name?\", \"x\")",
                 "Write s", "s = GetText(\"City?\", \"Lisboa\")", "Write s"}));
  EXPECT_EQ(run.Written(), (Texts{"Maria", "CANCELED", "Lisboa"}));
  EXPECT_EQ(run.lines[0], "input\ttext\tTEST\tName?\tMaria");
  EXPECT_EQ(run.lines[2], "input\ttext\tTEST\tName?\tCancel");
}

TEST(GetTextTest, ADialogClosedWithoutItsButtonsGivesThePromptBack) {
  ProgramRun run;
  run.scripted = ScriptedAnswers();
  run.desktop.textAnswer = TextAnswer{TextAnswer::Button::None, "typed"};
  run.Run(Lines({"Var s String", "s = GetText(\"Name?\", \"start\")", "Write s"}));
  EXPECT_EQ(run.desktop.asked, Texts{"TEST|Name?|start"});
  EXPECT_EQ(run.Written(), Texts{"Name?"});
}

}  // namespace
}  // namespace tamrix::testing
