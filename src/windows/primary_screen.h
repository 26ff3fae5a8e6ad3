// The size of the screen that windows are placed on.
#pragma once

#include "windows/window_metrics.h"

namespace tamrix {

// The primary screen in pixels; zero when there is none.
PixelSize PrimaryScreenSize();

}  // namespace tamrix
