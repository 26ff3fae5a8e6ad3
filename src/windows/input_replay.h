// TAMRIX_INPUT: user input replayed from a file. One action is taken each
// time 20 ms have passed while the program lets events run, and delivered
// as the window system would deliver it, so that a program sees replayed
// input exactly where it would see a person's.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <deque>
#include <string>

#include "core/input_script.h"

class QWidget;

namespace tamrix {

class QtDesktop;

class InputReplay {
 public:
  InputReplay(QtDesktop& desktop, std::vector<InputAction> actions);

  void Start();

 private:
  void Tick();
  bool TargetExists(const InputAction& action) const;
  void Perform(const InputAction& action);
  void Click(QWidget& widget, QPoint at, bool doubleClick);
  void PressKey(int qtKey, Qt::KeyboardModifiers modifiers, const QString& text);
  // The widget under a point of a window's client area, and the point in it.
  QWidget& TargetAt(QWidget& window, QPoint& at);
  QWidget* KeyTarget();

  QtDesktop& desktop_;
  std::deque<InputAction> pending_;
  QTimer timer_;
  QElapsedTimer clock_;
  qint64 nextAt_ = 0;
  qint64 waitingSince_ = -1;  // when the front action began to wait for its target
};

// The actions of the file named by TAMRIX_INPUT; lines that are no action
// are reported on the standard error stream and skipped.
std::vector<InputAction> ReadInputFile(const std::string& path);

}  // namespace tamrix
