// The masks of the Mask object: "#" is a place for one digit, every other
// character of the mask stands in the text as it is. An empty place shows
// as "_", so that the field always has the mask's length.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tamrix {

inline constexpr char kMaskDigit = '#';
inline constexpr char kMaskPrompt = '_';

// The text of an empty field: the mask with "_" for each "#".
std::string MaskPattern(std::string_view mask);
// Whether a text can stand in the field: as long as the mask, a digit or
// "_" at each "#", the mask's own characters elsewhere. Any text fits an
// empty mask.
bool FitsMask(std::string_view mask, std::string_view text);

// The field after a key, with its caret.
struct MaskEdit {
  std::string text;
  std::size_t caret = 0;
  bool operator==(const MaskEdit&) const = default;
};

// A typed character at the caret: a digit fills the next "#" place at or
// after the caret (passing the mask's own characters); the mask character
// at the caret moves past it. Anything else is refused (nothing). Without a
// mask the character is inserted.
std::optional<MaskEdit> TypeIntoMask(std::string_view mask, std::string_view text, std::size_t caret, char typed);
// Backspace: the "#" place before the caret is emptied and the caret goes
// there; the mask's own characters are passed. Nothing at the start.
std::optional<MaskEdit> EraseBeforeCaret(std::string_view mask, std::string_view text, std::size_t caret);
// Delete: the "#" place at or after the caret is emptied; the caret stays.
std::optional<MaskEdit> EraseAtCaret(std::string_view mask, std::string_view text, std::size_t caret);

}  // namespace tamrix
