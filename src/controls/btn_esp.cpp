#include "controls/btn_esp.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QThread>

#include "controls/virtual_keys.h"

namespace tamrix {
namespace {

constexpr int kHoverMilliseconds = 100;
constexpr int kTransparencyMilliseconds = 300;
constexpr int kTransparencySamples = 2;
constexpr int kKeyClickMilliseconds = 100;

// The classic layout in twips, at 15 twips a pixel: the face sits 20 twips
// in (30 when pressed) and is 50 twips smaller than the button; a picture
// stands 200 twips before the caption; the focus mark runs 40 twips inside
// the face; the sampling point lies 50 twips to the right of the button.
constexpr int kFaceOffsetUp = 1;
constexpr int kFaceOffsetDown = 2;
constexpr int kFaceShrink = 3;
constexpr int kPictureGap = 13;
constexpr int kFocusInset = 3;
constexpr int kSampleDistance = 3;

const QColor kFrameDark(120, 120, 120);
const QColor kFrameLight(170, 170, 170);
const QColor kFocusMark(128, 128, 128);

}  // namespace

BtnEsp::BtnEsp(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  const QPalette colours = QApplication::palette();
  backColor_ = colours.color(QPalette::Button);
  foreColor_ = colours.color(QPalette::ButtonText);

  hoverTimer_.setInterval(kHoverMilliseconds);
  connect(&hoverTimer_, &QTimer::timeout, this, &BtnEsp::TrackPointer);
  transparencyTimer_.setInterval(kTransparencyMilliseconds);
  connect(&transparencyTimer_, &QTimer::timeout, this, &BtnEsp::SampleBackground);
  transparencyTimer_.start();
}

void BtnEsp::SetCaption(const QString& caption) {
  caption_ = caption;
  update();
}

void BtnEsp::SetBackColor(const QColor& colour) {
  backColor_ = colour;
  update();
}

void BtnEsp::SetForeColor(const QColor& colour) {
  foreColor_ = colour;
  update();
}

void BtnEsp::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void BtnEsp::SetStyle(int style) {
  style_ = style;
  update();
}

void BtnEsp::SetLookPicture(Look look, const QImage& picture) {
  lookPictures_[static_cast<std::size_t>(look)] = picture;
  update();
}

void BtnEsp::ShowLook(Look look) {
  look_ = look;
  update();
}

void BtnEsp::PressLook() {
  pressedLook_ = true;
  ShowLook(Down);
}

void BtnEsp::ReleaseLook() {
  pressedLook_ = false;
  ShowLook(pointerOver_ ? High : Up);
}

bool BtnEsp::PointerIsOver() const { return QApplication::widgetAt(QCursor::pos()) == this; }

void BtnEsp::TrackPointer() {
  if (!isEnabled()) {
    ShowLook(Disabled);
    hoverTimer_.stop();
    return;
  }
  if (PointerIsOver()) {
    pointerOver_ = true;
    if (!hoverPainted_) {
      ShowLook(High);
      hoverPainted_ = true;
    }
    return;
  }
  pointerOver_ = false;
  ShowLook(hasFocus_ ? Focus : Up);
  hoverPainted_ = false;
  hoverTimer_.stop();
}

// Takes the colour of the container's own drawing (not of other controls)
// just right of the button, at half its height.
void BtnEsp::SampleBackground() {
  if (++transparencyTicks_ >= kTransparencySamples) transparencyTimer_.stop();
  QWidget* container = parentWidget();
  if (!transparent_ || container == nullptr) return;
  const QPoint point(x() + width() + kSampleDistance, y() + height() / 2);
  if (!container->rect().contains(point)) return;
  QImage pixel(1, 1, QImage::Format_RGB32);
  container->render(&pixel, QPoint(), QRegion(QRect(point, QSize(1, 1))), QWidget::DrawWindowBackground);
  SetBackColor(pixel.pixelColor(0, 0));
}

void BtnEsp::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  PressLook();
  const QPoint at = event->position().toPoint();
  emit MouseDown(MouseButtonCode(event->button()), ShiftState(event->modifiers()), at.x(), at.y());
}

void BtnEsp::mouseReleaseEvent(QMouseEvent* event) {
  ReleaseLook();
  const QPoint at = event->position().toPoint();
  emit MouseUp(MouseButtonCode(event->button()), ShiftState(event->modifiers()), at.x(), at.y());
  emit Released();
  if (pressed_) {
    pressed_ = false;
    emit Click();
  }
}

void BtnEsp::mouseMoveEvent(QMouseEvent* /*event*/) {
  if (style_ == 1 && !hoverTimer_.isActive()) hoverTimer_.start();
}

void BtnEsp::keyPressEvent(QKeyEvent* event) {
  const int code = VirtualKeyCode(*event);
  emit KeyDown(code, ShiftState(event->modifiers()));
  switch (code) {
    case kVirtualKeyRight:
    case kVirtualKeyDown:
      focusNextChild();
      break;
    case kVirtualKeyLeft:
    case kVirtualKeyUp:
      focusPreviousChild();
      break;
    case kVirtualKeySpace:
    case kVirtualKeyEnter:
      PressLook();
      repaint();
      QCoreApplication::processEvents();
      QThread::msleep(kKeyClickMilliseconds);
      ReleaseLook();
      emit Click();
      emit Released();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void BtnEsp::focusInEvent(QFocusEvent* event) {
  hasFocus_ = true;
  ShowLook(pointerOver_ ? High : Focus);
  QWidget::focusInEvent(event);
  emit GotFocus();
}

void BtnEsp::focusOutEvent(QFocusEvent* event) {
  hasFocus_ = false;
  ShowLook(Up);
  QWidget::focusOutEvent(event);
  emit LostFocus();
}

void BtnEsp::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) ShowLook(isEnabled() ? Up : Disabled);
  QWidget::changeEvent(event);
}

void BtnEsp::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), backColor_);
  if (style_ == 1) {
    const QImage& picture = lookPictures_[static_cast<std::size_t>(look_)];
    if (!picture.isNull()) painter.drawImage(0, 0, picture);
    PaintContent(painter, pressedLook_ ? rect().translated(1, 1) : rect());
    return;
  }
  PaintLines(painter);
}

// Style 0: white lines on the top and left edges (black while pressed), two
// greys inside the right and bottom edges, and the face with its content.
void BtnEsp::PaintLines(QPainter& painter) const {
  const int right = width() - 1;
  const int bottom = height() - 1;
  painter.setPen(pressedLook_ ? Qt::black : Qt::white);
  painter.drawLine(0, 0, right, 0);
  painter.drawLine(0, 0, 0, bottom);
  painter.setPen(kFrameDark);
  painter.drawLine(right, 0, right, bottom);
  painter.drawLine(0, bottom, right, bottom);
  painter.setPen(kFrameLight);
  painter.drawLine(right - 1, 1, right - 1, bottom - 1);
  painter.drawLine(1, bottom - 1, right - 1, bottom - 1);

  const int offset = pressedLook_ ? kFaceOffsetDown : kFaceOffsetUp;
  const QRect face(offset, offset, width() - kFaceShrink, height() - kFaceShrink);
  painter.fillRect(face, backColor_);
  PaintContent(painter, face);
  if (hasFocus_) {
    painter.setPen(kFocusMark);
    painter.drawRect(face.adjusted(kFocusInset, kFocusInset, -kFocusInset - 1, -kFocusInset - 1));
  }
}

// The picture left of the caption, the pair centred in the width and each
// centred in the height; without a picture the caption alone is centred.
void BtnEsp::PaintContent(QPainter& painter, const QRect& face) const {
  const QFontMetrics metrics(font());
  const int textWidth = caption_.isEmpty() ? 0 : metrics.horizontalAdvance(caption_);
  const int pictureWidth = picture_.isNull() ? 0 : picture_.width();
  const int gap = pictureWidth > 0 && textWidth > 0 ? kPictureGap : 0;
  int left = face.left() + (face.width() - pictureWidth - gap - textWidth) / 2;
  if (pictureWidth > 0) {
    painter.drawImage(left, face.top() + (face.height() - picture_.height()) / 2, picture_);
    left += pictureWidth + gap;
  }
  if (textWidth > 0) {
    painter.setPen(isEnabled() ? foreColor_ : QColor(128, 128, 128));
    painter.setFont(font());
    painter.drawText(QRect(left, face.top(), textWidth, face.height()), Qt::AlignCenter, caption_);
  }
}

}  // namespace tamrix
