#include "windows/button_skins.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "windows/colour_ref.h"
#include "windows/picture_files.h"

namespace tamrix {
namespace {

enum class Finish {
  Gradient,  // a soft top-to-bottom gradient
  Outline,   // white face, coloured border and text
  Glass,     // gradient with a light upper half
};

struct SkinDesign {
  QRgb top;
  QRgb bottom;
  QRgb border;
  QRgb text;
  QRgb focusRing;
  double radius;  // negative: half the height, a pill
  Finish finish;
};

// BtnTipo(0) to BtnTipo(8): light, blue, green, red, orange, dark, outline,
// purple pill, teal glass.
constexpr SkinDesign kDesigns[ButtonSkinStore::kSkinCount] = {
    {0xFFFAFAFA, 0xFFE4E6EA, 0xFFB4B8BF, 0xFF202124, 0xFF2F80ED, 5, Finish::Gradient},
    {0xFF4C93E6, 0xFF2F6FC4, 0xFF2960AD, 0xFFFFFFFF, 0xC8FFFFFF, 5, Finish::Gradient},
    {0xFF5BC46D, 0xFF36A049, 0xFF2E8A3F, 0xFFFFFFFF, 0xC8FFFFFF, 5, Finish::Gradient},
    {0xFFF06464, 0xFFD63D3D, 0xFFB83333, 0xFFFFFFFF, 0xC8FFFFFF, 5, Finish::Gradient},
    {0xFFF7B24E, 0xFFEE8D20, 0xFFCF7613, 0xFFFFFFFF, 0xC8FFFFFF, 5, Finish::Gradient},
    {0xFF4B5058, 0xFF2E3237, 0xFF1D2024, 0xFFF2F2F2, 0xB4FFFFFF, 5, Finish::Gradient},
    {0xFFFFFFFF, 0xFFFFFFFF, 0xFF2F80ED, 0xFF2F80ED, 0xFF2F80ED, 5, Finish::Outline},
    {0xFF9E72E2, 0xFF7A4AC6, 0xFF6A3DB3, 0xFFFFFFFF, 0xC8FFFFFF, -1, Finish::Gradient},
    {0xFF3FB6D8, 0xFF1A86B0, 0xFF15708F, 0xFFFFFFFF, 0xC8FFFFFF, 7, Finish::Glass},
};

QColor Shade(QRgb colour, int factor) {
  return factor >= 100 ? QColor(colour).lighter(factor) : QColor(colour).darker(10000 / factor);
}

// One look of one design: the face, its border, and the state's mark (a
// lighter face under the pointer, a ring with the focus, a darker sunken
// face while pressed, a faded grey when disabled).
QImage DrawLook(const SkinDesign& design, ButtonState state) {
  QImage image(kSkinWidth, kSkinHeight, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF face(0.5, 0.5, kSkinWidth - 1.0, kSkinHeight - 2.0);
  const double radius = design.radius < 0 ? face.height() / 2 : design.radius;

  // A soft shadow under the face, gone while it is pressed.
  if (state != ButtonState::Down && state != ButtonState::Disabled) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 0, 0, 40));
    p.drawRoundedRect(face.translated(0, 1), radius, radius);
  }

  const int tone = state == ButtonState::High ? 108 : state == ButtonState::Down ? 88 : 100;
  QLinearGradient gradient(face.topLeft(), face.bottomLeft());
  gradient.setColorAt(0, Shade(state == ButtonState::Down ? design.bottom : design.top, tone));
  gradient.setColorAt(1, Shade(state == ButtonState::Down ? design.top : design.bottom, tone));
  QColor border = Shade(design.border, tone);
  if (state == ButtonState::Disabled) {
    gradient.setColorAt(0, QColor(236, 236, 236));
    gradient.setColorAt(1, QColor(222, 222, 222));
    border = QColor(196, 196, 196);
  }
  if (design.finish == Finish::Outline && state == ButtonState::High) {
    gradient.setColorAt(0, QColor(235, 243, 254));
    gradient.setColorAt(1, QColor(235, 243, 254));
  }
  p.setPen(QPen(border, design.finish == Finish::Outline ? 1.6 : 1.0));
  p.setBrush(gradient);
  p.drawRoundedRect(face, radius, radius);

  if (design.finish == Finish::Glass && state != ButtonState::Disabled) {
    QPainterPath shine;
    shine.addRoundedRect(face.adjusted(1.5, 1.5, -1.5, -face.height() / 2), radius - 1.5, radius - 1.5);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, state == ButtonState::Down ? 30 : 70));
    p.drawPath(shine);
  }
  if (state == ButtonState::Focus) {
    p.setPen(QPen(QColor::fromRgba(design.focusRing), 1.5));
    p.setBrush(Qt::NoBrush);
    const double inner = std::max(radius - 2.5, 1.0);
    p.drawRoundedRect(face.adjusted(2.5, 2.5, -2.5, -2.5), inner, inner);
  }
  return image;
}

}  // namespace

ButtonSkins::ButtonSkins() {
  for (std::size_t n = 0; n < skins_.size(); ++n) {
    for (std::size_t look = 0; look < skins_[n].looks.size(); ++look) {
      skins_[n].looks[look] = DrawLook(kDesigns[n], static_cast<ButtonState>(look));
    }
    skins_[n].foreColor = QColor(kDesigns[n].text);
  }
}

void ButtonSkins::SetPicture(ButtonState state, const std::string& path) {
  skins_[0].looks[static_cast<std::size_t>(state)] = LoadPictureFile(path);
}

void ButtonSkins::SetBackColor(std::int32_t colour) { skins_[0].backColor = ScreenColour(colour); }

void ButtonSkins::SetForeColor(std::int32_t colour) { skins_[0].foreColor = ScreenColour(colour); }

}  // namespace tamrix
