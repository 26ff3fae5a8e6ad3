// The key strings of the text codec. An encoded text carries only its key
// number, so every program that reads or writes such texts holds these same
// strings: the run-time, the packer and any later tool.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tamrix {

// Keys 0 to 9; slot 10 exists and stays empty, so selecting it fails at the
// first key access.
inline constexpr std::size_t kKeySlots = 11;
inline constexpr int kKeyCount = 10;

extern const std::array<std::string_view, kKeySlots> kKeyTable;

}  // namespace tamrix
