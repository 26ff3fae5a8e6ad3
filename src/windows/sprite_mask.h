// The picture and mask pair of a sprite.
#pragma once

#include <QImage>

namespace tamrix {

struct SpriteImages {
  QImage picture;  // the source over white, with its white turned black
  QImage mask;     // white where the source is white, black elsewhere
};

// Transparent parts of the source count as white: the picture box behind
// it is white.
SpriteImages BuildSprite(const QImage& source);

}  // namespace tamrix
