// The pictures of the `Pic` catalogue (FrmFiguras.Fig): 33 small icons,
// drawn once on first use, on a transparent background.
#pragma once

#include <QImage>

namespace tamrix {

inline constexpr int kBuiltInPictureSize = 20;

// Picture `number` of the catalogue (0 = PicOK ... 32 = PicMonitor); a null
// image for a number outside it.
QImage BuiltInPicture(int number);

}  // namespace tamrix
