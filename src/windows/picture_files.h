// Pictures read from files for the objects.
#pragma once

#include <QImage>
#include <string>

namespace tamrix {

// The picture in the file; fails with "File not found" when there is no
// file and with "Invalid picture" when it can't be read as one.
QImage LoadPictureFile(const std::string& path);

}  // namespace tamrix
