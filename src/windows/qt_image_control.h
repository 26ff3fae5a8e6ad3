// The control of an Image object: a widget with a drawing surface of its
// own, of the same kind as a window's.
#pragma once

#include <QWidget>

#include "windows/qt_object_control.h"
#include "windows/window_surface.h"

namespace tamrix {

// The widget shows its surface and keeps the mouse state of its object.
class ImageWidget final : public QWidget {
 public:
  ImageWidget(QWidget* parent, ImageMouse& mouse);
  WindowSurface& Surface() { return surface_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void Track(QMouseEvent* event);

  WindowSurface surface_;
  ImageMouse& mouse_;
};

class QtImageControl final : public QtObjectControl, public ImageControl {
 public:
  QtImageControl(QWidget& window, int index, WindowLookup lookup);

  Surface& Drawing() override;
  void SetSource(const PictureSource& source) override;
  void PaintFile(const std::string& path, int x, int y) override;
  void SetAutoSize() override;
  void Rescale(int width, int height) override;
  void SaveBitmap(const std::string& path) override;
  bool ConvertBitmapToJpeg(const std::string& bitmap, const std::string& jpeg, int quality) override;
  void SetMouseIcon(const std::string& path) override;
  void SetOrder(bool front) override;
  std::int64_t WindowHandle() const override;
  std::int64_t DrawingHandle() const override { return 0; }
  std::int32_t DrawingForeColor() const override;

  void SetBackColor(std::int32_t colour) override;
  void SetForeColor(std::int32_t colour) override;
  void SetFontName(const std::string& name) override;
  void SetFontSize(double points) override;
  void SetBold(bool bold) override;
  void SetItalic(bool italic) override;

  void Rename(const std::string& name) override;

 private:
  // Fails with error 91 once the widget has gone with its window.
  ImageWidget& Image() const;

  bool autoSize_ = false;
  QSize pictureSize_;
};

}  // namespace tamrix
