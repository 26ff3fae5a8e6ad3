#include "controls/rot.h"

namespace tamrix {

Rot::Rot(QWidget* parent) : QLabel(parent) {
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setWordWrap(true);
}

void Rot::mousePressEvent(QMouseEvent* event) {
  QLabel::mousePressEvent(event);
  emit Clicked();
}

void Rot::mouseDoubleClickEvent(QMouseEvent* event) {
  QLabel::mouseDoubleClickEvent(event);
  emit DoubleClicked();
}

SpecialFrame::SpecialFrame(QWidget* parent) : QGroupBox(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

}  // namespace tamrix
