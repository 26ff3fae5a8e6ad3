#include "windows/colour_ref.h"

#include <QApplication>
#include <QPalette>
#include <array>
#include <utility>

namespace tamrix {
namespace {

constexpr std::uint32_t kSystemColourFlag = 0x80000000u;

// The desktop's system colour indexes as the palette's roles; indexes not
// listed take the window colour.
constexpr std::array<std::pair<std::uint32_t, QPalette::ColorRole>, 14> kSystemColours = {{
    {4, QPalette::Window},            // menu
    {5, QPalette::Base},              // window
    {7, QPalette::WindowText},        // menu text
    {8, QPalette::Text},              // window text
    {13, QPalette::Highlight},        // highlight
    {14, QPalette::HighlightedText},  // highlight text
    {15, QPalette::Button},           // button face
    {16, QPalette::Mid},              // button shadow
    {17, QPalette::PlaceholderText},  // grey text
    {18, QPalette::ButtonText},       // button text
    {20, QPalette::Light},            // button highlight
    {21, QPalette::Shadow},           // 3D dark shadow
    {23, QPalette::ToolTipText},      // info text
    {24, QPalette::ToolTipBase},      // info background
}};

QColor SystemColour(std::uint32_t index) {
  QPalette::ColorRole role = QPalette::Window;
  for (const auto& [systemIndex, paletteRole] : kSystemColours) {
    if (systemIndex == index) role = paletteRole;
  }
  return QApplication::palette().color(role);
}

}  // namespace

QColor ScreenColour(std::int32_t colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  if ((bits & kSystemColourFlag) != 0) return SystemColour(bits & 0xFFu);
  return QColor(static_cast<int>(bits & 0xFFu), static_cast<int>((bits >> 8) & 0xFFu),
                static_cast<int>((bits >> 16) & 0xFFu));
}

std::int32_t LanguageColour(const QColor& colour) {
  return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

}  // namespace tamrix
