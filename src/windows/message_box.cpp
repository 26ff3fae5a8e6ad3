#include "windows/message_box.h"

#include <QAbstractButton>
#include <QMessageBox>

#include "windows/screen_text.h"

namespace tamrix {
namespace {

QMessageBox::Icon QtIcon(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::None: return QMessageBox::NoIcon;
    case BoxIcon::Info: return QMessageBox::Information;
    case BoxIcon::Question: return QMessageBox::Question;
    case BoxIcon::Warning: return QMessageBox::Warning;
    case BoxIcon::Critical: return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton QtButton(BoxAnswer answer) {
  switch (answer) {
    case BoxAnswer::Ok: return QMessageBox::Ok;
    case BoxAnswer::Cancel: return QMessageBox::Cancel;
    case BoxAnswer::Yes: return QMessageBox::Yes;
    case BoxAnswer::No: return QMessageBox::No;
  }
  return QMessageBox::Ok;
}

// The answer given by closing the box without pressing a button.
BoxAnswer EscapeAnswer(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok: return BoxAnswer::Ok;
    case BoxButtons::OkCancel: return BoxAnswer::Cancel;
    case BoxButtons::YesNo: return BoxAnswer::No;
  }
  return BoxAnswer::Ok;
}

QMessageBox::StandardButtons QtButtons(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok: return QMessageBox::Ok;
    case BoxButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
  }
  return QMessageBox::Ok;
}

BoxAnswer AnswerOf(QMessageBox::StandardButton button, BoxButtons buttons) {
  switch (button) {
    case QMessageBox::Ok: return BoxAnswer::Ok;
    case QMessageBox::Cancel: return BoxAnswer::Cancel;
    case QMessageBox::Yes: return BoxAnswer::Yes;
    case QMessageBox::No: return BoxAnswer::No;
    default: return EscapeAnswer(buttons);
  }
}

}  // namespace

BoxAnswer ShowMessageBox(QWidget* parent, const BoxRequest& request) {
  QMessageBox box(parent);
  box.setWindowTitle(ScreenText(request.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ScreenText(request.text));
  box.setIcon(QtIcon(request.icon));
  box.setStandardButtons(QtButtons(request.buttons));
  box.setDefaultButton(QtButton(request.defaultAnswer));
  box.setEscapeButton(QtButton(EscapeAnswer(request.buttons)));
  box.exec();
  QAbstractButton* clicked = box.clickedButton();
  const auto button = clicked == nullptr ? QMessageBox::NoButton : box.standardButton(clicked);
  return AnswerOf(button, request.buttons);
}

}  // namespace tamrix
