#include "windows/text_entry_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tamrix {

TextEntryDialog::TextEntryDialog(QWidget* parent, const QString& title, const QString& prompt,
                                 const QString& text)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      entry_(new QLineEdit(text, this)) {
  setWindowTitle(title);
  auto* label = new QLabel(prompt, this);
  label->setTextFormat(Qt::PlainText);
  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
  connect(ok, &QPushButton::clicked, this, [this] {
    button_ = TextAnswer::Button::Ok;
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, [this] {
    button_ = TextAnswer::Button::Cancel;
    reject();
  });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(entry_);
  layout->addLayout(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  entry_->installEventFilter(this);
  entry_->setFocus();
}

TextAnswer::Button TextEntryDialog::Ask() {
  button_ = TextAnswer::Button::None;
  exec();
  return button_;
}

bool TextEntryDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == entry_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      focusNextChild();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace tamrix
