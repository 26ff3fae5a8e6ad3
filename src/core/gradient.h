// Gradiente, the control Grd that every run-time window holds: a vertical
// colour gradient painted row by row over the whole client area.
#pragma once

#include <cstdint>
#include <vector>

namespace tamrix {

class Surface;

// ValorMaior's answer: the chosen difference and its channel (0 red, 1
// green, 2 blue).
struct LargestDifference {
  std::int16_t value = 0;
  std::int16_t channel = 0;
};

class Gradiente {
 public:
  static constexpr std::int32_t kDefaultStart = 220 | (235 << 8) | (253 << 16);
  static constexpr std::int32_t kDefaultEnd = 158 | (192 << 8) | (244 << 16);

  // Seven tests in a fixed order, each overwriting what an earlier one set;
  // the fourth compares c with 1, not with a. A channel that no test picks
  // keeps the one chosen last time.
  LargestDifference ValorMaior(std::int16_t a, std::int16_t b, std::int16_t c);

  // The colour of each row from 0 to `height`, both included. A channel
  // steps by one every Passo rows, Passo being the height over its
  // difference, rounded, and stops at 0 and 255. A channel without a
  // difference (Passo 0) stays at its start value.
  std::vector<std::int32_t> RowColours(int height);
  // FormGradiente: the rows as lines across the surface.
  void Paint(Surface& surface);

  std::int32_t corInicial = kDefaultStart;
  std::int32_t corFinal = kDefaultEnd;
  // GrdAtivo: each resize of the window paints the gradient again.
  bool active = false;

 private:
  std::int16_t maiorCanal_ = 0;
};

}  // namespace tamrix
