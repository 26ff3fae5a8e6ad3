#include "commands/picture_catalogue.h"

#include <string>

#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {

int CatalogueNumber(std::string_view catalogue, std::string_view name) {
  if (name.empty()) return -1;
  const std::string text = Upper(catalogue);
  const std::string key = Upper(name) + "#";
  const auto at = text.find(key);
  if (at == std::string::npos) return -1;
  const auto start = at + key.size();
  return static_cast<int>(Val(std::string_view(text).substr(start, text.find(',', start) - start)));
}

}  // namespace tamrix
