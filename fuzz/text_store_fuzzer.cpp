// Arbitrary bytes as the text store "ZR.File" beside a program that reads
// it with GetString, changes it with SaveString and reads it again.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz_limits.h"
#include "scratch_folder.h"

namespace {

const std::string kProgram = tamrix::testing::Lines(
    {"Var r String", "r = GetString(\"user\")", "Write r", "r = GetString(\"\")", "Write r",
     "SaveString \"theme\", \"light\"", "SaveString \"copy\", r", "r = GetString(\"copy\")", "Write r"});

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tamrix::fuzzing::ScratchFolder folder;
  folder.Empty();
  folder.Write("ZR.File", std::string_view(reinterpret_cast<const char*>(data), size));
  tamrix::fuzzing::LimitedRun run;
  run.programPath = folder.Slash();
  run.Guarded([&] { run.Run(kProgram); });
  return 0;
}
