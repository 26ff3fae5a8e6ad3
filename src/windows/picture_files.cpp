#include "windows/picture_files.h"

#include "bridges/image_codec.h"
#include "core/fault.h"
#include "windows/built_in_images.h"
#include "windows/built_in_pictures.h"

namespace tamrix {

QImage LoadPictureFile(const std::string& path) { return LoadPicture(path); }

QImage PictureOf(const PictureSource& source) {
  if (source.builtIn >= 0) {
    return source.catalogue == Catalogue::Img ? BuiltInImage(source.builtIn) : BuiltInPicture(source.builtIn);
  }
  return source.path.empty() ? QImage() : LoadPictureFile(source.path);
}

QImage ReadPictureFile(const std::string& path) {
  try {
    return LoadPicture(path);
  } catch (const RuntimeFault&) {
    return QImage();
  }
}

}  // namespace tamrix
