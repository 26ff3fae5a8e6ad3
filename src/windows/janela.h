// Janela, the main run-time window: the program runs in its first
// activation, its mouse feeds MouseX, MouseY and MouseButtons, and the
// process ends when it closes.
#pragma once

#include <functional>

#include "windows/run_time_widget.h"

class QString;

namespace tamrix {

class Janela : public RunTimeWidget {
  Q_OBJECT

 public:
  Janela();
  ~Janela() override;

  // Runs once, whichever way the window closes: its close box, F6 or Pause,
  // or CloseAsUser. The handler is expected to end the process.
  void SetClosingHandler(std::function<void()> handler);
  // Closes the window as its close box does.
  void CloseAsUser();
  // Normal state, visible, on top.
  void ShowNormal() { Show(); }
  // Saves the client area, with any controls on it, as a PNG file.
  bool SaveSnapshot(const QString& path);

 protected:
  void OnMouse(MouseAction action, int buttons, int x, int y) override;
  void closeEvent(QCloseEvent* event) override;
  // F6 and Pause close the window from any state: they are caught for the
  // window, its controls and the message boxes over it.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool ReceivesClosingKeys(QObject* watched) const;

  std::function<void()> closingHandler_;
  bool closing_ = false;
};

}  // namespace tamrix
