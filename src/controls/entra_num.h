// EntraNum, the numeric entry field: a number drawn right-aligned on the
// control's own surface, with thousands signs and decimals, and its own
// blinking caret. Typing goes to a hidden text box (TxtAux) in plain
// notation with "." as the point; 10 ms after each key the number is drawn
// again from it.
#pragma once

#include <QLineEdit>
#include <QTimer>
#include <QWidget>

namespace tamrix {

class EntraNum : public QWidget {
  Q_OBJECT

 public:
  explicit EntraNum(QWidget* parent = nullptr);

  double Value() const { return value_; }
  // The field shows the number; a new value is reported.
  void SetValue(double value);
  int Casas() const { return casas_; }
  void SetCasas(int casas);
  void SetLocked(bool locked);
  void SetBackColor(const QColor& colour);
  void SetForeColor(const QColor& colour);
  // The typed text, in plain notation.
  QString PlainText() const { return txtAux_->text(); }
  // What the field shows now.
  QString Shown() const { return shown_; }

 signals:
  // The value changed, by typing or by the program; a value set again is
  // no change.
  void Changed(double value);
  void Clicked();
  void DoubleClicked();
  void GotFocus();
  void LostFocus(double value);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // The key press handling of TxtAux; true when the key is swallowed.
  bool KeyPress(QKeyEvent& key);
  void KeyDown(QKeyEvent& key);
  void KeyUp();
  // FormataNumero: the shown text and the value from TxtAux.
  void FormataNumero();
  void FocusIn();
  void FocusOut();

  QLineEdit* txtAux_;
  double value_ = 0;
  int casas_ = 2;
  bool locked_ = false;
  QColor back_{255, 255, 255};
  QColor fore_{0, 0, 0};
  QString shown_;
  int typingState_ = 0;  // 1 just after the focus came, 2 afterwards
  bool caretOn_ = false;
  QTimer timer1_;  // 10 ms, one shot: draws the number again
  QTimer timer2_;  // 500 ms: the caret
};

}  // namespace tamrix
