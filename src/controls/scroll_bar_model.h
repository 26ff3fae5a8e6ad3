// The arithmetic of the drawn scroll bars, along the bar's length in pixels:
// an end button at each end, the track between them, and the thumb, whose
// start derives from the value by one formula.
#pragma once

#include <cstdint>

namespace tamrix {

class ScrollBarModel {
 public:
  // The bar's length, each end button's and the thumb's.
  void Layout(int length, int buttonLength, int thumbLength);

  std::int32_t Max() const { return max_; }
  std::int32_t SmallChange() const { return smallChange_; }
  std::int32_t LargeChange() const { return largeChange_; }
  std::int32_t Value() const { return value_; }
  // Setting the value keeps it as it is, also above Max.
  void SetMax(std::int32_t max) { max_ = max; }
  void SetSmallChange(std::int32_t step) { smallChange_ = step; }
  void SetLargeChange(std::int32_t step) { largeChange_ = step; }
  void SetValue(std::int32_t value) { value_ = value; }

  // Pixels per unit of value: (track - thumb) / Max, a Max of 0 read as 1.
  double Scale() const;
  // Where the thumb starts: scale * value + button, rounded half to even.
  int ThumbStart() const;
  int ThumbLength() const { return thumb_; }
  int ButtonLength() const { return button_; }
  int Length() const { return length_; }
  // The furthest start of the thumb.
  int ThumbLimit() const { return length_ - button_ - thumb_; }

  // The end buttons and the keys. A step up adds SmallChange while the value
  // is below Max, and may pass Max by less than a step; a step down takes it
  // off while the value is above 0. A page down goes no further than Max, a
  // page up below 1 gives 0.
  void StepUp();
  void StepDown();
  void PageUp();
  void PageDown();
  // The thumb dragged to start at `start`: clamped to the track, with the
  // value 0 or Max at the ends, else read back through the scale.
  void DragThumbTo(int start);
  // A press on the track at `at`: the thumb starts there, or at its limit.
  void PressTrack(int at);
  // Where the thumb is drawn: where a drag left it, else by the formula.
  int DrawnThumbStart() const { return dragStart_ >= 0 ? dragStart_ : ThumbStart(); }
  void EndDrag() { dragStart_ = -1; }

 private:
  std::int32_t ValueAt(int start) const;

  std::int32_t max_ = 100;
  std::int32_t smallChange_ = 1;
  std::int32_t largeChange_ = 10;
  std::int32_t value_ = 0;
  int length_ = 0;
  int button_ = 0;
  int thumb_ = 0;
  int dragStart_ = -1;  // the thumb's start while dragged, else -1
};

}  // namespace tamrix
