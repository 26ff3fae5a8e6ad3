#include "core/call_search_cache.h"

namespace tamrix {

const CallSearchCache::Answer* CallSearchCache::Find(std::string_view text) const {
  if (text.size() > kLongestText) return nullptr;
  const auto hit = answers_.find(text);
  return hit == answers_.end() ? nullptr : &hit->second;
}

void CallSearchCache::Remember(std::string_view text, Answer answer) {
  if (text.size() > kLongestText) return;
  if (answers_.size() >= kMostTexts) answers_.clear();
  answers_.insert_or_assign(std::string(text), std::move(answer));
}

bool CallSearchCache::KnownWithoutCall(std::string_view text) const {
  const Answer* answer = Find(text);
  return answer != nullptr && !answer->found;
}

}  // namespace tamrix
