// Windows, surfaces and timers without a screen, for the core's tests: they
// record what the core asks of them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/desktop.h"

namespace tamrix::testing {

class HeadlessSurface : public Surface {
 public:
  std::string Name() const override { return name; }
  void PrintText(int, int, const std::string& text) override { printed.push_back(text); }
  void Clear() override { ++clears; }
  int ClientWidth() const override { return 632; }
  int ClientHeight() const override { return 373; }
  void SetCaption(const std::string& text) override { caption = text; }

  void SetFontName(const std::string& font) override { fontName = font; }
  void SetFontSize(double points) override { fontSize = points; }
  void SetBold(bool on) override { bold = on; }
  void SetItalic(bool on) override { italic = on; }
  void SetForeColor(std::int32_t colour) override { foreColor = colour; }

  int DrawWidth() const override { return drawWidth; }
  void SetDrawWidth(int width) override { drawWidth = width; }
  void SetFill(std::int32_t colour, bool solid) override {
    fillColor = colour;
    fillSolid = solid;
  }
  // Figures are logged as "<kind> <numbers...>"; circles with their fill.
  void DrawCircle(int x, int y, int r, std::int32_t colour) override {
    Log("circle", {x, y, r, colour, fillSolid ? fillColor : -1});
  }
  void DrawBox(int x1, int y1, int x2, int y2, std::int32_t colour) override {
    Log("box", {x1, y1, x2, y2, colour});
  }
  void DrawLine(int x1, int y1, int x2, int y2, std::int32_t colour) override {
    Log("line", {x1, y1, x2, y2, colour, drawWidth});
  }
  void SetPixel(int x, int y, std::int32_t colour) override { Log("pixel", {x, y, colour}); }
  void DrawDot(int x, int y, std::int32_t colour) override { Log("dot", {x, y, colour, drawWidth}); }
  std::int32_t GetPixel(int x, int y) const override {
    readAt.push_back({x, y});
    return pixelColour;
  }
  void FloodFill(int x, int y, std::int32_t areaColour) override {
    Log("fill", {x, y, areaColour, fillSolid ? fillColor : -1});
  }
  void Refresh() override { ++refreshes; }

  std::string name = "PARENT";
  std::vector<std::string> printed;
  std::string caption;
  int clears = 0;
  std::string fontName;
  double fontSize = 10;
  bool bold = false;
  bool italic = false;
  std::int32_t foreColor = 0;
  int drawWidth = 1;
  std::int32_t fillColor = 0;
  bool fillSolid = false;
  std::vector<std::string> drawn;
  std::int32_t pixelColour = 0;  // what GetPixel answers
  mutable std::vector<PixelPoint> readAt;
  int refreshes = 0;

 private:
  void Log(const std::string& kind, std::initializer_list<std::int64_t> numbers) {
    std::string line = kind;
    for (const auto n : numbers) line += " " + std::to_string(n);
    drawn.push_back(line);
  }
};

class HeadlessWindow : public RunTimeWindow {
 public:
  HeadlessWindow(WindowClass kind, const std::string& name) : kind_(kind) { surface.name = name; }

  WindowClass Class() const override { return kind_; }
  Surface& Drawing() override { return surface; }
  void Show() override { visible = true; }
  void ShowModal() override {
    visible = true;
    ++modalShows;
    if (modalLoop) modalLoop();
    visible = false;
  }
  void Hide() override { visible = false; }
  bool IsMaximized() const override { return maximized; }
  void Restore() override { maximized = false; }
  TwipRect Outer() const override { return outer; }
  void SetOuter(const TwipRect& rect) override { outer = rect; }
  void SetSizable(bool on) override { sizable = on; }
  void SetControlBox(bool on) override { controlBox = on; }
  void SetBorderStyle(int style) override { borderStyle = style; }
  void SetKeyPreview(bool on) override { keyPreview = on; }
  bool KeyPreview() const override { return keyPreview; }
  void SetMouseIcon(const std::string& path) override { mouseIcon = path; }
  void SetBackColor(std::int32_t colour) override { backColor = colour; }
  bool SetPicture(const std::string& path) override {
    picture = path;
    return true;
  }
  bool PaintPicture(const std::string& path, int x, int y) override {
    painted.push_back(path + " " + std::to_string(x) + " " + std::to_string(y));
    return true;
  }
  bool SetBuiltInPicture(int number) override {
    picture = "Img#" + std::to_string(number);
    return true;
  }
  void FocusKeyCatcher() override { ++keyCatcherFocus; }

  HeadlessSurface surface;
  std::function<void()> modalLoop;  // what runs while the window is modal
  bool visible = false;
  bool maximized = false;
  int modalShows = 0;
  TwipRect outer{1200, 1000, 9600, 6200};
  bool sizable = true;
  bool controlBox = true;
  int borderStyle = 2;
  bool keyPreview = true;
  std::string mouseIcon;
  std::int32_t backColor = 0;
  std::string picture;
  std::vector<std::string> painted;
  int keyCatcherFocus = 0;

 private:
  WindowClass kind_;
};

// Timers that tick only when a test fires them.
class HeadlessTimers {
 public:
  struct State {
    TimerTick tick;
    bool running = false;
    int interval = 0;
  };

  std::unique_ptr<DesktopTimer> Create(TimerTick tick) {
    states_.push_back(std::make_shared<State>(State{std::move(tick)}));
    return std::make_unique<Timer>(states_.back());
  }
  // One tick of every timer that runs now.
  void FireRunning() {
    std::vector<std::shared_ptr<State>> due;
    for (const auto& state : states_) {
      if (state->running) due.push_back(state);
    }
    for (const auto& state : due) state->tick();
  }
  int RunningCount() const {
    int n = 0;
    for (const auto& state : states_) n += state->running ? 1 : 0;
    return n;
  }
  const std::vector<std::shared_ptr<State>>& All() const { return states_; }

 private:
  class Timer : public DesktopTimer {
   public:
    explicit Timer(std::shared_ptr<State> state) : state_(std::move(state)) {}
    void Start(int milliseconds) override {
      state_->running = true;
      state_->interval = milliseconds;
    }
    void Stop() override { state_->running = false; }

   private:
    std::shared_ptr<State> state_;
  };

  std::vector<std::shared_ptr<State>> states_;
};

}  // namespace tamrix::testing
