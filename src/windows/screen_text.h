// Language texts (Windows-1252 bytes) as the window system shows them.
#pragma once

#include <QString>
#include <string_view>

namespace tamrix {

// CR LF, and a lone CR or LF, each break the line, as they do in the boxes
// and labels of the classic desktop.
QString ScreenText(std::string_view cp1252);

}  // namespace tamrix
