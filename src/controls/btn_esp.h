// BtnEsp, the button of the language. Style 0 draws a flat button with
// lines, a picture and a caption; style 1 shows one of five whole pictures
// by state. It follows the pointer by polling, can take the colour of what
// lies to its right, and answers Enter, Space and the arrow keys.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <array>

namespace tamrix {

class BtnEsp : public QWidget {
  Q_OBJECT

 public:
  // The five state pictures of style 1.
  enum Look { Up, High, Focus, Down, Disabled };
  static constexpr int kLookCount = 5;

  explicit BtnEsp(QWidget* parent = nullptr);

  void SetCaption(const QString& caption);
  // Set before the first 300 ms have passed, false skips the sampling.
  void SetTransparent(bool transparent) { transparent_ = transparent; }
  // The colour of the button's surface; the transparency sampling replaces
  // it by the colour behind.
  QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& colour);
  void SetForeColor(const QColor& colour);
  // The picture beside the caption; a null image clears it.
  void SetPicture(const QImage& picture);
  int Style() const { return style_; }
  void SetStyle(int style);
  void SetLookPicture(Look look, const QImage& picture);
  // The look shown now (style 1).
  Look CurrentLook() const { return look_; }

 signals:
  void Click();
  void MouseDown(int button, int shift, int x, int y);
  void MouseUp(int button, int shift, int x, int y);
  // Raised after MouseUp, and after a click by Enter or Space.
  void Released();
  // Every key down, as a virtual key code and shift state.
  void KeyDown(int keyCode, int shift);
  void GotFocus();
  void LostFocus();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ShowLook(Look look);
  void PressLook();
  void ReleaseLook();
  void TrackPointer();
  void SampleBackground();
  bool PointerIsOver() const;
  void PaintLines(QPainter& painter) const;
  void PaintContent(QPainter& painter, const QRect& face) const;

  QString caption_ = QStringLiteral("OK");
  bool transparent_ = true;
  QColor backColor_;
  QColor foreColor_;
  QImage picture_;
  int style_ = 0;
  std::array<QImage, kLookCount> lookPictures_;
  Look look_ = Up;

  bool pressed_ = false;       // a press that its release turns into a click
  bool pressedLook_ = false;   // the down look is showing
  bool pointerOver_ = false;
  bool hoverPainted_ = false;
  bool hasFocus_ = false;
  QTimer hoverTimer_;         // Timer1: 100 ms, from the first mouse move
  QTimer transparencyTimer_;  // Timer2: 300 ms, two ticks
  int transparencyTicks_ = 0;
};

}  // namespace tamrix
