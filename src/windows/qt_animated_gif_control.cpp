#include "windows/qt_animated_gif_control.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <fstream>
#include <iterator>

#include "core/fault.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr long kInvalidPicture = 481;
// A frame without a delay of its own shows this long.
constexpr int kDefaultDelay = 100;
// Faster frames than this are slowed down to it, as browsers do.
constexpr int kShortestDelay = 20;

}  // namespace

// Animations are decoded by Qt's reader, which composes each frame on the
// ones before it as the file's disposal rules say.
Animation LoadAnimationFile(const std::string& path, qint64 maxBytes) {
  if (!FileExists(path)) Throw(kFileNotFound);
  std::ifstream file(OsPath(path), std::ios::binary);
  QByteArray bytes = QByteArray::fromStdString(
      std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  const QSize size = reader.size();
  if (!reader.canRead() || !size.isValid()) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  const qint64 frameBytes = qint64{size.width()} * size.height() * 4;
  Animation animation;
  qint64 total = 0;
  while (reader.canRead()) {
    total += frameBytes;
    if (total > maxBytes) throw RuntimeFault(kOutOfMemory, "Out of memory: the animation is too large");
    const QImage frame = reader.read();
    if (frame.isNull()) break;
    animation.frames.push_back(frame.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    const int delay = reader.nextImageDelay();
    animation.delays.push_back(delay > 0 ? std::max(delay, kShortestDelay) : kDefaultDelay);
  }
  if (animation.frames.empty()) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  return animation;
}

FrameWidget::FrameWidget(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TranslucentBackground); }

void FrameWidget::Show(const QImage& frame, bool stretch) {
  frame_ = frame;
  stretch_ = stretch;
  if (!stretch_ && !frame_.isNull()) resize(frame_.size());
  update();
}

void FrameWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (stretch_) {
    painter.drawImage(rect(), frame_);
  } else {
    painter.drawImage(0, 0, frame_);
  }
}

QtAnimatedGifControl::QtAnimatedGifControl(QWidget& window, int index, WindowLookup lookup)
    : QtObjectControl(new FrameWidget(&window), ObjectKind::AnimatedGif, index, std::move(lookup)) {
  Widget()->hide();
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, [this] { Advance(); });
}

FrameWidget& QtAnimatedGifControl::Frames() const {
  auto* frames = static_cast<FrameWidget*>(Widget());
  if (frames == nullptr) Throw(kObjectNotSet);
  return *frames;
}

void QtAnimatedGifControl::SetSource(const PictureSource& source) {
  Animation animation = source.builtIn >= 0 ? BuiltInAnimation(source.builtIn) : LoadAnimationFile(source.path);
  if (animation.frames.empty()) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  timer_.stop();
  animation_ = std::move(animation);
  ShowFrame(0);
}

void QtAnimatedGifControl::ShowFrame(int frame) {
  if (frame < 0 || frame >= FrameCount()) return;
  frame_ = frame;
  Frames().Show(animation_.frames[static_cast<std::size_t>(frame)], stretch_);
}

void QtAnimatedGifControl::Play() {
  if (FrameCount() > 1) timer_.start(animation_.delays[static_cast<std::size_t>(frame_)]);
}

void QtAnimatedGifControl::Stop() { timer_.stop(); }

// The next frame; after the last one the animation starts again unless it
// plays only once.
void QtAnimatedGifControl::Advance() {
  if (Widget() == nullptr) return;
  if (frame_ + 1 >= FrameCount() && loop_ == 0) return;
  ShowFrame((frame_ + 1) % FrameCount());
  Play();
}

void QtAnimatedGifControl::SetStretch(bool stretch) {
  stretch_ = stretch;
  ShowFrame(frame_);
}

void QtAnimatedGifControl::SetOrder(bool front) {
  if (front) {
    Frames().raise();
  } else {
    Frames().lower();
  }
}

// A frameless window of its own that stays on top of the others; its
// position is on the screen.
void QtAnimatedGifControl::SetFloating() {
  FrameWidget& frames = Frames();
  frames.setParent(nullptr);
  frames.setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::Tool);
  frames.setAttribute(Qt::WA_TranslucentBackground);
}

}  // namespace tamrix
