// Arbitrary programs through the whole run, under a statement budget.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz_limits.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string source(reinterpret_cast<const char*>(data), size);
  tamrix::fuzzing::LimitedRun run;
  run.Guarded([&] { run.Run(source); });
  return 0;
}
