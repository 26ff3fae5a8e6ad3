// The Mask object's control: a text box whose text always has the form of
// its mask; digits fill the "#" places, everything else typed is refused.
#pragma once

#include <QLineEdit>

namespace tamrix {

class MaskBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit MaskBox(QWidget* parent = nullptr);

  const std::string& Mask() const { return mask_; }
  // The field becomes the new mask's empty pattern.
  void SetMask(const std::string& mask);
  // The field's text, Windows-1252.
  std::string Content() const;
  void SetContent(const std::string& text);

 signals:
  // The text changed by a key; the key went up.
  void Edited();
  void KeyUp();
  void GotFocus();
  void LostFocus();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  std::string mask_;
};

}  // namespace tamrix
