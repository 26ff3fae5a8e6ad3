// What Janela and the windows of the Form1 family share: the persistent
// drawing surface, the border kinds, the outer geometry in twips, the modal
// show, the key catcher TxtAux, and the events that go to the core (focus,
// click, resize).
#pragma once

#include <QWidget>
#include <string>

#include "core/run_time_window.h"
#include "core/window_events.h"
#include "windows/event_relay.h"
#include "windows/window_surface.h"

namespace tamrix {

class KeyCatcher;

class RunTimeWidget : public QWidget, public RunTimeWindow {
  Q_OBJECT

 public:
  // Created hidden, centred at 9600 by 6200 twips, with the button-face
  // background, the button-text colour and "Courier New" of 10 points.
  RunTimeWidget(WindowClass kind, std::string name);

  // Where the events go; without one they are dropped.
  void SetRelay(const EventRelay* relay);
  WindowSurface& Surface() { return surface_; }

  WindowClass Class() const override { return kind_; }
  tamrix::Surface& Drawing() override { return surface_; }
  void Show() override;
  void ShowModal() override;
  void Hide() override { hide(); }
  bool IsMaximized() const override { return isMaximized(); }
  void Restore() override { showNormal(); }
  TwipRect Outer() const override;
  void SetOuter(const TwipRect& rect) override;
  void SetSizable(bool sizable) override;
  void SetControlBox(bool on) override;
  void SetBorderStyle(int style) override;
  void SetKeyPreview(bool on) override { keyPreview_ = on; }
  bool KeyPreview() const override { return keyPreview_; }
  void SetMouseIcon(const std::string& path) override;
  void SetBackColor(std::int32_t colour) override;
  bool SetPicture(const std::string& path) override;
  bool PaintPicture(const std::string& path, int x, int y) override;
  bool SetBuiltInPicture(int number) override;
  void FocusKeyCatcher() override;

 signals:
  // The program or a close hid the window (minimising does not count).
  void Hidden();

 protected:
  void Deliver(const EventRelay::Event& event) const;
  // Press, move and release of the mouse; only the main window passes them on.
  virtual void OnMouse(MouseAction action, int buttons, int x, int y);

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void ApplyWindowFlags();
  void ApplySizeLimits();
  void PlaceKeyCatcher();

  WindowClass kind_;
  WindowSurface surface_;
  KeyCatcher* keyCatcher_;
  const EventRelay* relay_ = nullptr;
  bool sizable_;
  bool minMaxButtons_;
  bool controlBox_;
  bool frameless_ = false;
  bool keyPreview_ = true;
  // The activation that the platform delivers after the program showed the
  // window is not the user's doing and leaves the Current Window alone.
  bool ownActivationPending_ = false;
  bool changingFlags_ = false;
  bool leftPressed_ = false;
  bool afterDoubleClick_ = false;
};

}  // namespace tamrix
