// The one interface through which the core reaches the window system. The Qt
// layer implements it for real; tests use a headless double.
#pragma once

#include <string>

namespace tamrix {

enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxIcon { None, Info, Question, Warning, Critical };
enum class BoxAnswer { Ok, Cancel, Yes, No };

struct BoxRequest {
  BoxButtons buttons = BoxButtons::Ok;
  BoxIcon icon = BoxIcon::None;
  std::string title;  // Windows-1252
  std::string text;   // Windows-1252, line breaks as CR LF
  BoxAnswer defaultAnswer = BoxAnswer::Ok;
};

// What a window offers for text output. Coordinates are pixels of the
// window's client area; texts are Windows-1252.
class Surface {
 public:
  virtual ~Surface() = default;
  // The upper-case name of the window ("PARENT" for the main window).
  virtual std::string Name() const = 0;
  virtual void PrintText(int x, int y, const std::string& text) = 0;
  virtual void Clear() = 0;
  virtual int ClientWidth() const = 0;
  virtual int ClientHeight() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
};

class Desktop {
 public:
  virtual ~Desktop() = default;

  // Shows a modal box on screen and returns the button pressed. Events and
  // timers keep running while it is up.
  virtual BoxAnswer ShowBox(const BoxRequest& request) = 0;
  // Lets the message loop run once.
  virtual void PumpEvents() = 0;
  // Sleeps in one piece, without letting events run.
  virtual void Sleep(int milliseconds) = 0;
  // The surface that output goes to: the current window.
  virtual Surface& CurrentSurface() = 0;

  // The main window: its caption as set at start-up (not traced), showing it
  // normal and visible, and closing it as its close box does.
  virtual void SetMainCaption(const std::string& caption) = 0;
  virtual void ShowMainWindow() = 0;
  virtual void CloseMainWindow() = 0;
  // Screen size in pixels.
  virtual int ScreenWidth() const = 0;
  virtual int ScreenHeight() const = 0;

  // The 10 ms timer that drives the language's Timer_ subroutines.
  virtual void SetLanguageTimer(bool running) = 0;

  // Ends the process with this exit status; never returns.
  [[noreturn]] virtual void EndProcess(int status) = 0;
};

}  // namespace tamrix
