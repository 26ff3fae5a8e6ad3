#include "windows/window_metrics.h"

#include <algorithm>
#include <cmath>

namespace tamrix {

int TwipsToPixels(int twips) {
  return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

PixelSize ClientSizeForOuter(int widthTwips, int heightTwips) {
  const int width = TwipsToPixels(widthTwips) - 2 * kFrameBorderPixels;
  const int height = TwipsToPixels(heightTwips) - 2 * kFrameBorderPixels - kTitleBarPixels;
  return {std::max(width, 0), std::max(height, 0)};
}

PixelRect CentredClientRect(int widthTwips, int heightTwips, PixelSize screen) {
  const int outerLeft = (screen.width - TwipsToPixels(widthTwips)) / 2;
  const int outerTop = (screen.height - TwipsToPixels(heightTwips)) / 2;
  const PixelSize client = ClientSizeForOuter(widthTwips, heightTwips);
  return {outerLeft + kFrameBorderPixels, outerTop + kFrameBorderPixels + kTitleBarPixels,
          client.width, client.height};
}

int PointsToPixels(double points) {
  return static_cast<int>(std::lround(points * kPixelsPerInch / kPointsPerInch));
}

}  // namespace tamrix
