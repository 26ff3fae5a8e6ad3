#include "windows/qt_desktop.h"

#include <QCoreApplication>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include "windows/janela.h"
#include "windows/message_box.h"
#include "windows/primary_screen.h"
#include "windows/screen_text.h"

namespace tamrix {
namespace {

constexpr int kLanguageTimerMilliseconds = 10;

}  // namespace

QtDesktop::QtDesktop(Janela& janela)
    : janela_(janela),
      presentBox_([this](const BoxRequest& request) { return ShowMessageBox(&janela_, request); }) {
  languageTimer_.setInterval(kLanguageTimerMilliseconds);
  QObject::connect(&languageTimer_, &QTimer::timeout, [this] {
    // Restarting gives the timer a fresh id: Qt never delivers a timer inside
    // its own handler, but a tick must also come while an earlier one waits.
    languageTimer_.start();
    if (languageTick_) languageTick_();
  });
}

BoxAnswer QtDesktop::ShowBox(const BoxRequest& request) { return presentBox_(request); }

void QtDesktop::PumpEvents() { QCoreApplication::processEvents(); }

void QtDesktop::Sleep(int milliseconds) {
  if (milliseconds > 0) std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

Surface& QtDesktop::CurrentSurface() { return janela_.Surface(); }

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

}  // namespace tamrix
