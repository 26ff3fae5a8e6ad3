// Animations: files of many frames, their limits, and the control's
// frames, stepping and looping.
#include "windows/qt_animated_gif_control.h"

#include <FreeImage.h>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/fault.h"

namespace tamrix {
namespace {

namespace fs = std::filesystem;

// A GIF of `frames` frames of 16 by 8, frame i filled with palette index i
// % 256 (grey i).
std::string WriteGif(const std::string& name, int frames) {
  const std::string path = (fs::temp_directory_path() / name).string();
  FIMULTIBITMAP* gif = FreeImage_OpenMultiBitmap(FIF_GIF, path.c_str(), TRUE, FALSE, TRUE, 0);
  for (int i = 0; i < frames; ++i) {
    FIBITMAP* frame = FreeImage_Allocate(16, 8, 8);
    RGBQUAD* palette = FreeImage_GetPalette(frame);
    for (int c = 0; c < 256; ++c) {
      palette[c] = RGBQUAD{static_cast<BYTE>(c), static_cast<BYTE>(c), static_cast<BYTE>(c), 0};
    }
    for (unsigned y = 0; y < 8; ++y) std::fill_n(FreeImage_GetScanLine(frame, static_cast<int>(y)), 16, i % 256);
    FreeImage_AppendPage(gif, frame);
    FreeImage_Unload(frame);
  }
  FreeImage_CloseMultiBitmap(gif, 0);
  return path;
}

// Lets the animation's timer run for a while.
void Pump(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

int ErrorOf(const std::string& path, qint64 maxBytes = kMaxAnimationBytes) {
  try {
    LoadAnimationFile(path, maxBytes);
  } catch (const RuntimeFault& fault) {
    return static_cast<int>(fault.Number());
  }
  return 0;
}

TEST(AnimationFile, FiveHundredFramesLoadInOrder) {
  const std::string path = WriteGif("tamrix_500.gif", 500);
  const Animation animation = LoadAnimationFile(path);
  ASSERT_EQ(animation.frames.size(), 500u);
  EXPECT_EQ(animation.delays.size(), 500u);
  EXPECT_EQ(qGray(animation.frames[3].pixel(0, 0)), 3);
  EXPECT_EQ(qGray(animation.frames[499].pixel(15, 7)), 499 % 256);
  // The same file above the memory limit is refused, not half loaded.
  EXPECT_EQ(ErrorOf(path, 16 * 8 * 4 * 499), kOutOfMemory);
  fs::remove(path);
}

TEST(AnimationFile, MissingAndDamagedFiles) {
  EXPECT_EQ(ErrorOf("/nonexistent/tamrix.gif"), kFileNotFound);
  const std::string path = (fs::temp_directory_path() / "tamrix_bad.gif").string();
  std::ofstream(path) << "GIF89a but nothing behind";
  EXPECT_EQ(ErrorOf(path), 481);
  fs::remove(path);
}

TEST(AnimatedGifControl, StepsLoopsAndFloats) {
  QWidget window;
  QtAnimatedGifControl gif(window, 1, [&](const std::string&) -> QWidget& { return window; });
  PictureSource frog;
  frog.builtIn = 0;
  frog.catalogue = Catalogue::Gif;
  gif.SetSource(frog);
  ASSERT_GT(gif.FrameCount(), 1);
  EXPECT_EQ(gif.CurrentFrame(), 0);
  gif.ShowFrame(gif.FrameCount() - 1);
  EXPECT_EQ(gif.CurrentFrame(), gif.FrameCount() - 1);
  gif.ShowFrame(gif.FrameCount());  // outside: nothing changes
  EXPECT_EQ(gif.CurrentFrame(), gif.FrameCount() - 1);

  // Played once from the last frame, it stays there; looping, it goes on.
  gif.SetLoop(0);
  gif.Play();
  Pump(400);
  EXPECT_EQ(gif.CurrentFrame(), gif.FrameCount() - 1);
  gif.SetLoop(-1);
  gif.Play();
  Pump(250);
  gif.Stop();
  EXPECT_LT(gif.CurrentFrame(), gif.FrameCount() - 1);

  gif.SetFloating();
  EXPECT_TRUE(gif.Widget()->isWindow());
  EXPECT_TRUE(gif.Widget()->windowFlags() & Qt::WindowStaysOnTopHint);
}

}  // namespace
}  // namespace tamrix
