// The control of a Button object: a BtnEsp with the button's own parts.
#pragma once

#include "controls/btn_esp.h"
#include "windows/button_skins.h"
#include "windows/qt_object_control.h"

namespace tamrix {

class QtButtonControl final : public QtObjectControl, public ButtonControl {
 public:
  QtButtonControl(BtnEsp* button, int index, WindowLookup lookup, const ButtonSkins& skins);

  void SetBackColor(std::int32_t colour) override;
  void SetForeColor(std::int32_t colour) override;
  void SetCaption(const std::string& caption) override;
  void SetPicture(const PictureSource& picture) override;
  void SetStyle(std::int16_t style) override;
  void ApplySkin(int n) override;

 private:
  BtnEsp* Button() const;

  const ButtonSkins& skins_;
};

}  // namespace tamrix
