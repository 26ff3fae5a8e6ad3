#include "controls/scroll_bar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "controls/virtual_keys.h"

namespace tamrix {
namespace {

constexpr int kTimerMilliseconds = 50;
// A held button repeats after half a second; a dragged thumb reports every
// third tick.
constexpr int kRepeatAfterTicks = 10;
constexpr int kDragReportTicks = 3;
constexpr int kKeyPageUp = 33;
constexpr int kKeyPageDown = 34;

const QColor kThumbColour(192, 192, 192);
const QColor kButtonColour(224, 224, 224);
const QColor kTrackColour(240, 240, 240);
const QColor kPressedColour(160, 160, 160);

void DrawArrow(QPainter& painter, const QRect& box, bool vertical, bool forward) {
  const QPointF c = QRectF(box).center();
  const double s = box.width() / 5.0;
  QPolygonF arrow;
  if (vertical) {
    const double d = forward ? s : -s;
    arrow << QPointF(c.x() - s, c.y() - d / 2) << QPointF(c.x() + s, c.y() - d / 2) << QPointF(c.x(), c.y() + d / 2);
  } else {
    const double d = forward ? s : -s;
    arrow << QPointF(c.x() - d / 2, c.y() - s) << QPointF(c.x() - d / 2, c.y() + s) << QPointF(c.x() + d / 2, c.y());
  }
  painter.setBrush(QColor(60, 60, 60));
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(arrow);
}

}  // namespace

ScrollBar::ScrollBar(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  timer_.setInterval(kTimerMilliseconds);
  connect(&timer_, &QTimer::timeout, this, &ScrollBar::Tick);
  resize(100, kThickness);
  LayOut();
}

void ScrollBar::SetVertical(bool vertical) {
  if (vertical_ == vertical) return;
  vertical_ = vertical;
  resize(height(), width());
  LayOut();
}

void ScrollBar::SetValue(std::int32_t value) {
  model_.SetValue(value);
  model_.EndDrag();
  Report();
}

void ScrollBar::SetMax(std::int32_t max) {
  model_.SetMax(max);
  Report();
}

int ScrollBar::Along(QPointF point) const { return static_cast<int>(vertical_ ? point.y() : point.x()); }

// A hidden bar gets no resize events: the layout follows its size when it
// is used.
void ScrollBar::Sync() {
  if (model_.Length() != (vertical_ ? height() : width())) LayOut();
}

// The bar keeps its thickness; the thumb is as long as a button, or shorter
// on a bar too short for three.
void ScrollBar::LayOut() {
  const int length = vertical_ ? height() : width();
  const int button = std::min(kThickness, length / 3);
  model_.Layout(length, button, button);
  update();
}

void ScrollBar::resizeEvent(QResizeEvent*) {
  const QSize fixed = vertical_ ? QSize(kThickness, height()) : QSize(width(), kThickness);
  if (size() != fixed) {
    resize(fixed);
    return;
  }
  LayOut();
}

void ScrollBar::Report() {
  update();
  emit Changed(model_.Value());
}

void ScrollBar::paintEvent(QPaintEvent*) {
  Sync();
  QPainter painter(this);
  painter.fillRect(rect(), kTrackColour);
  const int button = model_.ButtonLength();
  const int length = model_.Length();
  const int thumbStart = std::clamp(model_.DrawnThumbStart(), button, std::max(button, model_.ThumbLimit()));
  const auto box = [&](int start, int extent) {
    return vertical_ ? QRect(0, start, kThickness, extent) : QRect(start, 0, extent, kThickness);
  };
  const QRect down = box(0, button);
  const QRect up = box(length - button, button);
  const QRect thumb = box(thumbStart, model_.ThumbLength());
  painter.setPen(QColor(128, 128, 128));
  painter.setBrush(held_ == Held::Down ? kPressedColour : kButtonColour);
  painter.drawRect(down.adjusted(0, 0, -1, -1));
  painter.setBrush(held_ == Held::Up ? kPressedColour : kButtonColour);
  painter.drawRect(up.adjusted(0, 0, -1, -1));
  painter.setBrush(held_ == Held::Thumb ? kPressedColour : kThumbColour);
  painter.drawRect(thumb.adjusted(0, 0, -1, -1));
  DrawArrow(painter, down, vertical_, false);
  DrawArrow(painter, up, vertical_, true);
  if (hasFocus()) {
    painter.setPen(QPen(QColor(0, 0, 0), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(thumb.adjusted(2, 2, -3, -3));
  }
}

void ScrollBar::mousePressEvent(QMouseEvent* event) {
  Sync();
  if (event->button() != Qt::LeftButton) return;
  setFocus(Qt::MouseFocusReason);
  const int at = Along(event->position());
  const int thumbStart = model_.ThumbStart();
  ticks_ = 0;
  if (at < model_.ButtonLength()) {
    held_ = Held::Down;
    model_.StepDown();
    Report();
    timer_.start();
  } else if (at >= model_.Length() - model_.ButtonLength()) {
    held_ = Held::Up;
    model_.StepUp();
    Report();
    timer_.start();
  } else if (at >= thumbStart && at < thumbStart + model_.ThumbLength()) {
    held_ = Held::Thumb;
    grip_ = at - thumbStart;
    model_.DragThumbTo(thumbStart);
    timer_.start();
    update();
  } else {
    model_.PressTrack(at);
    Report();
  }
}

void ScrollBar::mouseMoveEvent(QMouseEvent* event) {
  Sync();
  if (held_ != Held::Thumb || !rect().contains(event->position().toPoint())) return;
  model_.DragThumbTo(Along(event->position()) - grip_);
  update();
}

void ScrollBar::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || held_ == Held::None) return;
  const bool dragged = held_ == Held::Thumb;
  held_ = Held::None;
  timer_.stop();
  model_.EndDrag();
  if (dragged) {
    Report();
  } else {
    update();
  }
}

void ScrollBar::Tick() {
  ++ticks_;
  switch (held_) {
    case Held::Thumb:
      if (ticks_ % kDragReportTicks == 0) emit Changed(model_.Value());
      return;
    case Held::Down:
    case Held::Up:
      if (ticks_ <= kRepeatAfterTicks) return;
      if (held_ == Held::Down) {
        model_.StepDown();
      } else {
        model_.StepUp();
      }
      Report();
      return;
    case Held::None: timer_.stop(); return;
  }
}

void ScrollBar::keyPressEvent(QKeyEvent* event) {
  Sync();
  const int code = VirtualKeyCode(*event);
  const int forward = vertical_ ? kVirtualKeyDown : kVirtualKeyRight;
  const int backward = vertical_ ? kVirtualKeyUp : kVirtualKeyLeft;
  if (code == forward) {
    model_.StepUp();
  } else if (code == backward) {
    model_.StepDown();
  } else if (code == kKeyPageDown) {
    model_.PageDown();
  } else if (code == kKeyPageUp) {
    model_.PageUp();
  } else {
    QWidget::keyPressEvent(event);
    return;
  }
  Report();
}

void ScrollBar::focusInEvent(QFocusEvent*) {
  update();
  emit GotFocus();
}

void ScrollBar::focusOutEvent(QFocusEvent*) {
  update();
  emit LostFocus();
}

}  // namespace tamrix
