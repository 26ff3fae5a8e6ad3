// The Text object's control: a single-line box (Texto), or a multi-line rich
// text box (MultiLine) that keeps Enter for itself while it has the focus.
// A box whose Tag is "NUMERICO" lets only the numeric key filter's keys in.
#pragma once

#include <QLineEdit>
#include <QStackedLayout>
#include <QTextEdit>
#include <QWidget>

namespace tamrix {

class TextBox : public QWidget {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent = nullptr);

  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool multiLine);
  QString Text() const;
  void SetText(const QString& text);
  QLineEdit& Line() { return *line_; }
  QTextEdit& Rich() { return *rich_; }
  QString Tag() const { return tag_; }
  void SetTag(const QString& tag) { tag_ = tag; }
  // The decimals of the numeric key filter.
  static constexpr int kFilterDecimals = 2;

 signals:
  void Clicked();
  void DoubleClicked();
  void GotFocus();
  void LostFocus();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* line_;
  QTextEdit* rich_;
  QStackedLayout* stack_;
  bool multiLine_ = false;
  QString tag_;
};

}  // namespace tamrix
