// The control of a Picture object: no widget, only the picture and its
// mask, which DrawPictures paints on a window's surface.
#pragma once

#include <QImage>
#include <QSize>

#include "windows/qt_object_control.h"
#include "windows/sprite_mask.h"

namespace tamrix {

class QtPictureControl final : public QtObjectControl, public PictureControl {
 public:
  QtPictureControl(int index, WindowLookup lookup);

  void SetSource(const PictureSource& source) override;
  int PictureWidth() const override { return box_.width(); }
  int PictureHeight() const override { return box_.height(); }
  void PaintOn(Surface& surface, int x, int y) override;

  // The box that holds the picture: what lies outside it isn't painted.
  void SetHeight(int pixels) override { box_.setHeight(std::max(pixels, 0)); }
  void SetWidth(int pixels) override { box_.setWidth(std::max(pixels, 0)); }
  // The box is never seen: its colours change nothing.
  void SetBackColor(std::int32_t) override {}
  void SetForeColor(std::int32_t) override {}

 private:
  SpriteImages sprite_;
  QSize box_;
};

}  // namespace tamrix
