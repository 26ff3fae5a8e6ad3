// Arbitrary bytes as a file container that a program extracts files from
// and then adds one to: both read the directory.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz_limits.h"
#include "scratch_folder.h"

namespace {

const std::string kProgram = tamrix::testing::Lines(
    {"Var p String, d String", "p = ProgramDir & \"/store.box\"", "d = ProgramDir & \"/out.txt\"",
     "ExtractFile \"notes\", d, \"store.box\"", "ExtractFile \"LOG\", d, p", "InsertFile \"more\", \"notes.txt\", p"});

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tamrix::fuzzing::ScratchFolder folder;
  folder.Empty();
  folder.Write("store.box", std::string_view(reinterpret_cast<const char*>(data), size));
  folder.Write("notes.txt", "a file to add\r\n");
  tamrix::fuzzing::LimitedRun run;
  run.programPath = folder.Slash();
  run.Guarded([&] { run.Run(kProgram); });
  return 0;
}
