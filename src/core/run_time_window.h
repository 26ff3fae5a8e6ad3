// A run-time window as the core sees it: the main window Janela or one of
// the windows that NewWindow opens. The window layer implements it; tests
// use a headless double.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/gradient.h"

namespace tamrix {

class Surface;

// Outer sizes and positions of windows are twips, 15 to a pixel, with
// their own factors for lines and columns, independent of LinSize and
// ColSize: 220 per line plus 600 for title bar and frame, 120 per column.
inline constexpr int kTwipsPerPixel = 15;
inline constexpr int kTwipsPerLine = 220;
inline constexpr int kTwipsPerColumn = 120;
inline constexpr int kFrameTwips = 600;

// The window classes differ only in their border; each border kind is a
// class of its own because a border can't change after creation.
enum class WindowClass {
  Janela,     // the main window
  Form1,      // sizable, minimise and maximise buttons, control box
  Form2,      // "FIXED": fixed single border, no minimise or maximise
  Form3,      // "WITHOUTBOX": as Form2, without control box
};

// The outer rectangle of a window in twips, frame and title bar included.
struct TwipRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// Flags each window keeps, false at creation.
struct WindowFlags {
  bool closing = false;         // WindowClosing: the window is being unloaded
  bool buttonHasFocus = false;  // ButtonHasFocus: Enter is left to the button
};

class RunTimeWindow {
 public:
  virtual ~RunTimeWindow() = default;

  virtual WindowClass Class() const = 0;
  // What Write and the drawing commands reach.
  virtual Surface& Drawing() = 0;

  // The upper-case name that event handlers compare with object owners.
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  WindowFlags& Flags() { return flags_; }
  // The gradient control Grd of the window.
  Gradiente& Grd() { return grd_; }

  // Normal state and visible, not modal.
  virtual void Show() = 0;
  // Shows the window modally; returns when it has closed.
  virtual void ShowModal() = 0;
  virtual void Hide() = 0;
  virtual bool IsMaximized() const = 0;
  virtual void Restore() = 0;  // from maximised to normal

  virtual TwipRect Outer() const = 0;
  virtual void SetOuter(const TwipRect& rect) = 0;

  // Thick frame with minimise and maximise buttons, or none of the three.
  virtual void SetSizable(bool sizable) = 0;
  virtual void SetControlBox(bool on) = 0;
  // 0: no border; 1: fixed single border.
  virtual void SetBorderStyle(int style) = 0;
  // With key preview on, Enter moves the focus on as Tab does.
  virtual void SetKeyPreview(bool on) = 0;
  virtual bool KeyPreview() const = 0;

  // The mouse pointer over the window, from a picture file; an empty path,
  // or a file that can't be read as a picture, gives the usual pointer.
  virtual void SetMouseIcon(const std::string& path) = 0;
  // Colours are 32-bit with red in the low byte. A new back colour clears
  // the drawing to it.
  virtual void SetBackColor(std::int32_t colour) = 0;
  // The window's picture, shown under the drawing; an empty path clears it.
  // False when the file can't be read as a picture.
  virtual bool SetPicture(const std::string& path) = 0;
  // Paints a picture file at its own size into the drawing.
  virtual bool PaintPicture(const std::string& path, int x, int y) = 0;
  // A picture of the `Img` catalogue as the window's picture.
  virtual bool SetBuiltInPicture(int number) = 0;

  // Shows the hidden key catcher TxtAux and gives it the focus, so that
  // keys reach the key tables.
  virtual void FocusKeyCatcher() = 0;

 private:
  std::string tag_;
  WindowFlags flags_;
  Gradiente grd_;
};

// A timer of the main window: `tick` runs each interval, but only while
// events are let run.
class DesktopTimer {
 public:
  virtual ~DesktopTimer() = default;
  virtual void Start(int milliseconds) = 0;
  virtual void Stop() = 0;
};

using TimerTick = std::function<void()>;

// What the text-entry dialog of GetText gives back.
struct TextAnswer {
  enum class Button { Ok, Cancel, None };  // None: closed by other means
  Button button = Button::None;
  std::string text;
};

struct PixelPoint {
  int x = 0;
  int y = 0;
};

}  // namespace tamrix
