// Janela, the main run-time window: the program's output goes to its
// surface, and the process ends when it closes.
#pragma once

#include <QWidget>
#include <functional>

#include "windows/window_surface.h"

class QString;

namespace tamrix {

class Janela : public QWidget {
  Q_OBJECT

 public:
  // Created hidden, centred, at 9600 by 6200 twips, with the button-face
  // background, the button-text colour and "Courier New" of 10 points.
  Janela();
  ~Janela() override;

  WindowSurface& Surface() { return surface_; }

  // Runs once, whichever way the window closes: its close box, F6 or Pause,
  // or CloseAsUser. The handler is expected to end the process.
  void SetClosingHandler(std::function<void()> handler);
  // Closes the window as its close box does.
  void CloseAsUser();
  // Normal state, visible, on top.
  void ShowNormal();
  // Saves the client area, with any controls on it, as a PNG file.
  bool SaveSnapshot(const QString& path);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  // F6 and Pause close the window from any state: they are caught for the
  // window, its controls and the message boxes over it.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool ReceivesClosingKeys(QObject* watched) const;

  WindowSurface surface_;
  std::function<void()> closingHandler_;
  bool closing_ = false;
};

}  // namespace tamrix
