#include "commands/entries/mask_pattern.h"

#include <algorithm>

namespace tamrix {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

std::string MaskPattern(std::string_view mask) {
  std::string pattern(mask);
  for (char& c : pattern) {
    if (c == kMaskDigit) c = kMaskPrompt;
  }
  return pattern;
}

bool FitsMask(std::string_view mask, std::string_view text) {
  if (mask.empty()) return true;
  if (text.size() != mask.size()) return false;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    const bool fits = mask[i] == kMaskDigit ? IsDigit(text[i]) || text[i] == kMaskPrompt : text[i] == mask[i];
    if (!fits) return false;
  }
  return true;
}

std::optional<MaskEdit> TypeIntoMask(std::string_view mask, std::string_view text, std::size_t caret, char typed) {
  if (mask.empty()) {
    std::string changed(text);
    caret = std::min(caret, changed.size());
    changed.insert(caret, 1, typed);
    return MaskEdit{changed, caret + 1};
  }
  if (caret >= mask.size() || text.size() != mask.size()) return std::nullopt;
  if (mask[caret] != kMaskDigit && typed == mask[caret]) return MaskEdit{std::string(text), caret + 1};
  if (!IsDigit(typed)) return std::nullopt;
  std::size_t place = caret;
  while (place < mask.size() && mask[place] != kMaskDigit) ++place;
  if (place == mask.size()) return std::nullopt;
  std::string changed(text);
  changed[place] = typed;
  return MaskEdit{changed, place + 1};
}

std::optional<MaskEdit> EraseBeforeCaret(std::string_view mask, std::string_view text, std::size_t caret) {
  caret = std::min(caret, text.size());
  if (mask.empty()) {
    if (caret == 0) return std::nullopt;
    std::string changed(text);
    changed.erase(caret - 1, 1);
    return MaskEdit{changed, caret - 1};
  }
  if (text.size() != mask.size()) return std::nullopt;
  std::size_t place = caret;
  while (place > 0 && mask[place - 1] != kMaskDigit) --place;
  if (place == 0) return std::nullopt;
  std::string changed(text);
  changed[place - 1] = kMaskPrompt;
  return MaskEdit{changed, place - 1};
}

std::optional<MaskEdit> EraseAtCaret(std::string_view mask, std::string_view text, std::size_t caret) {
  if (mask.empty()) {
    if (caret >= text.size()) return std::nullopt;
    std::string changed(text);
    changed.erase(caret, 1);
    return MaskEdit{changed, caret};
  }
  if (text.size() != mask.size()) return std::nullopt;
  std::size_t place = caret;
  while (place < mask.size() && mask[place] != kMaskDigit) ++place;
  if (place >= mask.size()) return std::nullopt;
  std::string changed(text);
  changed[place] = kMaskPrompt;
  return MaskEdit{changed, caret};
}

}  // namespace tamrix
