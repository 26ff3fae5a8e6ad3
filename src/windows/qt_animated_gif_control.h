// The control of an AnimatedGif object: the frames of an animation shown
// one after the other, in the window or floating over the desktop.
#pragma once

#include <QTimer>
#include <QWidget>

#include "windows/built_in_images.h"
#include "windows/qt_object_control.h"

namespace tamrix {

// Shows one frame, at its own size or stretched to the widget's.
class FrameWidget final : public QWidget {
 public:
  explicit FrameWidget(QWidget* parent);
  void Show(const QImage& frame, bool stretch);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage frame_;
  bool stretch_ = false;
};

// Animations above this many bytes of decoded frames are refused with
// error 7 rather than taking the machine's memory.
inline constexpr qint64 kMaxAnimationBytes = qint64{512} * 1024 * 1024;

class QtAnimatedGifControl final : public QtObjectControl, public AnimatedGifControl {
 public:
  QtAnimatedGifControl(QWidget& window, int index, WindowLookup lookup);

  void SetSource(const PictureSource& source) override;
  int FrameCount() const override { return static_cast<int>(animation_.frames.size()); }
  int CurrentFrame() const override { return frame_; }
  void ShowFrame(int frame) override;
  void Play() override;
  void Stop() override;
  void SetLoop(int times) override { loop_ = times; }
  void SetStretch(bool stretch) override;
  void SetOrder(bool front) override;
  void SetFloating() override;
  void SetBackColor(std::int32_t) override {}
  void SetForeColor(std::int32_t) override {}

 private:
  FrameWidget& Frames() const;
  void Advance();

  Animation animation_;
  int frame_ = 0;
  int loop_ = -1;
  bool stretch_ = false;
  QTimer timer_;
};

// The frames of an animation file, each composed as the file says; error
// 53 for a missing file, 481 for one that isn't an animation, 7 above the
// memory limit.
Animation LoadAnimationFile(const std::string& path, qint64 maxBytes = kMaxAnimationBytes);

}  // namespace tamrix
