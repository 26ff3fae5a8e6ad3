// The windows that NewWindow opens: the classes Form1 (sizable), Form2
// (fixed border) and Form3 (fixed border without control box), one class
// here with the border kind chosen at creation.
#pragma once

#include "windows/run_time_widget.h"

namespace tamrix {

class Form : public RunTimeWidget {
  Q_OBJECT

 public:
  Form(WindowClass kind, std::string name);

 protected:
  // A key up that no control took: the older codes of the key tables.
  void keyReleaseEvent(QKeyEvent* event) override;
  // Closing unloads the window's objects; the window itself only hides,
  // and a later use finds it blank, as if made anew.
  void closeEvent(QCloseEvent* event) override;
};

}  // namespace tamrix
