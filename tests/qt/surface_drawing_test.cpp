// The figures of the drawing commands on the persistent surface: exact
// colours without smoothing, the fill state, and the flood fill.
#include <QApplication>
#include <QWidget>
#include <gtest/gtest.h>

#include "windows/colour_ref.h"
#include "windows/window_surface.h"

namespace tamrix {
namespace {

constexpr std::int32_t kRed = 255;
constexpr std::int32_t kGreen = 65280;
constexpr std::int32_t kBlue = 16711680;
constexpr std::int32_t kWhite = 16777215;

class SurfaceDrawingTest : public testing::Test {
 protected:
  SurfaceDrawingTest() : surface(window, "W") {
    window.resize(200, 100);
    surface.SetBackColor(Qt::white);
    surface.Cover(window.width(), window.height());
    surface.Clear();
  }

  QWidget window;
  WindowSurface surface;
};

TEST_F(SurfaceDrawingTest, ACircleIsFilledByTheFillStateAndOutlinedInItsColour) {
  surface.SetFill(kRed, true);
  surface.DrawCircle(50, 50, 20, kBlue);
  EXPECT_EQ(surface.GetPixel(50, 50), kRed);
  EXPECT_EQ(surface.GetPixel(50, 30), kBlue);  // top of the outline
  EXPECT_EQ(surface.GetPixel(50, 27), kWhite);
  surface.SetFill(kRed, false);
  surface.DrawCircle(150, 50, 20, kBlue);
  EXPECT_EQ(surface.GetPixel(150, 50), kWhite);
  EXPECT_EQ(surface.GetPixel(130, 50), kBlue);
}

TEST_F(SurfaceDrawingTest, ABoxHoldsBothCornersAndNothingBeyond) {
  surface.DrawBox(30, 20, 10, 40, kGreen);
  EXPECT_EQ(surface.GetPixel(10, 20), kGreen);
  EXPECT_EQ(surface.GetPixel(30, 40), kGreen);
  EXPECT_EQ(surface.GetPixel(9, 20), kWhite);
  EXPECT_EQ(surface.GetPixel(31, 40), kWhite);
  EXPECT_EQ(surface.GetPixel(30, 41), kWhite);
}

TEST_F(SurfaceDrawingTest, LinesAndDotsFollowTheLineWidth) {
  surface.DrawLine(10, 10, 60, 10, kBlue);
  EXPECT_EQ(surface.GetPixel(35, 10), kBlue);
  EXPECT_EQ(surface.GetPixel(35, 11), kWhite);
  surface.SetDrawWidth(5);
  surface.DrawLine(10, 50, 60, 50, kBlue);
  EXPECT_EQ(surface.GetPixel(35, 52), kBlue);
  surface.DrawDot(100, 80, kRed);
  EXPECT_EQ(surface.GetPixel(100, 80), kRed);
  EXPECT_EQ(surface.GetPixel(101, 81), kRed);
  EXPECT_EQ(surface.GetPixel(104, 80), kWhite);
  surface.SetPixel(120, 80, kRed);
  EXPECT_EQ(surface.GetPixel(120, 80), kRed);
  EXPECT_EQ(surface.GetPixel(121, 80), kWhite);
}

TEST_F(SurfaceDrawingTest, PixelsOutsideTheClientAreaReadAsMinusOne) {
  EXPECT_EQ(surface.GetPixel(-1, 0), -1);
  EXPECT_EQ(surface.GetPixel(0, 100), -1);
  EXPECT_EQ(surface.GetPixel(200, 0), -1);
  surface.SetPixel(-1, -1, kRed);  // nothing to do
  EXPECT_EQ(surface.GetPixel(199, 99), kWhite);
}

// An outline splits the surface: the fill takes the area of the colour at
// the point, up to any other colour, and leaves the outside alone.
TEST_F(SurfaceDrawingTest, FloodFillReplacesOneAreaOfOneColour) {
  surface.SetFill(kRed, false);
  surface.DrawCircle(50, 50, 30, kBlue);
  surface.DrawBox(45, 45, 55, 55, kGreen);
  surface.SetFill(kRed, true);
  surface.FloodFill(30, 50, kWhite);
  EXPECT_EQ(surface.GetPixel(30, 50), kRed);
  EXPECT_EQ(surface.GetPixel(50, 25), kRed);   // around the box
  EXPECT_EQ(surface.GetPixel(50, 50), kGreen);  // the box is another colour
  EXPECT_EQ(surface.GetPixel(50, 20), kBlue);   // the outline stays
  EXPECT_EQ(surface.GetPixel(10, 10), kWhite);  // outside the circle
  EXPECT_EQ(surface.GetPixel(150, 90), kWhite);
  surface.SetFill(kBlue, false);
  surface.FloodFill(150, 90, kWhite);  // a transparent fill paints nothing
  EXPECT_EQ(surface.GetPixel(150, 90), kWhite);
}

TEST_F(SurfaceDrawingTest, ClearPaintsTheBackColourAndThePicture) {
  QImage picture(10, 10, QImage::Format_RGB32);
  picture.fill(Qt::blue);
  surface.SetPicture(picture);
  surface.SetBackColor(Qt::red);
  surface.Clear();
  EXPECT_EQ(surface.GetPixel(5, 5), kBlue);
  EXPECT_EQ(surface.GetPixel(15, 5), kRed);
}

TEST(ColourRefTest, RedIsTheLowByteAndHighBitValuesAreSystemColours) {
  EXPECT_EQ(ScreenColour(0x0000FF), QColor(255, 0, 0));
  EXPECT_EQ(ScreenColour(0x804020), QColor(0x20, 0x40, 0x80));
  EXPECT_EQ(LanguageColour(QColor(1, 2, 3)), 1 + 2 * 256 + 3 * 65536);
  EXPECT_EQ(ScreenColour(static_cast<std::int32_t>(0x8000000F)), QApplication::palette().color(QPalette::Button));
  EXPECT_EQ(ScreenColour(static_cast<std::int32_t>(0x80000012)),
            QApplication::palette().color(QPalette::ButtonText));
}

}  // namespace
}  // namespace tamrix
