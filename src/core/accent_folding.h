// Accent folding for text comparisons that ignore the accents of Portuguese
// letters (record key searches, and any command that compares that way).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamrix {

// Only this many leading characters are folded; the rest is dropped.
inline constexpr std::size_t kFoldedLength = 131;

// The first 131 characters with the accented letters of the folding table
// replaced by their plain letters; every other character stays.
std::string FoldAccents(std::string_view text);

}  // namespace tamrix
