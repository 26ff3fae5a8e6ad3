// The drawing surface of a run-time window: a persistent image behind the
// client area. Everything printed goes into the image; the window paints the
// image when it is exposed, so output survives covering and resizing.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <string>

#include "core/desktop.h"

class QWidget;

namespace tamrix {

class WindowSurface : public Surface {
 public:
  // `window` is the widget whose client area this is; `name` its upper-case
  // name ("PARENT" for the main window).
  WindowSurface(QWidget& window, std::string name);

  std::string Name() const override { return name_; }
  void PrintText(int x, int y, const std::string& text) override;
  void Clear() override;
  int ClientWidth() const override;
  int ClientHeight() const override;
  void SetCaption(const std::string& caption) override;

  void SetBackColor(const QColor& color) { backColor_ = color; }
  void SetForeColor(const QColor& color) { foreColor_ = color; }
  void SetFont(const QFont& font) { font_ = font; }
  const QColor& BackColor() const { return backColor_; }
  const QColor& ForeColor() const { return foreColor_; }
  const QFont& Font() const { return font_; }

  // Grows the image to cover at least this size; it never shrinks, so text
  // hidden by making the window smaller comes back when it grows again.
  void Cover(int width, int height);
  const QImage& Image() const { return image_; }

 private:
  QWidget& window_;
  std::string name_;
  QImage image_;
  QColor backColor_;
  QColor foreColor_;
  QFont font_;
};

}  // namespace tamrix
