// Pictures read from files for the objects.
#pragma once

#include <QImage>
#include <string>

#include "core/object_controls.h"

namespace tamrix {

// The picture in the file; fails with "File not found" when there is no
// file and with "Invalid picture" when it can't be read as one.
QImage LoadPictureFile(const std::string& path);
// The picture of a source: a built-in picture of the `Pic` or `Img`
// catalogue, a file as LoadPictureFile reads it, or a null image for none.
QImage PictureOf(const PictureSource& source);
// The same, with a null image for any failure.
QImage ReadPictureFile(const std::string& path);

}  // namespace tamrix
