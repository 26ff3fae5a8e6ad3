// Arbitrary bytes as a packed executable, and as an encoded text.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/fault.h"
#include "image/codec.h"
#include "image/program_image.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    tamrix::ReadProgramImage(bytes);
  } catch (const tamrix::RuntimeFault&) {
    // A damaged layout is a run-time fault, shown by the fatal box.
  }
  try {
    tamrix::DecodeText(bytes);
  } catch (const tamrix::RuntimeFault&) {
  }
  return 0;
}
