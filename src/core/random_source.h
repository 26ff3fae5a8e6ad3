// The run-time's one random generator. It is seeded from the clock at the
// start of the run, and again whenever a record value is scrambled.
#pragma once

#include <cstdint>

namespace tamrix {

// A uniform number in [0, 1) in single precision.
float NextRandomSingle();

void ReseedRandomFromClock();
// A fixed seed, for tests that need a repeatable sequence.
void SeedRandom(std::uint32_t seed);

}  // namespace tamrix
