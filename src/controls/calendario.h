// Calendario, the date field: a text field that shows the date in the
// regional short form, a drop button, and a month picker that opens under
// the field. A date clicked in the picker, or Enter there, closes it and
// becomes the value.
#pragma once

#include <QCalendarWidget>
#include <QDate>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>

namespace tamrix {

class Calendario : public QWidget {
  Q_OBJECT

 public:
  explicit Calendario(QWidget* parent = nullptr);

  QDate Value() const { return value_; }
  // The field shows the date; a change is reported.
  void SetValue(const QDate& date);
  bool PickerOpen() const { return open_; }
  void OpenPicker();
  void ClosePicker();
  // The first and last days the picker shows.
  static QDate FirstDay() { return QDate(1753, 1, 1); }
  static QDate LastDay() { return QDate(9999, 12, 31); }

 signals:
  void Changed(const QDate& date);
  void Clicked();
  void GotFocus();
  void LostFocus();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowValue();
  void TakeTypedDate();

  QLineEdit* txtData_;
  QToolButton* picUp_;
  QCalendarWidget* picker_;
  QDate value_;
  bool open_ = false;
  bool sizeTaken_ = false;  // the open picker holds the size
  QSize closedSize_;
};

}  // namespace tamrix
