// The drawing commands on the headless surface: positions in lines and
// columns become pixels, and the fill state carries from figure to figure.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core_sandbox.h"

namespace tamrix::testing {
namespace {

using Texts = std::vector<std::string>;

struct FigureCase {
  const char* name;
  const char* statement;
  const char* drawn;  // as the headless surface logs it
};

class FigureTest : public ::testing::TestWithParam<FigureCase> {};

// Top is line * 14, left is column * 8, a radius counts in columns; the
// products round half to even.
TEST_P(FigureTest, PlacesTheFigureInPixels) {
  ProgramRun run;
  run.Run(GetParam().statement);
  EXPECT_EQ(run.desktop.surface.drawn, Texts{GetParam().drawn});
  EXPECT_EQ(run.desktop.surface.refreshes, 1);
  EXPECT_TRUE(run.Boxes().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Figures, FigureTest,
    ::testing::Values(FigureCase{"Circle", "Circle 2, 10, 3, 255", "circle 80 28 24 255 255"},
                      FigureCase{"CircleHalves", "Circle 0.25, 0.3125, 0.4375, 1", "circle 2 4 4 1 1"},
                      FigureCase{"CircleHalfUp", "Circle 0.75, 0.1875, 0, 1", "circle 2 10 0 1 1"},
                      FigureCase{"Rectangle", "Rectangle 1, 2, 3, 4, 65280", "box 16 14 32 42 65280"},
                      FigureCase{"Straight", "Straight 3, 4, 1, 2, Blue", "line 32 42 16 14 16711680 1"},
                      FigureCase{"Point", "Point 1.5, 1.5, 7", "pixel 12 21 7"}),
    ByName());

TEST(DrawingTest, PaintFillsTheColourFoundThereAndLeavesTheFillTransparent) {
  ProgramRun run;
  run.desktop.surface.pixelColour = 65535;
  run.Run(Lines({"Paint 2, 3, 255", "Paint 2, 3, 255", "Circle 1, 1, 1, 16711680"}));
  EXPECT_EQ(run.desktop.surface.drawn,
            (Texts{"fill 24 28 65535 255", "fill 24 28 65535 255", "circle 8 14 8 16711680 16711680"}));
  EXPECT_TRUE(run.desktop.surface.fillSolid);
  ProgramRun after;
  after.Run(Lines({"Circle 1, 1, 1, 255", "Paint 2, 3, 65280"}));
  EXPECT_FALSE(after.desktop.surface.fillSolid);
  EXPECT_EQ(after.desktop.surface.refreshes, 1);  // Paint does not refresh
}

TEST(DrawingTest, ReadPointGivesThePixelOfTheCurrentSurface) {
  ProgramRun run;
  run.desktop.surface.pixelColour = -1;
  run.Run(Lines({"Var c Integer", "c = ReadPoint(3, 5)", "Write c"}));
  EXPECT_EQ(run.Written(), Texts{"-1"});
  ASSERT_EQ(run.desktop.surface.readAt.size(), 1u);
  EXPECT_EQ(run.desktop.surface.readAt[0].x, 40);
  EXPECT_EQ(run.desktop.surface.readAt[0].y, 42);
}

// The main window's line width decides between a pixel and a dot, also
// when another window is the surface.
TEST(DrawingTest, PointFollowsTheLineWidthOfTheMainWindow) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "Window POINTSIZE = 3", "NewWindow W.USE", "Point 1, 1, 255",
                 "Window POINTSIZE = 1", "NewWindow W.POINTSIZE = 5", "Point 1, 1, 255"}));
  HeadlessSurface& w = run.desktop.windows[0]->surface;
  EXPECT_EQ(w.drawn, (Texts{"dot 8 14 255 1", "pixel 8 14 255"}));
  EXPECT_TRUE(run.desktop.surface.drawn.empty());
}

TEST(DrawingTest, RgbKeepsTheLowByteOfEachSixteenBitValue) {
  ProgramRun run("OK");
  run.Run(Lines({"Write RGB(255, 128, 1)", "Write RGB(256 + 2, 0, -1)", "Write RGB(40000, 0, 0)"}));
  EXPECT_EQ(run.Written(), (Texts{"98559", "16711682", ""}));
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 3\\rError in command RGB: Overflow")});
}

TEST(DrawingTest, AFigureThatOverflowsShowsTheErrorOfItsCommand) {
  ProgramRun run("OK");
  run.Run("Circle 1, 1, 300000000, 255");
  EXPECT_EQ(run.Boxes(), Texts{QueryBoxLine("Editor: 0 Line: 1\\rError in command Circle: Overflow")});
  EXPECT_TRUE(run.desktop.surface.drawn.empty());
}

TEST(FontTest, ActsOnTheNamedWindowAndOnTheMainWindowByDefault) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, W", "NewWindow W.USE", "Font NAME = \"Arial\"", "Font W.SIZE = 12",
                 "Font w.COLOR = 255", "Font W.BOLD = true", "Font W.ITALIC = FALSE", "Font Missing.SIZE = 30"}));
  EXPECT_EQ(run.desktop.surface.fontName, "Arial");
  const HeadlessSurface& w = run.desktop.windows[0]->surface;
  EXPECT_EQ(w.fontSize, 12);
  EXPECT_EQ(w.foreColor, 255);
  EXPECT_TRUE(w.bold);
  EXPECT_FALSE(w.italic);
  EXPECT_EQ(run.desktop.surface.fontSize, 10);
}

// The words are searched in the whole element: a window named NAMES gets a
// font name as well, and SIZE wins over the words after it.
TEST(FontTest, AWindowNameHoldingAWordIsTakenForIt) {
  ProgramRun run;
  run.Run(Lines({"NewWindow SET, Names", "Font Names.BOLD = FALSE", "NewWindow SET, Sizes",
                 "Font Sizes.COLOR = 14"}));
  const HeadlessSurface& names = run.desktop.windows[0]->surface;
  EXPECT_EQ(names.fontName, "FALSE");
  EXPECT_FALSE(names.bold);
  const HeadlessSurface& sizes = run.desktop.windows[1]->surface;
  EXPECT_EQ(sizes.fontSize, 14);
  EXPECT_EQ(sizes.foreColor, 0);
}

}  // namespace
}  // namespace tamrix::testing
