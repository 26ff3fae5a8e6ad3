#include "bridges/image_codec.h"

#include <FreeImage.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <memory>
#include <mutex>
#include <sstream>

#include "core/fault.h"
#include "core/text.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr long kInvalidPicture = 481;
constexpr std::string_view kLibraryLead = "[FreeImage] Error: ";

// FreeImage reports through a callback; the last message of the current
// operation is kept for its fault.
thread_local std::string lastLibraryMessage;

void KeepLibraryMessage(FREE_IMAGE_FORMAT, const char* message) {
  lastLibraryMessage = message != nullptr ? message : "";
}

void StartLibrary() {
  static std::once_flag once;
  std::call_once(once, [] { FreeImage_SetOutputMessage(KeepLibraryMessage); });
  lastLibraryMessage.clear();
}

struct BitmapDeleter {
  void operator()(FIBITMAP* bitmap) const { FreeImage_Unload(bitmap); }
};
using Bitmap = std::unique_ptr<FIBITMAP, BitmapDeleter>;

struct MemoryDeleter {
  void operator()(FIMEMORY* memory) const { FreeImage_CloseMemory(memory); }
};

// Formats that FreeImage reads but that are refused: its PICT reader loops
// forever on some damaged files, its DDS reader asks for any amount of
// memory a damaged header names, and its CUT reader writes past its
// buffer. None is a picture format of desktop programs.
constexpr FREE_IMAGE_FORMAT kRefusedFormats[] = {FIF_PICT, FIF_DDS, FIF_CUT};

bool Readable(FREE_IMAGE_FORMAT format) {
  if (format == FIF_UNKNOWN || !FreeImage_FIFSupportsReading(format)) return false;
  return std::find(std::begin(kRefusedFormats), std::end(kRefusedFormats), format) == std::end(kRefusedFormats);
}

[[noreturn]] void InvalidPicture() {
  if (lastLibraryMessage.empty()) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  throw RuntimeFault(kInvalidPicture, std::string(kLibraryLead) + lastLibraryMessage);
}

[[noreturn]] void TooLarge(std::int64_t pixels) {
  throw RuntimeFault(kOutOfMemory, "Out of memory: the picture has " + std::to_string(pixels) + " pixels");
}

std::uint32_t BigEndian32(std::string_view bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i) value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

// FreeImage's PBM, PGM and PPM readers overflow on sides of many digits
// and crash: the header, "P1" to "P6" then the width and the height as
// decimal numbers between blanks and "#" comments, is read here first.
void CheckPnmHeader(std::string_view bytes, std::int64_t maxPixels) {
  constexpr std::size_t kMaxDigits = 6;  // up to 999,999
  std::size_t at = 2;
  const auto next = [&]() -> std::int64_t {
    while (at < bytes.size() && (std::isspace(static_cast<unsigned char>(bytes[at])) || bytes[at] == '#')) {
      if (bytes[at] == '#') {
        while (at < bytes.size() && bytes[at] != '\n' && bytes[at] != '\r') ++at;
      } else {
        ++at;
      }
    }
    std::int64_t value = 0;
    std::size_t digits = 0;
    for (; at < bytes.size() && std::isdigit(static_cast<unsigned char>(bytes[at])); ++at, ++digits) {
      if (digits == kMaxDigits) InvalidPicture();
      value = value * 10 + (bytes[at] - '0');
    }
    if (digits == 0) InvalidPicture();
    return value;
  };
  if (bytes.size() < 2 || bytes[0] != 'P' || bytes[1] < '1' || bytes[1] > '6') InvalidPicture();
  const std::int64_t width = next();
  const std::int64_t height = next();
  if (width == 0 || height == 0) InvalidPicture();
  if (width * height > maxPixels) TooLarge(width * height);
}

// A WBMP header is two fields, then the width and the height as integers
// of 7 bits a byte, with the top bit set on all bytes but the last.
// FreeImage's reader loops forever when the file ends inside them or
// inside the rows, and allocates whatever they name: the header is read
// here first, and the rows of whole bytes must all be there.
void CheckWbmpHeader(std::string_view bytes, std::int64_t maxPixels) {
  constexpr int kMaxIntegerBytes = 4;
  std::size_t at = 0;
  const auto next = [&]() -> std::uint32_t {
    std::uint32_t value = 0;
    for (int i = 0; i < kMaxIntegerBytes; ++i) {
      if (at >= bytes.size()) InvalidPicture();
      const auto byte = static_cast<unsigned char>(bytes[at++]);
      value = (value << 7) | (byte & 0x7Fu);
      if ((byte & 0x80u) == 0) return value;
    }
    InvalidPicture();
  };
  if (next() != 0) InvalidPicture();  // type 0, the only one there is
  if (at >= bytes.size()) InvalidPicture();
  // The fixed header field; its top bit announces extension headers, which
  // FreeImage reads as sides of any length: such files are refused.
  if ((static_cast<unsigned char>(bytes[at++]) & 0x80u) != 0) InvalidPicture();
  const std::uint32_t width = next();
  const std::uint32_t height = next();
  if (width == 0 || height == 0) InvalidPicture();
  const auto pixels = std::int64_t{width} * height;
  if (pixels > maxPixels) TooLarge(pixels);
  const auto rowBytes = (std::int64_t{width} + 7) / 8;
  if (static_cast<std::int64_t>(bytes.size() - at) < rowBytes * height) InvalidPicture();
}

// FreeImage's PSD reader allocates for the sizes in the header even when
// it is asked for the header alone: a few damaged bytes could ask for
// gigabytes. The header is checked here first, all big-endian: the version
// at 4 (1, or 2 for large documents), the channels at 12 (at most 56), the
// height at 14 and the width at 18 (1 to 300,000 each).
void CheckPsdHeader(std::string_view bytes, std::int64_t maxPixels) {
  constexpr std::uint32_t kMaxPsdChannels = 56;
  constexpr std::uint32_t kMaxPsdSide = 300000;
  if (bytes.size() < 26) return;
  const std::uint32_t version = BigEndian32(bytes, 2) & 0xFFFFu;
  const std::uint32_t channels = BigEndian32(bytes, 10) & 0xFFFFu;
  const std::uint32_t height = BigEndian32(bytes, 14);
  const std::uint32_t width = BigEndian32(bytes, 18);
  if ((version != 1 && version != 2) || channels > kMaxPsdChannels) InvalidPicture();
  if (height == 0 || width == 0 || height > kMaxPsdSide || width > kMaxPsdSide) InvalidPicture();
  const auto pixels = std::int64_t{height} * width;
  if (pixels > maxPixels) TooLarge(pixels);
}

// FreeImage's GIF reader takes the memory of each image's sides before it
// reads a pixel: a damaged descriptor of a few bytes can ask for gigabytes
// and keep the reader busy for seconds. The blocks are walked here first
// and every image must fit the limit; a walk that runs out of bytes stops
// and leaves the rest to the reader.
void CheckGifImages(std::string_view bytes, std::int64_t maxPixels) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  const auto littleEndian16 = [&](std::size_t at) { return std::int64_t{byteAt(at)} | std::int64_t{byteAt(at + 1)} << 8; };
  const auto colourTable = [&](std::size_t flagsAt) {
    return (byteAt(flagsAt) & 0x80u) != 0 ? std::size_t{3} << ((byteAt(flagsAt) & 0x07u) + 1) : 0;
  };
  // Data sub-blocks: a size byte and that many bytes, up to a size of 0.
  const auto skipSubBlocks = [&](std::size_t at) {
    while (at < bytes.size() && byteAt(at) != 0) at += std::size_t{byteAt(at)} + 1;
    return at + 1;
  };
  constexpr std::size_t kScreenEnd = 13;
  constexpr std::size_t kDescriptorSize = 10;
  if (bytes.size() < kScreenEnd) return;
  std::size_t at = kScreenEnd + colourTable(10);
  while (at < bytes.size()) {
    const unsigned char block = byteAt(at);
    if (block == 0x21) {  // an extension: its label, then sub-blocks
      at = skipSubBlocks(at + 2);
    } else if (block == 0x2C) {  // an image: its descriptor, colours, code size, data
      if (at + kDescriptorSize > bytes.size()) return;
      const std::int64_t pixels = littleEndian16(at + 5) * littleEndian16(at + 7);
      if (pixels > maxPixels) TooLarge(pixels);
      at = skipSubBlocks(at + kDescriptorSize + colourTable(at + 9) + 1);
    } else {
      return;  // the trailer, or bytes the reader will refuse
    }
  }
}

[[noreturn]] void RaiseCodecError(const std::string& text) { throw RuntimeFault(kRaisedByTamrix, text); }

std::string PluginName(FREE_IMAGE_FORMAT format) {
  const char* name = FreeImage_GetFormatFromFIF(format);
  return name != nullptr ? name : "";
}

// The opaque or transparent QImage format that fits, allocated; error 7
// when the memory isn't there.
QImage NewPicture(unsigned width, unsigned height, bool alpha) {
  QImage picture(static_cast<int>(width), static_cast<int>(height),
                 alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  if (picture.isNull()) Throw(kOutOfMemory);
  return picture;
}

// A bitmap of 1, 4 or 8 bits: each index through the palette, whose missing
// entries are black. A transparency table gives the alpha.
QImage FromPaletteBitmap(FIBITMAP* bitmap, unsigned bpp) {
  const unsigned width = FreeImage_GetWidth(bitmap);
  const unsigned height = FreeImage_GetHeight(bitmap);
  const unsigned pitch = FreeImage_GetPitch(bitmap);
  const BYTE* bits = FreeImage_GetBits(bitmap);
  const RGBQUAD* palette = FreeImage_GetPalette(bitmap);
  const unsigned used = palette != nullptr ? std::min(FreeImage_GetColorsUsed(bitmap), 256u) : 0u;
  const bool alpha = FreeImage_IsTransparent(bitmap) && FreeImage_GetTransparencyCount(bitmap) > 0;
  const BYTE* opacity = alpha ? FreeImage_GetTransparencyTable(bitmap) : nullptr;
  const unsigned opaqueCount = alpha ? FreeImage_GetTransparencyCount(bitmap) : 0;

  QRgb table[256];
  std::fill(std::begin(table), std::end(table), qRgb(0, 0, 0));
  for (unsigned i = 0; i < used; ++i) {
    const int a = i < opaqueCount ? opacity[i] : 255;
    table[i] = qRgba(palette[i].rgbRed, palette[i].rgbGreen, palette[i].rgbBlue, a);
  }
  QImage picture = NewPicture(width, height, alpha);
  for (unsigned y = 0; y < height; ++y) {
    // FreeImage keeps the bottom row first.
    const BYTE* row = bits + static_cast<std::size_t>(height - 1 - y) * pitch;
    auto* out = reinterpret_cast<QRgb*>(picture.scanLine(static_cast<int>(y)));
    for (unsigned x = 0; x < width; ++x) {
      unsigned index = 0;
      if (bpp == 8) {
        index = row[x];
      } else if (bpp == 4) {
        index = (x & 1u) != 0 ? row[x >> 1] & 0x0Fu : row[x >> 1] >> 4;
      } else {
        index = (row[x >> 3] >> (7 - (x & 7u))) & 1u;
      }
      out[x] = table[index];
    }
  }
  return picture;
}

// Turned top row first, the bitmap's own memory becomes the picture's, and
// is unloaded with it: FreeImage keeps blue, green, red in memory, as Qt's
// BGR888 does, so a photo is never copied. Bitmaps of 32 bits are copied,
// opaque ones with their unused alpha byte set.
QImage FromTrueColourBitmap(Bitmap bitmap, unsigned bpp) {
  FIBITMAP* dib = bitmap.get();
  const bool alpha = bpp == 32 && FreeImage_IsTransparent(dib);
  if (!FreeImage_FlipVertical(dib)) InvalidPicture();
  const int width = static_cast<int>(FreeImage_GetWidth(dib));
  const int height = static_cast<int>(FreeImage_GetHeight(dib));
  const auto pitch = static_cast<qsizetype>(FreeImage_GetPitch(dib));
  if (bpp == 24) {
    return QImage(
        FreeImage_GetBits(dib), width, height, pitch, QImage::Format_BGR888,
        [](void* owned) { FreeImage_Unload(static_cast<FIBITMAP*>(owned)); }, bitmap.release());
  }
  QImage picture = NewPicture(static_cast<unsigned>(width), static_cast<unsigned>(height), alpha);
  for (int y = 0; y < height; ++y) {
    const auto* in = reinterpret_cast<const QRgb*>(FreeImage_GetBits(dib) + y * pitch);
    auto* out = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < width; ++x) out[x] = alpha ? in[x] : in[x] | 0xFF000000u;
  }
  return picture;
}

// The only place where a FreeImage bitmap becomes a picture of the window
// side. Types other than plain bitmaps (16-bit channels, floats) and depths
// other than 1, 4, 8, 24 and 32 are brought to a standard bitmap first.
QImage ToPicture(Bitmap bitmap) {
  if (FreeImage_GetImageType(bitmap.get()) != FIT_BITMAP) {
    bitmap.reset(FreeImage_ConvertToStandardType(bitmap.get(), TRUE));
    if (!bitmap) InvalidPicture();
  }
  unsigned bpp = FreeImage_GetBPP(bitmap.get());
  if (bpp != 1 && bpp != 4 && bpp != 8 && bpp != 24 && bpp != 32) {
    bitmap.reset(FreeImage_ConvertTo32Bits(bitmap.get()));
    if (!bitmap) InvalidPicture();
    bpp = 32;
  }
  if (FreeImage_GetBits(bitmap.get()) == nullptr) InvalidPicture();
  return bpp <= 8 ? FromPaletteBitmap(bitmap.get(), bpp) : FromTrueColourBitmap(std::move(bitmap), bpp);
}

// The other way: 32 bits for a picture with alpha, else 24. Error 481 when
// no bitmap can be made.
Bitmap ToBitmap(const QImage& picture) {
  const bool alpha = picture.hasAlphaChannel();
  const QImage source = picture.convertToFormat(alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  const int width = source.width();
  const int height = source.height();
  Bitmap bitmap(FreeImage_Allocate(width, height, alpha ? 32 : 24));
  if (!bitmap) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  const unsigned pitch = FreeImage_GetPitch(bitmap.get());
  BYTE* bits = FreeImage_GetBits(bitmap.get());
  const unsigned step = alpha ? 4 : 3;
  for (int y = 0; y < height; ++y) {
    BYTE* row = bits + static_cast<std::size_t>(height - 1 - y) * pitch;
    const auto* in = reinterpret_cast<const QRgb*>(source.constScanLine(y));
    for (int x = 0; x < width; ++x) {
      BYTE* pixel = row + static_cast<std::size_t>(x) * step;
      pixel[FI_RGBA_RED] = static_cast<BYTE>(qRed(in[x]));
      pixel[FI_RGBA_GREEN] = static_cast<BYTE>(qGreen(in[x]));
      pixel[FI_RGBA_BLUE] = static_cast<BYTE>(qBlue(in[x]));
      if (alpha) pixel[FI_RGBA_ALPHA] = static_cast<BYTE>(qAlpha(in[x]));
    }
  }
  return bitmap;
}

// The bitmap at a depth that the format writes, by the wanted depth.
Bitmap ConvertToDepth(FIBITMAP* bitmap, int depth) {
  switch (depth) {
    case 32:
      return Bitmap(FreeImage_ConvertTo32Bits(bitmap));
    case 24:
      return Bitmap(FreeImage_ConvertTo24Bits(bitmap));
    case 16:
      return Bitmap(FreeImage_ConvertTo16Bits565(bitmap));
    case 15:
      return Bitmap(FreeImage_ConvertTo16Bits555(bitmap));
    case 8: {
      if (FreeImage_GetColorType(bitmap) == FIC_MINISBLACK) return Bitmap(FreeImage_ConvertToGreyscale(bitmap));
      const Bitmap colours(FreeImage_ConvertTo24Bits(bitmap));
      return Bitmap(colours ? FreeImage_ColorQuantize(colours.get(), FIQ_WUQUANT) : nullptr);
    }
    case 4:
      return Bitmap(FreeImage_ConvertTo4Bits(bitmap));
    case 1:
      if (FreeImage_GetColorType(bitmap) == FIC_MINISBLACK) return Bitmap(FreeImage_Threshold(bitmap, 128));
      return Bitmap(FreeImage_Dither(bitmap, FID_FS));
    default:
      return nullptr;
  }
}

std::string LowerExtension(const std::string& path) {
  const auto dot = path.rfind('.');
  const auto slash = path.rfind('/');
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return std::string();
  std::string extension = path.substr(dot + 1);
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return extension;
}

// "bmp" is in "bmp,dib"; a name outside the list gets the first one.
std::string WithFormatExtension(const std::string& path, FREE_IMAGE_FORMAT format) {
  const char* list = FreeImage_GetFIFExtensionList(format);
  if (list == nullptr || *list == '\0') return path;
  const std::string extensions = list;
  const std::string extension = LowerExtension(path);
  std::stringstream items(extensions);
  for (std::string item; std::getline(items, item, ',');) {
    if (!extension.empty() && item == extension) return path;
  }
  return path + "." + extensions.substr(0, extensions.find(','));
}

std::string ReadWholeFile(const std::string& path) {
  if (!FileExists(path)) Throw(kFileNotFound);
  std::ifstream file(OsPath(path), std::ios::binary);
  if (!file) Throw(kPathFileAccessError);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace

QImage LoadPictureBytes(std::string_view bytes, const std::string& name, const PictureLoad& load) {
  StartLibrary();
  // FreeImage reads but does not write through the memory handle.
  auto* data = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data()));
  const std::unique_ptr<FIMEMORY, MemoryDeleter> memory(FreeImage_OpenMemory(data, static_cast<DWORD>(bytes.size())));
  if (!memory) InvalidPicture();
  auto format = static_cast<FREE_IMAGE_FORMAT>(load.format);
  if (format == FIF_UNKNOWN) {
    format = FreeImage_GetFileTypeFromMemory(memory.get(), 0);
    if (format == FIF_UNKNOWN) format = FreeImage_GetFIFFromFilename(name.c_str());
  }
  if (!Readable(format)) InvalidPicture();
  if (format == FIF_PSD) CheckPsdHeader(bytes, load.maxPixels);
  if (format == FIF_WBMP) CheckWbmpHeader(bytes, load.maxPixels);
  if (format == FIF_GIF) CheckGifImages(bytes, load.maxPixels);
  if (format == FIF_PBM || format == FIF_PBMRAW || format == FIF_PGM || format == FIF_PGMRAW || format == FIF_PPM ||
      format == FIF_PPMRAW) {
    CheckPnmHeader(bytes, load.maxPixels);
  }

  // The header first where the format can read it alone, so that a huge
  // picture is refused before its pixels take the memory.
  Bitmap bitmap(FreeImage_LoadFromMemory(format, memory.get(), load.flags | FIF_LOAD_NOPIXELS));
  if (!bitmap) InvalidPicture();
  const auto pixels = std::int64_t{FreeImage_GetWidth(bitmap.get())} * FreeImage_GetHeight(bitmap.get());
  if (pixels > load.maxPixels) TooLarge(pixels);
  if (!FreeImage_HasPixels(bitmap.get())) {
    FreeImage_SeekMemory(memory.get(), 0, SEEK_SET);
    bitmap.reset(FreeImage_LoadFromMemory(format, memory.get(), load.flags));
    if (!bitmap || !FreeImage_HasPixels(bitmap.get())) InvalidPicture();
  }
  if (FreeImage_GetWidth(bitmap.get()) == 0 || FreeImage_GetHeight(bitmap.get()) == 0) InvalidPicture();
  return ToPicture(std::move(bitmap));
}

QImage LoadPicture(const std::string& path, const PictureLoad& load) {
  return LoadPictureBytes(ReadWholeFile(path), path, load);
}

bool SavePicture(const QImage& picture, const std::string& path, int format, int flags, int depth) {
  if (picture.isNull()) Throw(kObjectNotSet);
  StartLibrary();
  Bitmap bitmap = ToBitmap(picture);
  auto fif = static_cast<FREE_IMAGE_FORMAT>(format);
  if (fif == FIF_UNKNOWN) {
    fif = FreeImage_GetFIFFromFilename(path.c_str());
    if (fif == FIF_UNKNOWN) {
      RaiseCodecError(
          "Unknown image format. Neither an explicit image format "
          "was specified nor any known image format was parsed "
          "from the filename given.");
    }
  }
  const std::string file = WithFormatExtension(path, fif);
  const std::string plugin = "FreeImage Library plugin '" + PluginName(fif) + "' ";
  if (!FreeImage_FIFSupportsWriting(fif) || !FreeImage_FIFSupportsExportType(fif, FIT_BITMAP)) {
    RaiseCodecError(plugin + "is unable to write images of the image format requested.");
  }
  const int bpp = static_cast<int>(FreeImage_GetBPP(bitmap.get()));
  if (!FreeImage_FIFSupportsExportBPP(fif, bpp)) {
    const int wanted = depth > 0 ? depth : 24;
    if (!FreeImage_FIFSupportsExportBPP(fif, wanted)) {
      RaiseCodecError(plugin + "is unable to write images with a color depth " + "of " + std::to_string(wanted) +
                      " bpp.");
    }
    bitmap = ConvertToDepth(bitmap.get(), wanted);
    if (!bitmap) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  }
  return FreeImage_Save(fif, bitmap.get(), OsPath(file).string().c_str(), flags) != FALSE;
}

int JpegQualityFlag(int quality) {
  switch (quality) {
    case 100: return JPEG_QUALITYSUPERB;
    case 75: return JPEG_QUALITYGOOD;
    case 50: return JPEG_QUALITYNORMAL;
    case 25: return JPEG_QUALITYAVERAGE;
    case 10: return JPEG_QUALITYBAD;
    case 0: return 0x2000;  // FreeImage's progressive flag, at its default quality
    default: return 0;
  }
}

bool ConvertFileToJpeg(const std::string& from, const std::string& to, int quality) {
  StartLibrary();
  const std::string source = OsPath(from).string();
  const Bitmap bitmap(FreeImage_Load(FreeImage_GetFileType(source.c_str(), 0), source.c_str(), 0));
  if (!bitmap) return false;
  return FreeImage_Save(FIF_JPEG, bitmap.get(), OsPath(to).string().c_str(), JpegQualityFlag(quality)) != FALSE;
}

}  // namespace tamrix
