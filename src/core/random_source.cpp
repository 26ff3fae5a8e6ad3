#include "core/random_source.h"

#include <chrono>
#include <random>

namespace tamrix {
namespace {

std::uint32_t ClockSeed() {
  const auto ticks = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  return static_cast<std::uint32_t>(ticks ^ (ticks >> 32));
}

std::mt19937& Generator() {
  static std::mt19937 generator(ClockSeed());
  return generator;
}

}  // namespace

float NextRandomSingle() {
  // 24 random bits fill a float's mantissa exactly, so 1.0 can't come out.
  return static_cast<float>(Generator()() >> 8) * (1.0F / 16777216.0F);
}

void ReseedRandomFromClock() { Generator().seed(ClockSeed()); }

void SeedRandom(std::uint32_t seed) { Generator().seed(seed); }

}  // namespace tamrix
