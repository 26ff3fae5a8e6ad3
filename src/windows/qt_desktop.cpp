#include "windows/qt_desktop.h"

#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include "core/codepage.h"
#include "core/interpreter.h"
#include "core/text.h"
#include "windows/form.h"
#include "windows/janela.h"
#include "windows/message_box.h"
#include "windows/primary_screen.h"
#include "windows/qt_timer.h"
#include "windows/screen_text.h"
#include "windows/text_entry_dialog.h"

namespace tamrix {
namespace {

constexpr int kLanguageTimerMilliseconds = 10;

}  // namespace

QtDesktop::QtDesktop(Janela& janela)
    : janela_(janela),
      presentBox_([this](const BoxRequest& request) { return ShowMessageBox(&janela_, request); }),
      controlWidget_([](ObjectControl& control) { return dynamic_cast<QWidget*>(&control); }),
      controls_(janela_, [this](const std::string& name) -> QWidget& {
        QWidget* window = WindowWidget(name);
        return window != nullptr ? *window : CurrentWindowWidget();
      }) {
  janela_.SetRelay(&relay_);
  controls_.SetRelay(&relay_);
  controlWidget_ = QtObjectControls::WidgetOf;
  qApp->installEventFilter(&enterAsTab_);
  languageTimer_.setInterval(kLanguageTimerMilliseconds);
  QObject::connect(&languageTimer_, &QTimer::timeout, [this] {
    // Restarting gives the timer a fresh id: Qt never delivers a timer inside
    // its own handler, but a tick must also come while an earlier one waits.
    languageTimer_.start();
    if (languageTick_) languageTick_();
  });
}

QtDesktop::~QtDesktop() { qApp->removeEventFilter(&enterAsTab_); }

BoxAnswer QtDesktop::ShowBox(const BoxRequest& request) { return presentBox_(request); }

void QtDesktop::PumpEvents() { QCoreApplication::processEvents(); }

void QtDesktop::Sleep(int milliseconds) {
  if (milliseconds > 0) std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void QtDesktop::SetMainCaption(const std::string& caption) {
  janela_.setWindowTitle(ScreenText(caption));
}

void QtDesktop::ShowMainWindow() { janela_.ShowNormal(); }

void QtDesktop::CloseMainWindow() { janela_.CloseAsUser(); }

int QtDesktop::ScreenWidth() const { return PrimaryScreenSize().width; }

int QtDesktop::ScreenHeight() const { return PrimaryScreenSize().height; }

void QtDesktop::SetLanguageTimer(bool running) {
  if (running) {
    languageTimer_.start();
  } else {
    languageTimer_.stop();
  }
}

RunTimeWindow& QtDesktop::MainWindow() { return janela_; }

RunTimeWindow& QtDesktop::CreateWindow(WindowClass kind, const std::string& name) {
  auto* form = new Form(kind, name);
  form->SetRelay(&relay_);
  return *form;
}

// The window may still be in a modal wait further down the stack: it hides
// now, which ends that wait, and goes when the event loop is back there.
void QtDesktop::DestroyWindow(RunTimeWindow& window) {
  QWidget& widget = WidgetOf(window);
  widget.hide();
  widget.deleteLater();
}

std::unique_ptr<DesktopTimer> QtDesktop::CreateTimer(TimerTick tick) {
  return std::make_unique<QtTimer>(std::move(tick), relay_);
}

PixelPoint QtDesktop::CursorPosition() const {
  const QPoint position = QCursor::pos();
  return {position.x(), position.y()};
}

void QtDesktop::ShowCursor(bool show) {
  const bool wasShown = cursorCount_ >= 0;
  cursorCount_ += show ? 1 : -1;
  const bool shown = cursorCount_ >= 0;
  if (wasShown && !shown) QApplication::setOverrideCursor(Qt::BlankCursor);
  if (!wasShown && shown) QApplication::restoreOverrideCursor();
}

TextAnswer QtDesktop::AskText(const std::string& title, const std::string& prompt, const std::string& text) {
  TextEntryDialog dialog(&janela_, ScreenText(title), ScreenText(prompt), ScreenText(text));
  TextAnswer answer;
  answer.button = dialog.Ask();
  answer.text = Utf8ToCp1252Lossy(dialog.Entry().text().toStdString());
  return answer;
}

void QtDesktop::EndProcess(int status) {
  // The process may be deep inside nested event loops (a box, a Wait), so it
  // ends at once: no stack is unwound and no destructor runs.
  std::fflush(nullptr);
  std::_Exit(status);
}

void QtDesktop::SetLanguageTickHandler(std::function<void()> handler) {
  languageTick_ = std::move(handler);
}

void QtDesktop::SetBoxPresenter(BoxPresenter presenter) { presentBox_ = std::move(presenter); }

QWidget& QtDesktop::WidgetOf(RunTimeWindow& window) { return static_cast<RunTimeWidget&>(window); }

QWidget& QtDesktop::CurrentWindowWidget() {
  if (!relay_.Attached()) return janela_;
  return WidgetOf(relay_.Core()->Windows().Current());
}

QWidget* QtDesktop::WindowWidget(const std::string& name) {
  if (!relay_.Attached()) return EqualsNoCase(name, "PARENT") ? &janela_ : nullptr;
  const WindowTable& windows = relay_.Core()->Windows();
  const int slot = windows.Find(name);
  if (slot < 0 || windows.Window(slot) == nullptr) return nullptr;
  return &WidgetOf(*windows.Window(slot));
}

void QtDesktop::SetControlWidgetLookup(ControlWidgetLookup lookup) { controlWidget_ = std::move(lookup); }

QWidget* QtDesktop::ObjectWidget(const std::string& name) {
  if (!relay_.Attached()) return nullptr;
  ObjectControl* control = relay_.Core()->Objects().FirstNamed(name);
  return control == nullptr ? nullptr : controlWidget_(*control);
}

}  // namespace tamrix
