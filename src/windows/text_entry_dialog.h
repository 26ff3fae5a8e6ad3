// EntraTxt, the modal dialog of GetText: a prompt, a text box and the
// buttons OK and Cancel. Enter in the text box moves on to OK, as Tab does.
#pragma once

#include <QDialog>

#include "core/run_time_window.h"

class QLineEdit;

namespace tamrix {

class TextEntryDialog : public QDialog {
  Q_OBJECT

 public:
  TextEntryDialog(QWidget* parent, const QString& title, const QString& prompt, const QString& text);

  QLineEdit& Entry() { return *entry_; }
  // Runs the dialog modally and tells which button closed it.
  TextAnswer::Button Ask();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* entry_;
  TextAnswer::Button button_ = TextAnswer::Button::None;
};

}  // namespace tamrix
