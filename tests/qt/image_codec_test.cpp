// Picture files through FreeImage: depths in and out, the JPEG quality
// table, and the failures of damaged, missing, huge and unwritable files.
#include "bridges/image_codec.h"

#include <FreeImage.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "core/fault.h"

namespace tamrix {
namespace {

namespace fs = std::filesystem;

class ImageCodecTest : public ::testing::Test {
 protected:
  ImageCodecTest() : folder_(fs::temp_directory_path() / ("tamrix_codec_" + std::to_string(::getpid()))) {
    fs::create_directories(folder_);
  }
  ~ImageCodecTest() override { fs::remove_all(folder_); }

  std::string File(const std::string& name) const { return (folder_ / name).string(); }

  // A picture of 4 by 3: each column a colour, the top row red.
  static QImage Stripes() {
    QImage image(4, 3, QImage::Format_RGB32);
    const QRgb columns[] = {qRgb(0, 0, 0), qRgb(255, 255, 255), qRgb(0, 0, 255), qRgb(0, 255, 0)};
    for (int y = 0; y < 3; ++y) {
      for (int x = 0; x < 4; ++x) image.setPixel(x, y, y == 0 ? qRgb(255, 0, 0) : columns[x]);
    }
    return image;
  }

  // A file written by FreeImage itself at `bpp`, with a palette where it
  // has one: index i is grey i * 17 (or black and white for 1 bit).
  std::string WritePaletteBitmap(int bpp) {
    FIBITMAP* bitmap = FreeImage_Allocate(9, 2, bpp);
    RGBQUAD* palette = FreeImage_GetPalette(bitmap);
    const unsigned colours = FreeImage_GetColorsUsed(bitmap);
    for (unsigned i = 0; i < colours; ++i) {
      const auto grey = static_cast<BYTE>(colours == 2 ? i * 255 : i * 17 % 256);
      palette[i] = RGBQUAD{grey, grey, grey, 0};
    }
    // Bottom row (FreeImage's first) index 1 at x = 0, the rest 0.
    BYTE* bottom = FreeImage_GetScanLine(bitmap, 0);
    bottom[0] = static_cast<BYTE>(bpp == 8 ? 1 : bpp == 4 ? 0x10 : 0x80);
    const std::string path = File("palette" + std::to_string(bpp) + ".bmp");
    EXPECT_TRUE(FreeImage_Save(FIF_BMP, bitmap, path.c_str(), 0));
    FreeImage_Unload(bitmap);
    return path;
  }

  // Pictures of 24 bits keep FreeImage's byte order; compared as RGB32.
  static QImage Opaque(const QImage& picture) { return picture.convertToFormat(QImage::Format_RGB32); }

  template <typename Action>
  static RuntimeFault FaultOf(Action action) {
    try {
      action();
    } catch (const RuntimeFault& fault) {
      return fault;
    }
    ADD_FAILURE() << "no fault";
    return RuntimeFault(0, "");
  }

 private:
  fs::path folder_;
};

TEST_F(ImageCodecTest, PaletteBitmapsCarryTheirPalette) {
  for (const int bpp : {1, 4, 8}) {
    const QImage picture = LoadPicture(WritePaletteBitmap(bpp));
    ASSERT_EQ(picture.size(), QSize(9, 2)) << bpp;
    const int grey = bpp == 1 ? 255 : 17;
    EXPECT_EQ(picture.pixel(0, 1), qRgb(grey, grey, grey)) << bpp;  // the bottom row
    EXPECT_EQ(picture.pixel(1, 1), qRgb(0, 0, 0)) << bpp;
    EXPECT_EQ(picture.pixel(0, 0), qRgb(0, 0, 0)) << bpp;
  }
}

// 24 bits round trip exactly through BMP and PNG; a picture with alpha
// keeps it in 32 bits.
TEST_F(ImageCodecTest, TrueColourRoundTrips) {
  for (const char* name : {"stripes.bmp", "stripes.png", "stripes.tif"}) {
    ASSERT_TRUE(SavePicture(Stripes(), File(name), kFormatNone, 0)) << name;
    EXPECT_EQ(Opaque(LoadPicture(File(name))), Stripes()) << name;
  }
  QImage translucent(2, 1, QImage::Format_ARGB32);
  translucent.setPixel(0, 0, qRgba(10, 20, 30, 255));
  translucent.setPixel(1, 0, qRgba(0, 0, 0, 0));
  ASSERT_TRUE(SavePicture(translucent, File("alpha.png"), kFormatPng, 0));
  const QImage back = LoadPicture(File("alpha.png"));
  EXPECT_TRUE(back.hasAlphaChannel());
  EXPECT_EQ(back.pixel(0, 0), qRgba(10, 20, 30, 255));
  EXPECT_EQ(qAlpha(back.pixel(1, 0)), 0);
}

// The format's first extension is added to a name without one of its own;
// the content, not the name, tells the reader what it reads.
TEST_F(ImageCodecTest, SavingAddsTheFormatsExtension) {
  ASSERT_TRUE(SavePicture(Stripes(), File("plain"), kFormatPng, 0));
  EXPECT_TRUE(fs::exists(File("plain.png")));
  ASSERT_TRUE(SavePicture(Stripes(), File("named.jpg"), kFormatBmp, 0));
  EXPECT_TRUE(fs::exists(File("named.jpg.bmp")));
  fs::rename(File("named.jpg.bmp"), File("misnamed.jpg"));
  EXPECT_EQ(Opaque(LoadPicture(File("misnamed.jpg"))), Stripes());
}

TEST_F(ImageCodecTest, JpegQualityTable) {
  const std::pair<int, int> table[] = {{100, 128}, {75, 256}, {50, 512}, {25, 1024},
                                       {10, 2048}, {0, 8192},  {80, 0},   {-1, 0}};
  for (const auto& [quality, flag] : table) EXPECT_EQ(JpegQualityFlag(quality), flag) << quality;
}

// A 24-bit picture goes to an 8-bit GIF and a 1-bit WBMP by the wanted
// depth, and comes back with its colours near.
TEST_F(ImageCodecTest, SavingConvertsToAWritableDepth) {
  ASSERT_TRUE(SavePicture(Stripes(), File("stripes.gif"), kFormatGif, 0, 8));
  const QImage gif = LoadPicture(File("stripes.gif"));
  EXPECT_EQ(gif.pixel(0, 0), qRgb(255, 0, 0));
  EXPECT_EQ(gif.pixel(1, 1), qRgb(255, 255, 255));
  ASSERT_TRUE(SavePicture(Stripes(), File("stripes.wbmp"), FIF_WBMP, 0, 1));
  EXPECT_EQ(LoadPicture(File("stripes.wbmp"), {FIF_WBMP}).pixel(1, 1), qRgb(255, 255, 255));
}

TEST_F(ImageCodecTest, SaveMessages) {
  EXPECT_EQ(FaultOf([&] { SavePicture(Stripes(), File("noformat.xyz"), kFormatNone, 0); }).Description(),
            "Unknown image format. Neither an explicit image format was specified nor any known image "
            "format was parsed from the filename given.");
  EXPECT_EQ(FaultOf([&] { SavePicture(Stripes(), File("a.wbmp"), FIF_WBMP, 0, 24); }).Description(),
            "FreeImage Library plugin 'WBMP' is unable to write images with a color depth of 24 bpp.");
  EXPECT_EQ(FaultOf([&] { SavePicture(Stripes(), File("a.cut"), FIF_CUT, 0); }).Description(),
            "FreeImage Library plugin 'CUT' is unable to write images of the image format requested.");
  EXPECT_EQ(FaultOf([&] { SavePicture(QImage(), File("a.bmp"), kFormatBmp, 0); }).Number(), kObjectNotSet);
}

TEST_F(ImageCodecTest, BadFilesFailWithTheirErrors) {
  EXPECT_EQ(FaultOf([&] { LoadPicture(File("missing.bmp")); }).Number(), kFileNotFound);

  ASSERT_TRUE(SavePicture(Stripes(), File("whole.png"), kFormatPng, 0));
  std::ifstream whole(File("whole.png"), std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(whole)), std::istreambuf_iterator<char>());
  std::ofstream(File("cut.png"), std::ios::binary) << bytes.substr(0, bytes.size() / 2);
  const RuntimeFault cut = FaultOf([&] { LoadPicture(File("cut.png")); });
  EXPECT_EQ(cut.Number(), 481);
  EXPECT_EQ(cut.Description().rfind("[FreeImage] Error: ", 0), 0u) << cut.Description();

  std::ofstream(File("text.bmp")) << "not a picture at all";
  EXPECT_EQ(FaultOf([&] { LoadPicture(File("text.bmp")); }).Number(), 481);
  std::ofstream(File("empty.png")).flush();
  EXPECT_EQ(FaultOf([&] { LoadPicture(File("empty.png")); }).Number(), 481);
}

// The header alone decides: a picture above the limit is refused before
// its pixels are read.
TEST_F(ImageCodecTest, HugePicturesAreRefusedByTheirHeader) {
  ASSERT_TRUE(SavePicture(Stripes(), File("big.bmp"), kFormatBmp, 0));
  PictureLoad small;
  small.maxPixels = 11;
  EXPECT_EQ(FaultOf([&] { LoadPicture(File("big.bmp"), small); }).Number(), kOutOfMemory);
  small.maxPixels = 12;
  EXPECT_EQ(LoadPicture(File("big.bmp"), small).size(), QSize(4, 3));
}

// A GIF's image descriptors are read before FreeImage takes the memory
// their sides name: a few damaged bytes must not ask for gigabytes.
TEST_F(ImageCodecTest, GifImagesAreMeasuredBeforeTheyAreRead) {
  ASSERT_TRUE(SavePicture(Stripes(), File("small.gif"), FIF_GIF, 0, 8));
  PictureLoad small;
  small.maxPixels = 11;
  EXPECT_EQ(FaultOf([&] { LoadPicture(File("small.gif"), small); }).Number(), kOutOfMemory);
  small.maxPixels = 12;
  EXPECT_EQ(LoadPicture(File("small.gif"), small).size(), QSize(4, 3));

  // One pixel of screen, one image of 65,535 by 65,535 and no data.
  const std::string huge("GIF89a\x01\x00\x01\x00\x00\x00\x00"
                         "!\xfe\x02hi\x00"
                         ",\x00\x00\x00\x00\xff\xff\xff\xff\x00\x02\x00;",
                         32);
  const RuntimeFault refused = FaultOf([&] { LoadPictureBytes(huge, "huge.gif"); });
  EXPECT_EQ(refused.Number(), kOutOfMemory);
  EXPECT_NE(refused.Description().find("4294836225 pixels"), std::string::npos) << refused.Description();
}

// FreeImage reads a WBMP's extension headers as sides of any length: a
// file that announces them is refused before it gets there.
TEST_F(ImageCodecTest, WbmpExtensionHeadersAreRefused) {
  const std::string extended = std::string("\x00\x9c\x02\x50", 4) + std::string(40, '\xff') + "=" +
                               std::string(100, '\xff') + "4\n";
  EXPECT_EQ(FaultOf([&] { LoadPictureBytes(extended, "x.wbmp", {FIF_WBMP}); }).Number(), 481);
}

}  // namespace
}  // namespace tamrix
