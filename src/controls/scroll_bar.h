// The drawn scroll bar, horizontal or vertical: two end buttons, a track
// and a thumb. Held end buttons repeat; a dragged thumb reports every third
// tick of its timer; every change of the value is reported. The report
// preview and the grid use it as the language's ScrollBar does.
#pragma once

#include <QTimer>
#include <QWidget>

#include "controls/scroll_bar_model.h"

namespace tamrix {

class ScrollBar : public QWidget {
  Q_OBJECT

 public:
  // The bar's thickness, each end button's length and the thumb's.
  static constexpr int kThickness = 20;

  explicit ScrollBar(QWidget* parent = nullptr);

  bool Vertical() const { return vertical_; }
  void SetVertical(bool vertical);
  std::int32_t Value() const { return model_.Value(); }
  // A value set by the program moves the thumb and is reported.
  void SetValue(std::int32_t value);
  void SetMax(std::int32_t max);
  void SetSmallChange(std::int32_t step) { model_.SetSmallChange(step); }
  void SetLargeChange(std::int32_t step) { model_.SetLargeChange(step); }
  const ScrollBarModel& Model() const { return model_; }

 signals:
  void Changed(std::int32_t value);
  void GotFocus();
  void LostFocus();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  enum class Held { None, Down, Up, Thumb };

  // Along the bar: x when horizontal, y when vertical.
  int Along(QPointF point) const;
  void Sync();
  void LayOut();
  void Report();
  void Tick();

  ScrollBarModel model_;
  bool vertical_ = false;
  Held held_ = Held::None;
  int grip_ = 0;   // where the thumb was taken, from its start
  int ticks_ = 0;  // Timer1's counter
  QTimer timer_;   // Timer1: 50 ms while a button or the thumb is held
};

}  // namespace tamrix
