// Rot, the label: a caption with an alignment, that reports clicks; and
// SpecialFrame, a framed group with a caption that draws behind the
// controls made after it.
#pragma once

#include <QGroupBox>
#include <QLabel>

namespace tamrix {

class Rot : public QLabel {
  Q_OBJECT

 public:
  explicit Rot(QWidget* parent = nullptr);

 signals:
  void Clicked();
  void DoubleClicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

class SpecialFrame : public QGroupBox {
  Q_OBJECT

 public:
  explicit SpecialFrame(QWidget* parent = nullptr);
};

}  // namespace tamrix
