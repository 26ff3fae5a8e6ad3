#include "windows/window_metrics.h"

#include <gtest/gtest.h>

namespace tamrix {
namespace {

TEST(WindowMetrics, MainWindowClientAreaIsOuterSizeLessTheFrame) {
  // 9600 by 6200 twips is 640 by 413 pixels outside.
  const PixelSize client = ClientSizeForOuter(kMainWindowWidthTwips, kMainWindowHeightTwips);
  EXPECT_EQ(client.width, 640 - 8);
  EXPECT_EQ(client.height, 413 - 8 - 19);
}

TEST(WindowMetrics, TwipsRoundToTheNearestPixel) {
  EXPECT_EQ(TwipsToPixels(6200), 413);  // 413.33
  EXPECT_EQ(TwipsToPixels(5000), 333);  // 20 lines and the frame: 333.33
  EXPECT_EQ(TwipsToPixels(7), 0);
  EXPECT_EQ(TwipsToPixels(8), 1);
}

TEST(WindowMetrics, ClientAreaOfATinyWindowIsEmptyNotNegative) {
  const PixelSize client = ClientSizeForOuter(60, 100);
  EXPECT_EQ(client.width, 0);
  EXPECT_EQ(client.height, 0);
}

TEST(WindowMetrics, OuterRectangleIsCentredOnTheScreen) {
  const PixelRect client = CentredClientRect(9600, 6200, {800, 600});
  // Outer 640 by 413 at (80, 93); the client starts inside the frame.
  EXPECT_EQ(client.left, 80 + 4);
  EXPECT_EQ(client.top, 93 + 4 + 19);
  EXPECT_EQ(client.width, 632);
  EXPECT_EQ(client.height, 386);
}

TEST(WindowMetrics, TenPointsAreThirteenPixels) {
  EXPECT_EQ(PointsToPixels(10), 13);
  EXPECT_EQ(PointsToPixels(12), 16);
  EXPECT_EQ(PointsToPixels(8.25), 11);
}

}  // namespace
}  // namespace tamrix
