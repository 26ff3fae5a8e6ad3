#include "windows/window_surface.h"

#include <QFontMetrics>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <utility>
#include <vector>

#include "windows/colour_ref.h"
#include "windows/screen_text.h"
#include "windows/window_metrics.h"

namespace tamrix {
namespace {

constexpr QRgb kRgbMask = 0x00FFFFFFu;

QPen FigurePen(std::int32_t colour, int width) {
  return QPen(ScreenColour(colour), std::max(width, 1), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

}  // namespace

WindowSurface::WindowSurface(QWidget& window, std::string name)
    : window_(window), name_(std::move(name)), backColor_(Qt::white), foreColor_(Qt::black) {}

void WindowSurface::PrintText(int x, int y, const std::string& text) {
  Paint([&](QPainter& painter) {
    painter.setFont(font_);
    painter.setPen(foreColor_);
    // The position is the top left of the text cell; Qt draws on the baseline.
    painter.drawText(x, y + QFontMetrics(font_).ascent(), ScreenText(text));
  });
}

void WindowSurface::Clear() {
  image_.fill(backColor_);
  if (!picture_.isNull()) {
    QPainter painter(&image_);
    painter.drawImage(0, 0, picture_);
  }
  window_.update();
}

int WindowSurface::ClientWidth() const { return window_.width(); }

int WindowSurface::ClientHeight() const { return window_.height(); }

void WindowSurface::SetCaption(const std::string& caption) {
  window_.setWindowTitle(ScreenText(caption));
}

void WindowSurface::SetFontName(const std::string& name) { font_.setFamily(ScreenText(name)); }

void WindowSurface::SetFontSize(double points) { font_.setPixelSize(std::max(PointsToPixels(points), 1)); }

void WindowSurface::SetBold(bool bold) { font_.setBold(bold); }

void WindowSurface::SetItalic(bool italic) { font_.setItalic(italic); }

void WindowSurface::SetForeColor(std::int32_t colour) { foreColor_ = ScreenColour(colour); }

void WindowSurface::SetFill(std::int32_t colour, bool solid) {
  fillColor_ = ScreenColour(colour);
  fillSolid_ = solid;
}

void WindowSurface::DrawCircle(int x, int y, int radius, std::int32_t colour) {
  Paint([&](QPainter& painter) {
    painter.setPen(FigurePen(colour, drawWidth_));
    painter.setBrush(fillSolid_ ? QBrush(fillColor_) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QPoint(x, y), radius, radius);
  });
}

void WindowSurface::DrawBox(int x1, int y1, int x2, int y2, std::int32_t colour) {
  Paint([&](QPainter& painter) {
    // Both corners belong to the box.
    const QRect box(QPoint(std::min(x1, x2), std::min(y1, y2)), QPoint(std::max(x1, x2), std::max(y1, y2)));
    painter.fillRect(box, ScreenColour(colour));
    if (drawWidth_ > 1) {
      painter.setPen(FigurePen(colour, drawWidth_));
      painter.drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
    }
  });
}

void WindowSurface::DrawLine(int x1, int y1, int x2, int y2, std::int32_t colour) {
  Paint([&](QPainter& painter) {
    painter.setPen(FigurePen(colour, drawWidth_));
    painter.drawLine(x1, y1, x2, y2);
  });
}

void WindowSurface::SetPixel(int x, int y, std::int32_t colour) {
  if (!InClient(x, y)) return;
  Cover(window_.width(), window_.height());
  image_.setPixel(x, y, ScreenColour(colour).rgb());
  window_.update();
}

void WindowSurface::DrawDot(int x, int y, std::int32_t colour) {
  Paint([&](QPainter& painter) {
    painter.setPen(FigurePen(colour, drawWidth_));
    painter.drawPoint(x, y);
  });
}

std::int32_t WindowSurface::GetPixel(int x, int y) const {
  if (!InClient(x, y)) return -1;
  // Parts of the client area that nothing has drawn on yet show the back colour.
  if (x >= image_.width() || y >= image_.height()) return LanguageColour(backColor_);
  return LanguageColour(QColor(image_.pixel(x, y)));
}

// A scanline fill of the 4-connected area of one colour, inside the client
// area; with a transparent fill nothing changes.
void WindowSurface::FloodFill(int x, int y, std::int32_t areaColour) {
  if (!fillSolid_ || !InClient(x, y)) return;
  Cover(window_.width(), window_.height());
  const QRgb area = ScreenColour(areaColour).rgb() & kRgbMask;
  const QRgb fill = fillColor_.rgb();
  if ((fill & kRgbMask) == area) return;
  const int width = std::min(window_.width(), image_.width());
  const int height = std::min(window_.height(), image_.height());
  const auto inArea = [&](int px, int py) { return (image_.pixel(px, py) & kRgbMask) == area; };
  std::vector<QPoint> seeds{QPoint(x, y)};
  while (!seeds.empty()) {
    const QPoint seed = seeds.back();
    seeds.pop_back();
    if (!inArea(seed.x(), seed.y())) continue;
    int left = seed.x();
    while (left > 0 && inArea(left - 1, seed.y())) --left;
    int right = seed.x();
    while (right + 1 < width && inArea(right + 1, seed.y())) ++right;
    for (const int row : {seed.y() - 1, seed.y() + 1}) {
      if (row < 0 || row >= height) continue;
      bool inRun = false;
      for (int px = left; px <= right; ++px) {
        const bool inside = inArea(px, row);
        if (inside && !inRun) seeds.emplace_back(px, row);
        inRun = inside;
      }
    }
    for (int px = left; px <= right; ++px) image_.setPixel(px, seed.y(), fill);
  }
  window_.update();
}

void WindowSurface::Refresh() { window_.repaint(); }

void WindowSurface::DrawPicture(int x, int y, const QImage& picture) {
  Paint([&](QPainter& painter) { painter.drawImage(x, y, picture); });
}

void WindowSurface::DrawSprite(int x, int y, const QImage& mask, const QImage& picture, const QRect& box) {
  Paint([&](QPainter& painter) {
    painter.setCompositionMode(QPainter::RasterOp_SourceAndDestination);
    painter.drawImage(QPoint(x, y), mask, box);
    painter.setCompositionMode(QPainter::RasterOp_SourceOrDestination);
    painter.drawImage(QPoint(x, y), picture, box);
  });
}

void WindowSurface::Cover(int width, int height) {
  if (width <= image_.width() && height <= image_.height()) return;
  QImage grown(std::max(width, image_.width()), std::max(height, image_.height()),
               QImage::Format_RGB32);
  grown.fill(backColor_);
  QPainter painter(&grown);
  painter.drawImage(0, 0, image_);
  painter.end();
  image_ = std::move(grown);
}

void WindowSurface::Paint(const std::function<void(QPainter&)>& draw) {
  Cover(window_.width(), window_.height());
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing, false);
  draw(painter);
  painter.end();
  window_.update();
}

bool WindowSurface::InClient(int x, int y) const {
  return x >= 0 && y >= 0 && x < window_.width() && y < window_.height();
}

}  // namespace tamrix
