#include "controls/entra_num.h"

#include <QKeyEvent>
#include <QPainter>

#include "controls/entra_num_rules.h"
#include "controls/virtual_keys.h"
#include "core/numbers.h"
#include "core/regional.h"

namespace tamrix {
namespace {

constexpr int kRedrawMilliseconds = 10;
constexpr int kCaretMilliseconds = 500;
// The number ends 100 twips inside the right edge, the caret stands 70
// twips inside it.
constexpr int kTextInset = 7;
constexpr int kCaretInset = 5;
constexpr int kLightenBy = 100;
constexpr int kLightenMax = 255;
constexpr int kKeyDelete = 46;

QColor Lightened(const QColor& colour) {
  const std::int32_t rgb = colour.red() | (colour.green() << 8) | (colour.blue() << 16);
  const std::int32_t light = Clareia(rgb, kLightenBy, kLightenMax);
  return QColor(light & 0xFF, (light >> 8) & 0xFF, (light >> 16) & 0xFF);
}

// Sends a typed character to the text box as a key would type it.
void TypeInto(QLineEdit& box, QChar c) {
  box.insert(QString(c));
}

}  // namespace

EntraNum::EntraNum(QWidget* parent) : QWidget(parent), txtAux_(new QLineEdit(this)) {
  txtAux_->setGeometry(-1000, 0, 10, 10);  // never seen
  txtAux_->installEventFilter(this);
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(txtAux_);
  setAttribute(Qt::WA_OpaquePaintEvent);
  timer1_.setSingleShot(true);
  timer1_.setInterval(kRedrawMilliseconds);
  connect(&timer1_, &QTimer::timeout, this, &EntraNum::FormataNumero);
  timer2_.setInterval(kCaretMilliseconds);
  connect(&timer2_, &QTimer::timeout, this, [this] {
    caretOn_ = !caretOn_;
    update();
  });
  txtAux_->setText(QStringLiteral("0"));
  FormataNumero();
}

void EntraNum::SetValue(double value) {
  txtAux_->setText(QString::fromStdString(PlainNumber(value)));
  FormataNumero();
}

void EntraNum::SetCasas(int casas) {
  casas_ = casas;
  FormataNumero();
}

void EntraNum::SetLocked(bool locked) {
  locked_ = locked;
  txtAux_->setReadOnly(locked);
}

void EntraNum::SetBackColor(const QColor& colour) {
  back_ = colour;
  update();
}

void EntraNum::SetForeColor(const QColor& colour) {
  fore_ = colour;
  update();
}

void EntraNum::FormataNumero() {
  const std::string plain = txtAux_->text().toStdString();
  const Regional& regional = Regional::Current();
  shown_ = QString::fromStdString(
      RegionalForm(Formata(plain, casas_), regional.decimalSign, regional.groupingSign));
  const double value = Val(plain);
  update();
  if (value != value_) {
    value_ = value;
    emit Changed(value_);
  }
}

bool EntraNum::eventFilter(QObject* watched, QEvent* event) {
  if (watched != txtAux_) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto& key = static_cast<QKeyEvent&>(*event);
      KeyDown(key);
      return KeyPress(key);
    }
    case QEvent::KeyRelease: KeyUp(); return false;
    case QEvent::FocusIn: FocusIn(); return false;
    case QEvent::FocusOut: FocusOut(); return false;
    default: return false;
  }
}

void EntraNum::KeyDown(QKeyEvent& key) {
  timer1_.start();
  if (VirtualKeyCode(key) == kKeyDelete && !locked_) txtAux_->backspace();
}

bool EntraNum::KeyPress(QKeyEvent& key) {
  const int code = VirtualKeyCode(key);
  if (code == kKeyDelete) return true;  // sent on as a backspace
  const QString text = key.text();
  const bool backspace = key.key() == Qt::Key_Backspace;
  if (!backspace && text.size() != 1) return false;  // arrows, Tab, Enter: the box's or the window's
  if (locked_) return true;
  const QChar c = backspace ? QChar(8) : text.front();
  if (c == QLatin1Char('.') && typingState_ == 1) {
    if (value_ == 0) {
      txtAux_->setText(QStringLiteral("0."));
    } else {
      txtAux_->end(false);
      TypeInto(*txtAux_, c);
    }
    txtAux_->end(false);
    typingState_ = 2;
    return true;
  }
  if ((c.isDigit() || c == QLatin1Char('-')) && typingState_ == 1) {
    value_ = 0;
    if (txtAux_->text() != QStringLiteral("-")) txtAux_->clear();
    typingState_ = 2;
  }
  const int passed = CampoNumerico(txtAux_->text().toStdString(), static_cast<std::size_t>(txtAux_->cursorPosition()),
                                   c.unicode(), casas_);
  if (passed == 0) return true;
  if (passed == 8) {
    txtAux_->backspace();
  } else {
    TypeInto(*txtAux_, QChar(static_cast<char16_t>(passed)));
  }
  return true;
}

void EntraNum::KeyUp() {
  if (txtAux_->text() == QStringLiteral("0-")) {
    txtAux_->setText(QStringLiteral("-"));
    txtAux_->end(false);
  }
}

void EntraNum::FocusIn() {
  typingState_ = 1;
  txtAux_->setCursorPosition(static_cast<int>(txtAux_->text().size()));
  caretOn_ = true;
  timer2_.start();
  update();
  emit GotFocus();
}

void EntraNum::FocusOut() {
  timer2_.stop();
  caretOn_ = false;
  update();
  emit LostFocus(value_);
}

void EntraNum::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), back_);
  painter.setPen(QColor(0, 0, 0));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setFont(font());
  painter.setPen(isEnabled() ? fore_ : Lightened(fore_));
  const QFontMetrics metrics(font());
  const int x = width() - metrics.horizontalAdvance(shown_) - kTextInset;
  const int top = (height() - metrics.height()) / 2;
  painter.drawText(x, top + metrics.ascent(), shown_);
  if (caretOn_) {
    painter.setPen(QColor(0, 0, 0));
    painter.drawLine(width() - kCaretInset, top, width() - kCaretInset, top + metrics.height());
  }
}

void EntraNum::mousePressEvent(QMouseEvent*) {
  txtAux_->setFocus(Qt::MouseFocusReason);
  emit Clicked();
}

void EntraNum::mouseDoubleClickEvent(QMouseEvent*) { emit DoubleClicked(); }

void EntraNum::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange) update();
  QWidget::changeEvent(event);
}

}  // namespace tamrix
