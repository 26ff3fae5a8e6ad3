#include "windows/picture_files.h"

#include <QImageReader>
#include <QFile>

#include "core/fault.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr long kInvalidPicture = 481;

}  // namespace

QImage LoadPictureFile(const std::string& path) {
  if (!FileExists(path)) Throw(kFileNotFound);
  QImageReader reader(QFile::decodeName(OsPath(path).c_str()));
  const QImage image = reader.read();
  if (image.isNull()) throw RuntimeFault(kInvalidPicture, "Invalid picture");
  return image;
}

}  // namespace tamrix
