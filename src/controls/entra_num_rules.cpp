#include "controls/entra_num_rules.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <optional>

namespace tamrix {
namespace {

constexpr std::string_view kMask = "000.000.000.000.000,000000";
constexpr int kKeyBackspace = 8;
constexpr int kKeyEnter = 13;
constexpr int kKeyEscape = 27;

std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool IsDigit(int key) { return key >= '0' && key <= '9'; }

// Fills the mask from the text; nothing when the text overflows it.
std::optional<std::string> FillMask(std::string_view text) {
  std::string mask(kMask);
  const std::size_t comma = mask.find(',');
  const std::size_t point = text.find('.');
  const std::size_t integerEnd = point == std::string_view::npos ? text.size() : point;
  std::size_t place = comma;
  for (std::size_t i = integerEnd; i > 0; --i) {
    while (place > 0 && mask[place - 1] == '.') --place;
    if (place == 0) return std::nullopt;
    mask[--place] = text[i - 1];
  }
  if (point != std::string_view::npos) {
    place = comma + 1;
    for (std::size_t i = point + 1; i < text.size(); ++i) {
      if (place >= mask.size()) return std::nullopt;
      mask[place++] = text[i];
    }
  }
  return mask;
}

}  // namespace

std::string Formata(std::string_view plain, int casas) {
  char sign = 0;
  std::string text(plain);
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
    sign = text.front();
    text.front() = ' ';
  }
  const std::optional<std::string> filled = FillMask(Trim(text));
  if (!filled) return std::string();
  std::string mask = *filled;
  const std::size_t comma = mask.find(',');
  for (std::size_t i = 0; i + 1 < comma && (mask[i] == '0' || mask[i] == '.'); ++i) mask[i] = ' ';
  const long last = static_cast<long>(mask.size()) - 1;
  for (long i = last; i >= static_cast<long>(comma) + casas + 1 && i >= 0; --i) {
    if (mask[static_cast<std::size_t>(i)] == '0') {
      mask[static_cast<std::size_t>(i)] = ' ';
      continue;
    }
    if (mask[static_cast<std::size_t>(i)] == ',') mask[static_cast<std::size_t>(i)] = ' ';
    break;
  }
  std::string shown(Trim(mask));
  if (!shown.empty() && shown.back() == ',') shown = std::string(Trim(shown.substr(0, shown.size() - 1)));
  if (sign == '-') shown.insert(shown.begin(), '-');
  return shown;
}

std::string RegionalForm(std::string_view masked, char decimalSign, char groupingSign) {
  std::string shown(masked);
  for (char& c : shown) {
    if (c == '.') {
      c = groupingSign;
    } else if (c == ',') {
      c = decimalSign;
    }
  }
  return shown;
}

int QCAP(std::string_view text) {
  const std::size_t point = text.find('.');
  return point == std::string_view::npos ? 0 : static_cast<int>(text.size() - point - 1);
}

int CampoNumerico(std::string_view text, std::size_t caret, int key, int casas) {
  if (casas < 1) return IsDigit(key) || key == '-' || key == kKeyBackspace ? key : 0;
  const std::size_t point = text.find('.');
  if (QCAP(text) >= casas && point != std::string_view::npos && caret > point) {
    return key == '-' || key == kKeyEscape || key == kKeyEnter || key == kKeyBackspace ? key : 0;
  }
  if (key == ',') return '.';
  return IsDigit(key) || key == kKeyBackspace || key == '.' || key == '-' ? key : 0;
}

int Maior(int red, int green, int blue) {
  if (green == blue && green > red) return 5;
  if (red == blue && green < red) return 4;
  if (red == green && red > blue) return 3;
  if (blue > green && blue > 1) return 2;
  if (blue < green && green > red) return 1;
  if (red > blue && green < red) return 0;
  return 6;
}

std::int32_t Clareia(std::int32_t colour, int inc, int corMax) {
  std::array<int, 3> rgb{colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
  // The channels each class raises: red, green, blue.
  constexpr std::array<std::array<bool, 3>, 7> kRaised{{{false, true, true},
                                                         {true, false, true},
                                                         {true, true, false},
                                                         {false, false, true},
                                                         {false, true, false},
                                                         {true, false, false},
                                                         {true, true, true}}};
  const auto& raised = kRaised[static_cast<std::size_t>(Maior(rgb[0], rgb[1], rgb[2]))];
  for (std::size_t i = 0; i < 3; ++i) {
    if (raised[i] && rgb[i] + inc < corMax) rgb[i] += inc;
  }
  return rgb[0] | (rgb[1] << 8) | (rgb[2] << 16);
}

std::string PlainNumber(double value) {
  if (!std::isfinite(value)) return "0";
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.6f", value);
  std::string text(buffer.data());
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  if (text == "-0") text = "0";
  return text;
}

}  // namespace tamrix
