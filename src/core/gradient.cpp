#include "core/gradient.h"

#include <array>
#include <cmath>
#include <cstdlib>

#include "core/desktop.h"
#include "core/fault.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

using Channels = std::array<std::int16_t, 3>;

Channels Bytes(std::int32_t colour) {
  return {static_cast<std::int16_t>(colour & 0xFF), static_cast<std::int16_t>((colour >> 8) & 0xFF),
          static_cast<std::int16_t>((colour >> 16) & 0xFF)};
}

std::int32_t Colour(const Channels& c) { return c[0] | (c[1] << 8) | (c[2] << 16); }

// Height over difference, rounded to a 16-bit integer; the division by zero
// and the overflow that the painting's guard stepped over give 0.
std::int16_t Step(int height, std::int16_t difference) {
  if (difference == 0) return 0;
  try {
    return ToInt16(static_cast<double>(height) / difference);
  } catch (const RuntimeFault&) {
    return 0;
  }
}

}  // namespace

LargestDifference Gradiente::ValorMaior(std::int16_t a, std::int16_t b, std::int16_t c) {
  std::int16_t result = 0;
  if (a == b && b == c) result = a, maiorCanal_ = 0;
  if (a > c && a > b) result = a, maiorCanal_ = 0;
  if (b > c && b > a) result = b, maiorCanal_ = 1;
  if (c > b && c > 1) result = c, maiorCanal_ = 2;
  if (b == c && b > a) result = b, maiorCanal_ = 1;
  if (b > c && b == a) result = b, maiorCanal_ = 1;
  if (a == c && a > b) result = a, maiorCanal_ = 0;
  return {result, maiorCanal_};
}

std::vector<std::int32_t> Gradiente::RowColours(int height) {
  Channels current = Bytes(corInicial);
  const Channels end = Bytes(corFinal);
  Channels difference{};
  Channels direction{};
  for (std::size_t i = 0; i < 3; ++i) {
    const int signedDifference = end[i] - current[i];
    direction[i] = signedDifference < 0 ? -1 : 1;
    difference[i] = static_cast<std::int16_t>(std::abs(signedDifference));
  }
  const LargestDifference largest = ValorMaior(difference[0], difference[1], difference[2]);
  Channels step{};
  for (std::size_t i = 0; i < 3; ++i) {
    const bool chosen = static_cast<std::size_t>(largest.channel) == i;
    step[i] = Step(height, chosen ? largest.value : difference[i]);
  }

  std::vector<std::int32_t> rows;
  rows.reserve(static_cast<std::size_t>(std::max(height, 0)) + 1);
  for (int row = 0; row <= height; ++row) {
    rows.push_back(Colour(current));
    for (std::size_t i = 0; i < 3; ++i) {
      if (step[i] == 0 || row % step[i] != 0) continue;
      if (direction[i] == 1) {
        if (current[i] < 255) ++current[i];
      } else if (current[i] >= 1) {
        --current[i];
      }
    }
  }
  return rows;
}

void Gradiente::Paint(Surface& surface) {
  const int width = surface.ClientWidth();
  const std::vector<std::int32_t> rows = RowColours(surface.ClientHeight());
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const int y = static_cast<int>(row);
    surface.DrawLine(0, y, width, y, rows[row]);
  }
  surface.Refresh();
}

}  // namespace tamrix
