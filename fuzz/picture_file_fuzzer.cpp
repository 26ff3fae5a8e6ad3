// Arbitrary bytes as a picture file, through the codec layer's load path.
// The first byte picks the format FreeImage is told to read, or none, so
// that every reader gets bytes; the rest is the file.
#include <FreeImage.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "bridges/image_codec.h"
#include "core/fault.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const int formats = FreeImage_GetFIFCount();
  tamrix::PictureLoad load;
  load.format = data[0] % (formats + 1) - 1;
  // Small pictures keep the run fast; the limit itself is what is checked.
  load.maxPixels = 4'000'000;
  const std::string_view bytes(reinterpret_cast<const char*>(data + 1), size - 1);
  try {
    tamrix::LoadPictureBytes(bytes, "fuzz", load);
  } catch (const tamrix::RuntimeFault&) {
    // A damaged picture is error 481 (or 7 when too large), shown by the
    // command's error box.
  }
  return 0;
}
