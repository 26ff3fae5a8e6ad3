#include "controls/scroll_bar_model.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tamrix {
namespace {

std::int32_t RoundHalfEven(double value) {
  const double limit = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(std::nearbyint(value), -limit, limit));
}

std::int32_t Add(std::int32_t a, std::int32_t b) {
  const std::int64_t sum = static_cast<std::int64_t>(a) + b;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(sum, std::numeric_limits<std::int32_t>::min(),
                                                            std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

void ScrollBarModel::Layout(int length, int buttonLength, int thumbLength) {
  length_ = length;
  button_ = buttonLength;
  thumb_ = thumbLength;
}

double ScrollBarModel::Scale() const {
  const int track = length_ - 2 * button_;
  return static_cast<double>(track - thumb_) / (max_ == 0 ? 1 : max_);
}

int ScrollBarModel::ThumbStart() const { return RoundHalfEven(Scale() * value_ + button_); }

void ScrollBarModel::StepUp() {
  if (value_ < max_) value_ = Add(value_, smallChange_);
}

void ScrollBarModel::StepDown() {
  if (value_ > 0) value_ = Add(value_, -smallChange_);
}

void ScrollBarModel::PageDown() { value_ = std::min(Add(value_, largeChange_), max_); }

void ScrollBarModel::PageUp() {
  value_ = Add(value_, -largeChange_);
  if (value_ < 1) value_ = 0;
}

std::int32_t ScrollBarModel::ValueAt(int start) const {
  const double scale = Scale();
  if (scale <= 0) return 0;
  return std::min(RoundHalfEven((start - button_) / scale), max_);
}

void ScrollBarModel::DragThumbTo(int start) {
  if (start < button_) {
    dragStart_ = button_;
    value_ = 0;
  } else if (start > ThumbLimit()) {
    dragStart_ = ThumbLimit();
    value_ = max_;
  } else {
    dragStart_ = start;
    value_ = ValueAt(start);
  }
}

void ScrollBarModel::PressTrack(int at) {
  value_ = ValueAt(std::clamp(at, button_, std::max(button_, ThumbLimit())));
}

}  // namespace tamrix
