#include "windows/window_surface.h"

#include <QFontMetrics>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "windows/screen_text.h"

namespace tamrix {

WindowSurface::WindowSurface(QWidget& window, std::string name)
    : window_(window), name_(std::move(name)), backColor_(Qt::white), foreColor_(Qt::black) {}

void WindowSurface::PrintText(int x, int y, const std::string& text) {
  Cover(window_.width(), window_.height());
  QPainter painter(&image_);
  painter.setFont(font_);
  painter.setPen(foreColor_);
  // The position is the top left of the text cell; Qt draws on the baseline.
  painter.drawText(x, y + QFontMetrics(font_).ascent(), ScreenText(text));
  painter.end();
  window_.update();
}

void WindowSurface::Clear() {
  image_.fill(backColor_);
  window_.update();
}

int WindowSurface::ClientWidth() const { return window_.width(); }

int WindowSurface::ClientHeight() const { return window_.height(); }

void WindowSurface::SetCaption(const std::string& caption) {
  window_.setWindowTitle(ScreenText(caption));
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

}  // namespace tamrix
