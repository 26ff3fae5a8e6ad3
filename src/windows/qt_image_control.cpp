#include "windows/qt_image_control.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include "bridges/image_codec.h"
#include "core/fault.h"
#include "windows/colour_ref.h"
#include "windows/picture_files.h"

namespace tamrix {
namespace {

// The template Img: 1815 by 1455 twips.
constexpr int kImageWidth = 121;
constexpr int kImageHeight = 97;

// The button codes of the mouse tables: 1 left, 2 right, 4 middle.
std::int32_t ButtonCode(Qt::MouseButtons buttons) {
  std::int32_t code = 0;
  if (buttons & Qt::LeftButton) code |= 1;
  if (buttons & Qt::RightButton) code |= 2;
  if (buttons & Qt::MiddleButton) code |= 4;
  return code;
}

// The drawing covers the widget before it is cleared, so that a picture
// set on a new image is painted into it.
void ClearToWidget(ImageWidget& image) {
  image.Surface().Cover(image.width(), image.height());
  image.Surface().Clear();
}

}  // namespace

ImageWidget::ImageWidget(QWidget* parent, ImageMouse& mouse)
    : QWidget(parent), surface_(*this, std::string()), mouse_(mouse) {
  setMouseTracking(true);
}

void ImageWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), surface_.BackColor());
  painter.drawImage(0, 0, surface_.Image());
}

void ImageWidget::Track(QMouseEvent* event) {
  mouse_.x = static_cast<std::int32_t>(event->position().x());
  mouse_.y = static_cast<std::int32_t>(event->position().y());
  mouse_.button = ButtonCode(event->buttons());
}

void ImageWidget::mousePressEvent(QMouseEvent* event) { Track(event); }
void ImageWidget::mouseReleaseEvent(QMouseEvent* event) { Track(event); }
void ImageWidget::mouseMoveEvent(QMouseEvent* event) { Track(event); }

QtImageControl::QtImageControl(QWidget& window, int index, WindowLookup lookup)
    : QtObjectControl(new ImageWidget(&window, mouse), ObjectKind::Image, index, std::move(lookup)) {
  Widget()->hide();
  Widget()->resize(kImageWidth, kImageHeight);
  ClearToWidget(Image());
}

ImageWidget& QtImageControl::Image() const {
  auto* image = static_cast<ImageWidget*>(Widget());
  if (image == nullptr) Throw(kObjectNotSet);
  return *image;
}

Surface& QtImageControl::Drawing() { return Image().Surface(); }

void QtImageControl::Rename(const std::string& name) { Image().Surface().Rename(name); }

void QtImageControl::SetSource(const PictureSource& source) {
  const QImage picture = PictureOf(source);
  WindowSurface& surface = Image().Surface();
  surface.SetPicture(picture);
  pictureSize_ = picture.size();
  if (autoSize_ && !picture.isNull()) Image().resize(pictureSize_);
  ClearToWidget(Image());
  surface.Refresh();
}

void QtImageControl::PaintFile(const std::string& path, int x, int y) {
  const QImage picture = LoadPictureFile(path);
  Image().Surface().DrawPicture(x, y, picture);
  Image().Surface().Refresh();
}

// From now on the size follows the picture; there is no way back.
void QtImageControl::SetAutoSize() {
  autoSize_ = true;
  if (pictureSize_.isEmpty()) return;
  Image().resize(pictureSize_);
  ClearToWidget(Image());
  Image().Surface().Refresh();
}

// The drawing as it shows is copied, the image cleared and the copy painted
// back at the new size.
void QtImageControl::Rescale(int width, int height) {
  ImageWidget& image = Image();
  WindowSurface& surface = image.Surface();
  const QImage shown = surface.Image().copy(0, 0, image.width(), image.height());
  const QImage scaled = shown.scaled(std::max(width, 1), std::max(height, 1), Qt::IgnoreAspectRatio,
                                     Qt::SmoothTransformation);
  image.resize(width, height);
  surface.SetPicture(QImage());
  ClearToWidget(image);
  surface.DrawPicture(0, 0, scaled);
  surface.Refresh();
}

void QtImageControl::SaveBitmap(const std::string& path) {
  ImageWidget& image = Image();
  const QImage shown = image.Surface().Image().copy(0, 0, image.width(), image.height());
  if (!SavePicture(shown, path, kFormatBmp, 0, 24)) Throw(kPathFileAccessError);
}

bool QtImageControl::ConvertBitmapToJpeg(const std::string& bitmap, const std::string& jpeg, int quality) {
  return ConvertFileToJpeg(bitmap, jpeg, quality);
}

void QtImageControl::SetMouseIcon(const std::string& path) {
  const QImage icon = path.empty() ? QImage() : ReadPictureFile(path);
  if (icon.isNull()) {
    Image().unsetCursor();
  } else {
    Image().setCursor(QCursor(QPixmap::fromImage(icon)));
  }
}

void QtImageControl::SetOrder(bool front) {
  if (front) {
    Image().raise();
  } else {
    Image().lower();
  }
}

// The native window that holds the image: the X11 window of its top-level
// window; no child gets a native window of its own.
std::int64_t QtImageControl::WindowHandle() const {
  return static_cast<std::int64_t>(Image().effectiveWinId());
}

std::int32_t QtImageControl::DrawingForeColor() const { return LanguageColour(Image().Surface().ForeColor()); }

// A new back colour clears the drawing to it.
void QtImageControl::SetBackColor(std::int32_t colour) {
  WindowSurface& surface = Image().Surface();
  surface.SetBackColor(ScreenColour(colour));
  ClearToWidget(Image());
  surface.Refresh();
}

void QtImageControl::SetForeColor(std::int32_t colour) { Image().Surface().SetForeColor(colour); }
void QtImageControl::SetFontName(const std::string& name) { Image().Surface().SetFontName(name); }
void QtImageControl::SetFontSize(double points) { Image().Surface().SetFontSize(points); }
void QtImageControl::SetBold(bool bold) { Image().Surface().SetBold(bold); }
void QtImageControl::SetItalic(bool italic) { Image().Surface().SetItalic(italic); }

}  // namespace tamrix
