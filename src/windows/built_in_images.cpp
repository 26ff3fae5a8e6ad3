#include "windows/built_in_images.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace tamrix {
namespace {

constexpr int kImageWidth = 320;
constexpr int kImageHeight = 200;
constexpr int kFrogFrameSize = 64;
constexpr int kFrogFrames = 8;
constexpr int kFrameMilliseconds = 100;

// ImgPantano: a swamp at dusk, with reeds and lily pads.
QImage Swamp() {
  QImage image(kImageWidth, kImageHeight, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient sky(0, 0, 0, 120);
  sky.setColorAt(0, QColor(250, 190, 120));
  sky.setColorAt(1, QColor(120, 160, 200));
  p.fillRect(0, 0, kImageWidth, 120, sky);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(255, 230, 160));
  p.drawEllipse(QPointF(240, 70), 22, 22);
  p.setBrush(QColor(60, 100, 70));
  p.drawRect(0, 100, kImageWidth, 25);
  QLinearGradient water(0, 120, 0, kImageHeight);
  water.setColorAt(0, QColor(70, 110, 100));
  water.setColorAt(1, QColor(30, 60, 55));
  p.fillRect(0, 120, kImageWidth, kImageHeight - 120, water);
  p.setBrush(QColor(70, 150, 80));
  const QPointF pads[] = {{60, 160}, {150, 178}, {250, 150}, {110, 140}};
  for (const QPointF& pad : pads) p.drawPie(QRectF(pad.x() - 22, pad.y() - 8, 44, 16), 30 * 16, 320 * 16);
  p.setPen(QPen(QColor(40, 80, 40), 3, Qt::SolidLine, Qt::RoundCap));
  for (int x = 8; x < kImageWidth; x += 23) {
    const int height = 40 + (x * 37) % 45;
    p.drawLine(QPointF(x, 125), QPointF(x + 4 - (x % 9), 125 - height));
  }
  return image;
}

// ImgSobre: the picture of an About window, a frog on a panel.
QImage About() {
  QImage image(kImageWidth, kImageHeight, QImage::Format_RGB32);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient panel(0, 0, kImageWidth, kImageHeight);
  panel.setColorAt(0, QColor(40, 90, 160));
  panel.setColorAt(1, QColor(20, 40, 90));
  p.fillRect(image.rect(), panel);
  p.setPen(QPen(QColor(255, 255, 255, 120), 2));
  p.setBrush(Qt::NoBrush);
  p.drawRoundedRect(QRectF(8, 8, kImageWidth - 16, kImageHeight - 16), 12, 12);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(90, 190, 90));
  p.drawEllipse(QPointF(90, 110), 50, 38);
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(70, 72), 14, 14);
  p.drawEllipse(QPointF(110, 72), 14, 14);
  p.setBrush(Qt::black);
  p.drawEllipse(QPointF(72, 74), 6, 6);
  p.drawEllipse(QPointF(108, 74), 6, 6);
  p.setPen(QPen(QColor(30, 90, 40), 3, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(QRectF(65, 100, 50, 25), 200 * 16, 140 * 16);
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(30);
  font.setBold(true);
  p.setFont(font);
  p.setPen(Qt::white);
  p.drawText(QRectF(150, 70, 160, 40), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Tamrix"));
  font.setPixelSize(13);
  font.setBold(false);
  p.setFont(font);
  p.drawText(QRectF(150, 110, 160, 20), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("pictures without files"));
  return image;
}

// How a frog of the catalogue moves.
struct FrogLook {
  QColor body;
  bool bow;      // the female frogs wear one
  bool jumping;  // hops, or else sits and sings
};

// Frame `frame` of a frog animation on a transparent square: the body
// rises on a half sine when it hops; its throat swells when it sings.
QImage FrogFrame(const FrogLook& look, int frame) {
  QImage image(kFrogFrameSize, kFrogFrameSize, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  const double phase = static_cast<double>(frame) / kFrogFrames;
  const double lift = look.jumping ? 18 * std::sin(phase * std::numbers::pi) : 0;
  const double throat = look.jumping ? 0 : 6 * std::sin(phase * 2 * std::numbers::pi);
  const double base = 52 - lift;
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0, 0, 0, 50));
  p.drawEllipse(QPointF(32, 58), 18 - lift / 3, 3);
  p.setBrush(look.body.darker(130));
  const double legs = look.jumping ? lift / 2 : 0;
  p.drawEllipse(QPointF(16, base - 2 + legs), 9, 5);
  p.drawEllipse(QPointF(48, base - 2 + legs), 9, 5);
  p.setBrush(look.body);
  p.drawEllipse(QPointF(32, base - 12), 20, 14);
  p.drawEllipse(QPointF(22, base - 25), 7, 7);
  p.drawEllipse(QPointF(42, base - 25), 7, 7);
  if (throat > 0) {
    p.setBrush(QColor(250, 230, 150));
    p.drawEllipse(QPointF(32, base - 6), 6 + throat, 3 + throat / 2);
  }
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(22, base - 26), 4, 4);
  p.drawEllipse(QPointF(42, base - 26), 4, 4);
  p.setBrush(Qt::black);
  p.drawEllipse(QPointF(23, base - 26), 2, 2);
  p.drawEllipse(QPointF(41, base - 26), 2, 2);
  if (look.bow) {
    p.setBrush(QColor(230, 60, 120));
    p.drawPolygon(QPolygonF({{32, base - 32}, {24, base - 38}, {24, base - 26}}));
    p.drawPolygon(QPolygonF({{32, base - 32}, {40, base - 38}, {40, base - 26}}));
    p.drawEllipse(QPointF(32, base - 32), 3, 3);
  }
  return image;
}

}  // namespace

QImage BuiltInImage(int number) {
  switch (number) {
    case 0: {
      static const QImage swamp = Swamp();
      return swamp;
    }
    case 1: {
      static const QImage about = About();
      return about;
    }
    default:
      return QImage();
  }
}

Animation BuiltInAnimation(int number) {
  static const FrogLook kLooks[] = {
      {QColor(80, 170, 70), false, true},
      {QColor(60, 140, 90), false, false},
      {QColor(120, 190, 80), true, true},
      {QColor(100, 170, 110), true, false},
  };
  Animation animation;
  if (number < 0 || number >= static_cast<int>(std::size(kLooks))) return animation;
  for (int frame = 0; frame < kFrogFrames; ++frame) {
    animation.frames.push_back(FrogFrame(kLooks[number], frame));
    animation.delays.push_back(kFrameMilliseconds);
  }
  return animation;
}

}  // namespace tamrix
