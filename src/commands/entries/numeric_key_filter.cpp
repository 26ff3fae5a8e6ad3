#include "commands/entries/numeric_key_filter.h"

#include "core/window_events.h"

namespace tamrix {
namespace {

bool IsDigitKey(int key) { return key >= '0' && key <= '9'; }

}  // namespace

int NumericKeyFilter(std::string_view field, int key, int decimals) {
  if (decimals <= 0) return IsDigitKey(key) || key == kKeyBackspace ? key : 0;
  if (key == kKeyEscape || key == kKeyEnter || key == kKeyBackspace) return key;
  const auto point = field.find('.');
  if (point != std::string_view::npos && static_cast<int>(field.size() - point - 1) >= decimals) return 0;
  if (IsDigitKey(key)) return key;
  if (key == '.' && point == std::string_view::npos) return key;
  return 0;
}

}  // namespace tamrix
