#include "windows/qt_button_control.h"

#include "windows/built_in_pictures.h"
#include "windows/colour_ref.h"
#include "windows/picture_files.h"
#include "windows/screen_text.h"

namespace tamrix {

QtButtonControl::QtButtonControl(BtnEsp* button, int index, WindowLookup lookup, const ButtonSkins& skins)
    : QtObjectControl(button, ObjectKind::Button, index, std::move(lookup)), skins_(skins) {}

BtnEsp* QtButtonControl::Button() const { return static_cast<BtnEsp*>(Widget()); }

void QtButtonControl::SetBackColor(std::int32_t colour) {
  if (Button() != nullptr) Button()->SetBackColor(ScreenColour(colour));
}

void QtButtonControl::SetForeColor(std::int32_t colour) {
  if (Button() != nullptr) Button()->SetForeColor(ScreenColour(colour));
}

void QtButtonControl::SetCaption(const std::string& caption) {
  if (Button() != nullptr) Button()->SetCaption(ScreenText(caption));
}

void QtButtonControl::SetPicture(const PictureSource& picture) {
  QImage image;
  if (picture.builtIn >= 0) {
    image = BuiltInPicture(picture.builtIn);
  } else if (!picture.path.empty()) {
    image = LoadPictureFile(picture.path);
  }
  if (Button() != nullptr) Button()->SetPicture(image);
}

void QtButtonControl::SetStyle(std::int16_t style) {
  if (Button() != nullptr) Button()->SetStyle(style);
}

// A skinned button takes the size of its picture at rest.
void QtButtonControl::ApplySkin(int n) {
  BtnEsp* button = Button();
  if (button == nullptr) return;
  const ButtonSkin& skin = skins_.Skin(n);
  for (int look = 0; look < BtnEsp::kLookCount; ++look) {
    button->SetLookPicture(static_cast<BtnEsp::Look>(look), skin.looks[static_cast<std::size_t>(look)]);
  }
  if (skin.backColor) button->SetBackColor(*skin.backColor);
  button->SetForeColor(skin.foreColor);
  const QImage& up = skin.looks[static_cast<std::size_t>(ButtonState::Up)];
  if (!up.isNull()) button->resize(up.size());
}

}  // namespace tamrix
