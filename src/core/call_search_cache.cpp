#include "core/call_search_cache.h"

namespace tamrix {

bool CallSearchCache::KnownWithoutCall(std::string_view text) const {
  return text.size() <= kLongestText && texts_.find(text) != texts_.end();
}

void CallSearchCache::RememberWithoutCall(std::string_view text) {
  if (text.size() > kLongestText) return;
  if (texts_.size() >= kMostTexts) texts_.clear();
  texts_.emplace(text);
}

}  // namespace tamrix
