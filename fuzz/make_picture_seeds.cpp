// Writes the seeds of the picture_file target: a small picture in every
// format and depth that FreeImage can write, each behind the format byte 0
// (format found from the content).
//   c++ -O1 -o /tmp/make_picture_seeds fuzz/make_picture_seeds.cpp -lfreeimage
//   /tmp/make_picture_seeds fuzz/seeds/picture_file
#include <FreeImage.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  const std::string folder = argv[1];
  const int depths[] = {1, 4, 8, 24, 32};
  for (const int bpp : depths) {
    FIBITMAP* bitmap = FreeImage_Allocate(9, 7, bpp);
    RGBQUAD* palette = FreeImage_GetPalette(bitmap);
    for (unsigned i = 0; palette != nullptr && i < FreeImage_GetColorsUsed(bitmap); ++i) {
      palette[i] = RGBQUAD{static_cast<BYTE>(i * 37), static_cast<BYTE>(i * 91), static_cast<BYTE>(255 - i), 0};
    }
    for (unsigned y = 0; y < 7; ++y) {
      BYTE* row = FreeImage_GetScanLine(bitmap, static_cast<int>(y));
      for (unsigned x = 0; x < FreeImage_GetPitch(bitmap); ++x) row[x] = static_cast<BYTE>(x * 29 + y * 53);
    }
    for (int f = 0; f < FreeImage_GetFIFCount(); ++f) {
      const auto format = static_cast<FREE_IMAGE_FORMAT>(f);
      if (!FreeImage_FIFSupportsWriting(format) || !FreeImage_FIFSupportsExportBPP(format, bpp)) continue;
      const std::string name = folder + "/" + FreeImage_GetFormatFromFIF(format) + "_" + std::to_string(bpp);
      FIMEMORY* memory = FreeImage_OpenMemory();
      if (FreeImage_SaveToMemory(format, bitmap, memory, 0)) {
        BYTE* data = nullptr;
        DWORD size = 0;
        FreeImage_AcquireMemory(memory, &data, &size);
        std::ofstream out(name, std::ios::binary);
        out.put('\0');
        out.write(reinterpret_cast<const char*>(data), size);
      }
      FreeImage_CloseMemory(memory);
    }
    FreeImage_Unload(bitmap);
  }
  return 0;
}
