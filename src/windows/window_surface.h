// The drawing surface of a run-time window: a persistent image behind the
// client area. Everything printed and drawn goes into the image; the window
// paints the image when it is exposed, so output survives covering and
// resizing.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <functional>
#include <string>

#include "core/desktop.h"

class QPainter;
class QWidget;

namespace tamrix {

class WindowSurface : public Surface {
 public:
  // `window` is the widget whose client area this is; `name` its upper-case
  // name ("PARENT" for the main window).
  WindowSurface(QWidget& window, std::string name);

  std::string Name() const override { return name_; }
  void PrintText(int x, int y, const std::string& text) override;
  // The back colour and the picture over it.
  void Clear() override;
  int ClientWidth() const override;
  int ClientHeight() const override;
  void SetCaption(const std::string& caption) override;

  void SetFontName(const std::string& name) override;
  void SetFontSize(double points) override;
  void SetBold(bool bold) override;
  void SetItalic(bool italic) override;
  void SetForeColor(std::int32_t colour) override;

  int DrawWidth() const override { return drawWidth_; }
  void SetDrawWidth(int width) override { drawWidth_ = width; }
  void SetFill(std::int32_t colour, bool solid) override;
  void DrawCircle(int x, int y, int radius, std::int32_t colour) override;
  void DrawBox(int x1, int y1, int x2, int y2, std::int32_t colour) override;
  void DrawLine(int x1, int y1, int x2, int y2, std::int32_t colour) override;
  void SetPixel(int x, int y, std::int32_t colour) override;
  void DrawDot(int x, int y, std::int32_t colour) override;
  std::int32_t GetPixel(int x, int y) const override;
  void FloodFill(int x, int y, std::int32_t areaColour) override;
  void Refresh() override;

  void SetBackColor(const QColor& color) { backColor_ = color; }
  void SetForeColor(const QColor& color) { foreColor_ = color; }
  void SetFont(const QFont& font) { font_ = font; }
  const QColor& BackColor() const { return backColor_; }
  const QColor& ForeColor() const { return foreColor_; }
  const QFont& Font() const { return font_; }
  // The window's picture, drawn over the back colour by Clear; a null image
  // for none.
  void SetPicture(const QImage& picture) { picture_ = picture; }
  void DrawPicture(int x, int y, const QImage& picture);
  // A sprite: the part `box` of the mask ANDed onto the drawing, then the
  // same part of the picture ORed over it, so that the white of the mask
  // leaves the drawing as it was.
  void DrawSprite(int x, int y, const QImage& mask, const QImage& picture, const QRect& box);
  // An Image object's surface takes its object's name.
  void Rename(std::string name) { name_ = std::move(name); }

  // Grows the image to cover at least this size; it never shrinks, so text
  // hidden by making the window smaller comes back when it grows again.
  void Cover(int width, int height);
  const QImage& Image() const { return image_; }

 private:
  // A painter on the image, grown to the window first, without smoothing:
  // every pixel has exactly the colour drawn, so that ReadPoint and Paint
  // find it.
  void Paint(const std::function<void(QPainter&)>& draw);
  bool InClient(int x, int y) const;

  QWidget& window_;
  std::string name_;
  QImage image_;
  QImage picture_;
  QColor backColor_;
  QColor foreColor_;
  QFont font_;
  int drawWidth_ = 1;
  QColor fillColor_;
  bool fillSolid_ = false;
};

}  // namespace tamrix
