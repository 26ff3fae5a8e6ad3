// The desktop that the language core reaches, made of Qt widgets.
#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "core/desktop.h"
#include "windows/enter_as_tab.h"
#include "windows/event_relay.h"
#include "windows/qt_object_controls.h"

class QWidget;

namespace tamrix {

class Janela;

class QtDesktop : public Desktop {
 public:
  explicit QtDesktop(Janela& janela);
  ~QtDesktop() override;

  BoxAnswer ShowBox(const BoxRequest& request) override;
  void PumpEvents() override;
  void Sleep(int milliseconds) override;

  void SetMainCaption(const std::string& caption) override;
  void ShowMainWindow() override;
  void CloseMainWindow() override;
  int ScreenWidth() const override;
  int ScreenHeight() const override;

  void SetLanguageTimer(bool running) override;

  RunTimeWindow& MainWindow() override;
  RunTimeWindow& CreateWindow(WindowClass kind, const std::string& name) override;
  void DestroyWindow(RunTimeWindow& window) override;
  std::unique_ptr<DesktopTimer> CreateTimer(TimerTick tick) override;
  PixelPoint CursorPosition() const override;
  void ShowCursor(bool show) override;
  TextAnswer AskText(const std::string& title, const std::string& prompt, const std::string& text) override;
  ObjectControls& Controls() override { return controls_; }

  [[noreturn]] void EndProcess(int status) override;

  // What each 10 ms tick of the language timer runs.
  void SetLanguageTickHandler(std::function<void()> handler);
  // Shows the boxes from now on in another form than a message box.
  using BoxPresenter = std::function<BoxAnswer(const BoxRequest&)>;
  void SetBoxPresenter(BoxPresenter presenter);

  // Window events and timer ticks reach the core through this relay once a
  // session has attached it.
  EventRelay& Relay() { return relay_; }

  // The widget of a run-time window, to make controls on.
  static QWidget& WidgetOf(RunTimeWindow& window);
  // The Current Window's widget; the main window's before a core is attached.
  QWidget& CurrentWindowWidget();
  // The widget of the first window of that name in the Window Table ("PARENT"
  // for the main window, any case); nullptr when there is none.
  QWidget* WindowWidget(const std::string& name);

  // How the control of an object is found as a widget; the default takes
  // controls that are widgets themselves.
  using ControlWidgetLookup = std::function<QWidget*(ObjectControl&)>;
  void SetControlWidgetLookup(ControlWidgetLookup lookup);
  // The widget of the control of the first object of that name, of any
  // kind; nullptr when there is none.
  QWidget* ObjectWidget(const std::string& name);

 private:
  Janela& janela_;
  EventRelay relay_;
  EnterAsTab enterAsTab_;
  BoxPresenter presentBox_;
  QTimer languageTimer_;
  std::function<void()> languageTick_;
  ControlWidgetLookup controlWidget_;
  int cursorCount_ = 0;
  // The objects' controls, made on the windows that the Window Table names.
  QtObjectControls controls_;
};

}  // namespace tamrix
