#include "controls/text_box.h"

#include <QKeyEvent>

#include "commands/entries/numeric_key_filter.h"
#include "controls/virtual_keys.h"
#include "windows/run_time_widget.h"

namespace tamrix {
namespace {

// The key preview of the window that holds a multi-line box.
void SetKeyPreview(QWidget& box, bool on) {
  if (auto* window = dynamic_cast<RunTimeWidget*>(box.window())) window->SetKeyPreview(on);
}

}  // namespace

TextBox::TextBox(QWidget* parent)
    : QWidget(parent), line_(new QLineEdit), rich_(new QTextEdit), stack_(new QStackedLayout(this)) {
  stack_->setContentsMargins(0, 0, 0, 0);
  stack_->addWidget(line_);
  stack_->addWidget(rich_);
  rich_->setAcceptRichText(true);
  rich_->setTabChangesFocus(true);
  for (QWidget* box : {static_cast<QWidget*>(line_), static_cast<QWidget*>(rich_)}) box->installEventFilter(this);
  rich_->viewport()->installEventFilter(this);
  setFocusProxy(line_);
  resize(100, line_->sizeHint().height());
}

void TextBox::SetMultiLine(bool multiLine) {
  multiLine_ = multiLine;
  QWidget* shown = multiLine ? static_cast<QWidget*>(rich_) : static_cast<QWidget*>(line_);
  stack_->setCurrentWidget(shown);
  setFocusProxy(shown);
}

QString TextBox::Text() const {
  return multiLine_ ? rich_->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")) : line_->text();
}

void TextBox::SetText(const QString& text) {
  if (multiLine_) {
    QString plain = text;
    rich_->setPlainText(plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  } else {
    line_->setText(text);
  }
}

bool TextBox::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      if (multiLine_) SetKeyPreview(*this, false);
      emit GotFocus();
      break;
    case QEvent::FocusOut:
      if (multiLine_) SetKeyPreview(*this, true);
      emit LostFocus();
      break;
    case QEvent::MouseButtonPress: emit Clicked(); break;
    case QEvent::MouseButtonDblClick: emit DoubleClicked(); break;
    case QEvent::KeyPress: {
      if (watched != line_ || tag_ != QStringLiteral("NUMERICO")) break;
      auto& key = static_cast<QKeyEvent&>(*event);
      const int code = key.key() == Qt::Key_Backspace ? kKeyBackspace
                       : key.text().size() == 1       ? key.text().front().unicode()
                                                      : VirtualKeyCode(key);
      const bool printable = key.text().size() == 1 || key.key() == Qt::Key_Backspace;
      if (printable && NumericKeyFilter(line_->text().toStdString(), code, kFilterDecimals) == 0) return true;
      break;
    }
    default: break;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tamrix
