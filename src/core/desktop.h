// The one interface through which the core reaches the window system. The Qt
// layer implements it for real; tests use a headless double.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "core/object_controls.h"
#include "core/run_time_window.h"

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

// Where the next Write prints on a surface (CurrentX, CurrentY), in pixels.
struct SurfaceCursor {
  double x = 0;
  double y = 0;
};

// What a window offers for text output and drawing. Coordinates are pixels
// of the window's client area; texts are Windows-1252; colours are 32-bit
// with red in the low byte.
class Surface {
 public:
  virtual ~Surface() = default;
  // Every surface keeps its own text cursor; only WriteX/WriteY are shared.
  SurfaceCursor& Cursor() { return cursor_; }
  // The upper-case name of the window ("PARENT" for the main window).
  virtual std::string Name() const = 0;
  virtual void PrintText(int x, int y, const std::string& text) = 0;
  virtual void Clear() = 0;
  virtual int ClientWidth() const = 0;
  virtual int ClientHeight() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;

  // The font and colour of later text; text already there keeps its look.
  virtual void SetFontName(const std::string& name) = 0;
  virtual void SetFontSize(double points) = 0;
  virtual void SetBold(bool bold) = 0;
  virtual void SetItalic(bool italic) = 0;
  virtual void SetForeColor(std::int32_t colour) = 0;

  // Line width of figures, lines and dots (DrawWidth).
  virtual int DrawWidth() const = 0;
  virtual void SetDrawWidth(int width) = 0;
  // How circles are filled; it stays for later figures.
  virtual void SetFill(std::int32_t colour, bool solid) = 0;
  // A circle outlined in `colour` and filled by the fill state.
  virtual void DrawCircle(int x, int y, int radius, std::int32_t colour) = 0;
  // A box from corner to corner, filled with `colour`.
  virtual void DrawBox(int x1, int y1, int x2, int y2, std::int32_t colour) = 0;
  virtual void DrawLine(int x1, int y1, int x2, int y2, std::int32_t colour) = 0;
  // One pixel, whatever the line width.
  virtual void SetPixel(int x, int y, std::int32_t colour) = 0;
  // A dot as wide as the line width.
  virtual void DrawDot(int x, int y, std::int32_t colour) = 0;
  // The colour of a pixel; -1 outside the client area.
  virtual std::int32_t GetPixel(int x, int y) const = 0;
  // Fills with the fill colour the area of `areaColour` that holds (x, y).
  virtual void FloodFill(int x, int y, std::int32_t areaColour) = 0;
  // Shows what was drawn at once.
  virtual void Refresh() = 0;

 private:
  SurfaceCursor cursor_;
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

  // The run-time windows. The main window exists from the start; the others
  // are made hidden, named by their upper-case name, and live until
  // DestroyWindow, which hides them at once and frees them later.
  virtual RunTimeWindow& MainWindow() = 0;
  virtual RunTimeWindow& CreateWindow(WindowClass kind, const std::string& name) = 0;
  virtual void DestroyWindow(RunTimeWindow& window) = 0;
  // A timer of the main window besides the language timer.
  virtual std::unique_ptr<DesktopTimer> CreateTimer(TimerTick tick) = 0;
  // Where the mouse pointer is on the screen, in pixels.
  virtual PixelPoint CursorPosition() const = 0;
  // One ShowCursor call: the system counts them, and the pointer shows
  // while the count is not negative.
  virtual void ShowCursor(bool show) = 0;
  // The modal text-entry dialog: a caption, a prompt and the text to edit.
  virtual TextAnswer AskText(const std::string& title, const std::string& prompt,
                             const std::string& text) = 0;

  // The controls behind the language's objects.
  virtual ObjectControls& Controls() = 0;

  // Ends the process with this exit status; never returns.
  [[noreturn]] virtual void EndProcess(int status) = 0;
};

}  // namespace tamrix
