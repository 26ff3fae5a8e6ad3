// Arbitrary text through preparation, block linking, the block check, the
// declaration scan and the checker of tamrix-pack --check.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/block_linking.h"
#include "core/preparation.h"
#include "core/program_check.h"
#include "headless_desktop.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::array<std::string, 7> codes;
  // A zero byte splits the input into units.
  std::size_t unit = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] == 0 && unit < 6) {
      ++unit;
      continue;
    }
    codes[unit] += static_cast<char>(data[i]);
  }
  const std::string text = tamrix::LinkWhileBlocks(tamrix::LinkIfBlocks(tamrix::PrepareSource(codes)));
  tamrix::CheckBlocks(text);
  tamrix::testing::ProgramRun run;
  run.interpreter.Procs().ScanDeclarations(run.interpreter, text);
  tamrix::CheckProgram(codes);
  return 0;
}
