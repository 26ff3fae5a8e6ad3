// Remembers texts in which the call finders found no call. The answer for a
// text depends only on the text and on the names searched, so it holds
// until the names change (never for the keyword list; at the declaration
// scan for function names). Texts with a call are not remembered: finding a
// call may show a box, which a cache must not skip.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tamrix {

class CallSearchCache {
 public:
  bool KnownWithoutCall(std::string_view text) const;
  void RememberWithoutCall(std::string_view text);
  void Clear() { texts_.clear(); }

 private:
  // Long texts are rare in expressions and not worth keeping.
  static constexpr std::size_t kLongestText = 512;
  static constexpr std::size_t kMostTexts = 8192;
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  std::unordered_set<std::string, TextHash, std::equal_to<>> texts_;
};

}  // namespace tamrix
