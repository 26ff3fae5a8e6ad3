#include "windows/window_surface.h"

#include <QWidget>
#include <gtest/gtest.h>

namespace tamrix {
namespace {

// How many pixels of `image` inside `area` have exactly `color`.
int CountPixels(const QImage& image, const QRect& area, const QColor& color) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      if (image.pixelColor(x, y) == color) ++count;
    }
  }
  return count;
}

// How many pixels inside `area` the text has touched: antialiased text is
// only partly of the exact fore colour.
int CountInked(const QImage& image, const QRect& area) {
  return area.width() * area.height() - CountPixels(image, area, Qt::white);
}

class WindowSurfaceTest : public testing::Test {
 protected:
  WindowSurfaceTest() : surface(window, "W") {
    window.resize(200, 100);
    surface.SetBackColor(Qt::white);
    surface.SetForeColor(Qt::black);
    QFont font(QStringLiteral("Courier New"));
    font.setPixelSize(13);
    surface.SetFont(font);
    surface.Cover(window.width(), window.height());
    surface.Clear();
  }

  QWidget window;
  WindowSurface surface;
};

TEST_F(WindowSurfaceTest, TextHangsBelowItsPosition) {
  surface.PrintText(10, 20, "Hello");
  const QImage& image = surface.Image();
  // Inside the cell of five 8 pixel columns and one 14 pixel line...
  EXPECT_GT(CountInked(image, QRect(10, 20, 40, 14)), 40);
  // ...and nothing above it or left of it.
  EXPECT_EQ(CountInked(image, QRect(0, 0, 200, 20)), 0);
  EXPECT_EQ(CountInked(image, QRect(0, 0, 10, 100)), 0);
}

TEST_F(WindowSurfaceTest, ClearPaintsTheBackColour) {
  surface.PrintText(0, 0, "XXXX");
  surface.SetBackColor(Qt::blue);
  surface.Clear();
  const QImage& image = surface.Image();
  EXPECT_EQ(CountPixels(image, image.rect(), Qt::blue), image.width() * image.height());
}

TEST_F(WindowSurfaceTest, OutputSurvivesShrinkingAndGrowing) {
  surface.PrintText(150, 80, "far");
  window.resize(50, 30);
  surface.Cover(window.width(), window.height());
  window.resize(300, 200);
  surface.Cover(window.width(), window.height());
  const QImage& image = surface.Image();
  EXPECT_EQ(image.size(), QSize(300, 200));
  EXPECT_GT(CountInked(image, QRect(150, 80, 24, 14)), 20);
  // The new part has the back colour.
  EXPECT_EQ(CountPixels(image, QRect(200, 100, 100, 100), Qt::white), 100 * 100);
}

TEST_F(WindowSurfaceTest, PrintingBeyondTheImageGrowsItToTheWindow) {
  window.resize(400, 300);
  surface.PrintText(350, 250, "edge");
  EXPECT_EQ(surface.Image().size(), QSize(400, 300));
}

TEST_F(WindowSurfaceTest, ClientSizeAndCaptionAreTheWindows) {
  EXPECT_EQ(surface.ClientWidth(), 200);
  EXPECT_EQ(surface.ClientHeight(), 100);
  surface.SetCaption("Caf\xE9 \x80");
  EXPECT_EQ(window.windowTitle(), QString::fromUtf8("Caf\u00e9 \u20ac"));
  EXPECT_EQ(surface.Name(), "W");
}

}  // namespace
}  // namespace tamrix
