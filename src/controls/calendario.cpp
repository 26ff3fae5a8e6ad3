#include "controls/calendario.h"

#include <QKeyEvent>

#include "commands/dates/date_reading.h"
#include "commands/format/date_format.h"
#include "core/codepage.h"

namespace tamrix {
namespace {

// The open control is 2580 twips high and at least 2460 wide.
constexpr int kOpenMinWidth = 164;
constexpr int kOpenMinHeight = 172;
constexpr int kFieldHeight = 21;

QDate ToQDate(const DateTime& value) {
  const auto civil = CivilDate(value);
  return QDate(static_cast<int>(civil.year()), static_cast<int>(static_cast<unsigned>(civil.month())),
               static_cast<int>(static_cast<unsigned>(civil.day())));
}

}  // namespace

Calendario::Calendario(QWidget* parent)
    : QWidget(parent), txtData_(new QLineEdit(this)), picUp_(new QToolButton(this)), picker_(new QCalendarWidget(this)) {
  picUp_->setArrowType(Qt::DownArrow);
  picUp_->setFocusPolicy(Qt::NoFocus);
  picker_->hide();
  picker_->setDateRange(FirstDay(), LastDay());
  picker_->setGridVisible(true);
  picker_->installEventFilter(this);
  txtData_->installEventFilter(this);
  setFocusProxy(txtData_);
  connect(picUp_, &QToolButton::clicked, this, [this] {
    emit Clicked();
    if (open_) {
      ClosePicker();
    } else {
      OpenPicker();
    }
  });
  connect(picker_, &QCalendarWidget::clicked, this, [this] { ClosePicker(); });
  connect(txtData_, &QLineEdit::editingFinished, this, &Calendario::TakeTypedDate);
  resize(100, kFieldHeight);
  value_ = QDate::currentDate();
  ShowValue();
}

void Calendario::SetValue(const QDate& date) {
  value_ = date;
  picker_->setSelectedDate(date);
  ShowValue();
  emit Changed(value_);
}

void Calendario::ShowValue() {
  const DateTime date = MakeDateTime(value_.year(), static_cast<unsigned>(value_.month()),
                                     static_cast<unsigned>(value_.day()));
  txtData_->setText(QString::fromStdString(Cp1252ToUtf8(DateText(date))));
}

// A typed date that reads as one becomes the value; anything else gives the
// field its date back.
void Calendario::TakeTypedDate() {
  const auto typed = ReadDate(Utf8ToCp1252Lossy(txtData_->text().toStdString()));
  if (typed && ToQDate(*typed) != value_ && ToQDate(*typed) >= FirstDay()) {
    SetValue(ToQDate(*typed));
  } else {
    ShowValue();
  }
}

void Calendario::OpenPicker() {
  if (open_) return;
  sizeTaken_ = true;
  closedSize_ = size();
  raise();
  open_ = true;
  picker_->setSelectedDate(value_);
  const QSize hint = picker_->sizeHint();
  const int width = std::max({kOpenMinWidth, hint.width(), closedSize_.width()});
  resize(width, std::max(kOpenMinHeight, closedSize_.height() + hint.height()));
  picker_->setGeometry(0, closedSize_.height(), width, height() - closedSize_.height());
  picker_->show();
  picker_->setFocus(Qt::PopupFocusReason);
}

void Calendario::ClosePicker() {
  if (!open_) return;
  open_ = false;
  picker_->hide();
  sizeTaken_ = false;
  resize(closedSize_);
  txtData_->setFocus(Qt::OtherFocusReason);
  const QDate chosen = picker_->selectedDate();
  if (chosen != value_) {
    SetValue(chosen);
  } else {
    ShowValue();
  }
  emit Clicked();
}

void Calendario::resizeEvent(QResizeEvent*) {
  if (sizeTaken_) return;
  const int button = height();
  txtData_->setGeometry(0, 0, std::max(width() - button, 0), height());
  picUp_->setGeometry(width() - button, 0, button, height());
}

bool Calendario::eventFilter(QObject* watched, QEvent* event) {
  if (watched == picker_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      ClosePicker();
      return true;
    }
  }
  if (watched == txtData_ && event->type() == QEvent::FocusIn) emit GotFocus();
  if (watched == txtData_ && event->type() == QEvent::FocusOut) emit LostFocus();
  return QWidget::eventFilter(watched, event);
}

}  // namespace tamrix
