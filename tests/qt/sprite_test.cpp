// A sprite's mask and picture, and how they compose on a surface.
#include <QWidget>
#include <gtest/gtest.h>

#include "windows/sprite_mask.h"
#include "windows/window_surface.h"

namespace tamrix {
namespace {

const QRgb kWhite = qRgb(255, 255, 255);
const QRgb kBlack = qRgb(0, 0, 0);
const QRgb kRed = qRgb(200, 0, 0);
const QRgb kNearWhite = qRgb(254, 255, 255);

// Four pixels: white, red, almost white, transparent.
QImage Source() {
  QImage source(4, 1, QImage::Format_ARGB32);
  source.setPixel(0, 0, kWhite);
  source.setPixel(1, 0, kRed);
  source.setPixel(2, 0, kNearWhite);
  source.setPixel(3, 0, qRgba(0, 0, 0, 0));
  return source;
}

TEST(SpriteMask, WhiteAndTransparentBecomeTheHoles) {
  const SpriteImages sprite = BuildSprite(Source());
  const QRgb maskExpected[] = {kWhite, kBlack, kBlack, kWhite};
  const QRgb pictureExpected[] = {kBlack, kRed, kNearWhite, kBlack};
  for (int x = 0; x < 4; ++x) {
    EXPECT_EQ(sprite.mask.pixel(x, 0), maskExpected[x]) << x;
    EXPECT_EQ(sprite.picture.pixel(x, 0), pictureExpected[x]) << x;
  }
}

TEST(SpriteMask, TheWindowShowsThroughOnlyWhereTheSourceWasWhite) {
  QWidget window;
  window.resize(20, 10);
  WindowSurface surface(window, "W");
  const QColor green(10, 160, 40);
  surface.SetBackColor(green);
  surface.Cover(20, 10);
  surface.Clear();
  const SpriteImages sprite = BuildSprite(Source());
  surface.DrawSprite(5, 3, sprite.mask, sprite.picture, QRect(0, 0, 4, 1));
  const QImage& drawn = surface.Image();
  EXPECT_EQ(drawn.pixel(5, 3), green.rgb());
  EXPECT_EQ(drawn.pixel(6, 3), kRed);
  EXPECT_EQ(drawn.pixel(7, 3), kNearWhite);
  EXPECT_EQ(drawn.pixel(8, 3), green.rgb());
  EXPECT_EQ(drawn.pixel(4, 3), green.rgb());  // nothing outside the sprite
}

// A box smaller than the picture cuts it.
TEST(SpriteMask, TheBoxLimitsWhatIsPainted) {
  QWidget window;
  window.resize(20, 10);
  WindowSurface surface(window, "W");
  surface.SetBackColor(Qt::white);
  surface.Cover(20, 10);
  surface.Clear();
  const SpriteImages sprite = BuildSprite(Source());
  surface.DrawSprite(0, 0, sprite.mask, sprite.picture, QRect(0, 0, 1, 1));
  EXPECT_EQ(surface.Image().pixel(1, 0), kWhite);
}

}  // namespace
}  // namespace tamrix
