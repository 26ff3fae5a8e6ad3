#include "controls/mask_box.h"

#include <QKeyEvent>

#include "commands/entries/mask_pattern.h"
#include "core/codepage.h"

namespace tamrix {

MaskBox::MaskBox(QWidget* parent) : QLineEdit(parent) {}

void MaskBox::SetMask(const std::string& mask) {
  mask_ = mask;
  SetContent(MaskPattern(mask));
}

std::string MaskBox::Content() const { return Utf8ToCp1252Lossy(text().toStdString()); }

void MaskBox::SetContent(const std::string& text) {
  setText(QString::fromStdString(Cp1252ToUtf8(text)));
  setCursorPosition(0);
}

void MaskBox::keyPressEvent(QKeyEvent* event) {
  if (mask_.empty() || isReadOnly()) {
    QLineEdit::keyPressEvent(event);
    if (!event->text().isEmpty()) emit Edited();
    return;
  }
  const std::string text = Content();
  const auto caret = static_cast<std::size_t>(cursorPosition());
  std::optional<MaskEdit> edit;
  if (event->key() == Qt::Key_Backspace) {
    edit = EraseBeforeCaret(mask_, text, caret);
  } else if (event->key() == Qt::Key_Delete) {
    edit = EraseAtCaret(mask_, text, caret);
  } else if (event->text().size() == 1 && event->text().front().unicode() >= 0x20) {
    edit = TypeIntoMask(mask_, text, caret, static_cast<char>(event->text().front().toLatin1()));
  } else {
    QLineEdit::keyPressEvent(event);  // moves, selection, Tab
    return;
  }
  if (!edit) return;  // refused
  setText(QString::fromStdString(Cp1252ToUtf8(edit->text)));
  setCursorPosition(static_cast<int>(edit->caret));
  emit Edited();
}

void MaskBox::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  emit KeyUp();
}

void MaskBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  emit GotFocus();
}

void MaskBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  emit LostFocus();
}

}  // namespace tamrix
