// The button skins BtnTipo(0) to BtnTipo(8) (FrmAux): five state pictures
// each, with the colours that go with them. The nine are drawn at start;
// ButtonStyle replaces parts of skin 0 for the buttons made after it.
#pragma once

#include <QColor>
#include <QImage>
#include <array>
#include <optional>

#include "core/object_controls.h"

namespace tamrix {

struct ButtonSkin {
  std::array<QImage, 5> looks;      // by ButtonState
  std::optional<QColor> backColor;  // none: the button keeps its own
  QColor foreColor;
};

class ButtonSkins : public ButtonSkinStore {
 public:
  ButtonSkins();

  // `n` from 0 to kSkinCount - 1.
  const ButtonSkin& Skin(int n) const { return skins_[static_cast<std::size_t>(n)]; }

  void SetPicture(ButtonState state, const std::string& path) override;
  void SetBackColor(std::int32_t colour) override;
  void SetForeColor(std::int32_t colour) override;

 private:
  std::array<ButtonSkin, kSkinCount> skins_;
};

// The size of the built-in skins' pictures, and so of a skinned button.
inline constexpr int kSkinWidth = 88;
inline constexpr int kSkinHeight = 28;

}  // namespace tamrix
