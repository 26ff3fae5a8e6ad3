#include "windows/sprite_mask.h"

#include <QPainter>

namespace tamrix {

SpriteImages BuildSprite(const QImage& source) {
  SpriteImages sprite;
  sprite.picture = QImage(source.size(), QImage::Format_RGB32);
  sprite.picture.fill(Qt::white);
  {
    QPainter painter(&sprite.picture);
    painter.drawImage(0, 0, source);
  }
  sprite.mask = QImage(source.size(), QImage::Format_RGB32);
  const QRgb white = qRgb(255, 255, 255);
  const QRgb black = qRgb(0, 0, 0);
  for (int y = 0; y < sprite.picture.height(); ++y) {
    auto* picture = reinterpret_cast<QRgb*>(sprite.picture.scanLine(y));
    auto* mask = reinterpret_cast<QRgb*>(sprite.mask.scanLine(y));
    for (int x = 0; x < sprite.picture.width(); ++x) {
      const bool isWhite = (picture[x] & 0x00FFFFFFu) == 0x00FFFFFFu;
      mask[x] = isWhite ? white : black;
      if (isWhite) picture[x] = black;
    }
  }
  return sprite;
}

}  // namespace tamrix
