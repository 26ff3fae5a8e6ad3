// Window geometry: outer window sizes are counted in twips, client areas and
// everything drawn in them in pixels. Qt-free so that it can be tested alone.
#pragma once

#include "core/run_time_window.h"

namespace tamrix {

// An outer size includes the frame of a sizable window with the classic
// desktop metrics: a 4 pixel sizing border on every side and a 19 pixel title
// bar. The client area is what is left, whatever decoration the window
// manager really draws around it, so that a program sees the same client
// size on every display.
inline constexpr int kFrameBorderPixels = 4;
inline constexpr int kTitleBarPixels = 19;

// The main window starts at 9600 by 6200 twips: 80 columns, about 25 lines.
inline constexpr int kMainWindowWidthTwips = 9600;
inline constexpr int kMainWindowHeightTwips = 6200;

// Fonts are sized in points on a 96 dpi screen.
inline constexpr int kPixelsPerInch = 96;
inline constexpr int kPointsPerInch = 72;

struct PixelSize {
  int width = 0;
  int height = 0;
};

struct PixelRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// Twips to whole pixels, rounded to the nearest.
int TwipsToPixels(int twips);
// The client size of a window of this outer size; never negative.
PixelSize ClientSizeForOuter(int widthTwips, int heightTwips);
// The client rectangle, in screen pixels, of a window of this outer size
// whose outer rectangle is centred on a screen of the given size.
PixelRect CentredClientRect(int widthTwips, int heightTwips, PixelSize screen);
// A font size in points as a pixel height on the 96 dpi screen, rounded.
int PointsToPixels(double points);

}  // namespace tamrix
