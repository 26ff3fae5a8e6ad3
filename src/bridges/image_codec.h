// The image codec layer: picture files read and written through FreeImage,
// and the pictures of the window side, which are QImages. Every conversion
// between a FreeImage bitmap and a QImage happens in image_codec.cpp.
#pragma once

#include <QImage>
#include <cstdint>
#include <string>
#include <string_view>

namespace tamrix {

// FreeImage's own format codes (FREE_IMAGE_FORMAT).
enum PictureFormat : int {
  kFormatNone = -1,  // found from the file
  kFormatBmp = 0,
  kFormatJpeg = 2,
  kFormatPng = 13,
  kFormatGif = 25,
};

// Pictures larger than this many pixels are refused before they are
// decoded: 16,384 by 16,384, so that a 12,000 by 12,000 picture still loads.
inline constexpr std::int64_t kMaxPicturePixels = std::int64_t{16384} * 16384;

struct PictureLoad {
  int format = kFormatNone;  // kFormatNone: from the file name, else from the content
  int flags = 0;             // FreeImage's load flags
  std::int64_t maxPixels = kMaxPicturePixels;
};

// The picture in the file. A missing file fails with error 53; a file that
// can't be read as a picture with error 481, whose description carries
// FreeImage's own message behind "[FreeImage] Error: " when it gave one; a
// picture above the size limit with error 7.
QImage LoadPicture(const std::string& path, const PictureLoad& load = {});
// The same for a picture held in memory; `name` finds the format when the
// content doesn't.
QImage LoadPictureBytes(std::string_view bytes, const std::string& name, const PictureLoad& load = {});

// Saves the picture; the format kFormatNone is found from the file's name,
// and a name without the format's extension gets its first one. The depth
// is the one wanted when the format can't write the picture's own (0: 24
// bits). A null picture fails with error 91; a format or depth that can't
// be written, or an unknown format, fail with the layer's messages. False
// when FreeImage's own save fails.
bool SavePicture(const QImage& picture, const std::string& path, int format, int flags, int depth = 0);

// FreeImage's JPEG flag for a quality of 100, 75, 50, 25, 10 or 0; 0 for
// any other quality.
int JpegQualityFlag(int quality);
// Load, save as JPEG with the quality's flag, unload: a standalone file
// converted. False when it fails.
bool ConvertFileToJpeg(const std::string& from, const std::string& to, int quality);

}  // namespace tamrix
