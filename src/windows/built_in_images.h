// The pictures of the `Img` catalogue (FrmImagens.Imagem) and the
// animations of the `Gif` catalogue (FrmGifsAnimados.GifAni), drawn in code
// on first use. They are Tamrix's own drawings, public domain under CC0 1.0.
#pragma once

#include <QImage>
#include <vector>

namespace tamrix {

// Picture `number` of the `Img` catalogue (0 ImgPantano, 1 ImgSobre); a
// null image outside it.
QImage BuiltInImage(int number);

// An animation: its frames and how long each shows, in milliseconds.
struct Animation {
  std::vector<QImage> frames;
  std::vector<int> delays;
};

// Animation `number` of the `Gif` catalogue (0 GifSapo1, 1 GifSapo2,
// 2 GifSapa1, 3 GifSapa2); no frames outside it.
Animation BuiltInAnimation(int number);

}  // namespace tamrix
