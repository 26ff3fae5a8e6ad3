// Remembers what the call finders found in a text: no call, or the first
// call with its argument text and the place of its name in the list
// searched. The answer depends only on the text and on the names searched,
// so it holds until the names change (never for the keyword list; at the
// declaration scan for function names). Texts whose brackets don't match
// are not remembered: their search shows a box, which a cache must not skip.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tamrix {

// A call found in an expression: its name as found and its argument list,
// still carrying bracket tags.
struct CallRecord {
  std::string name;
  std::string arguments;
};

class CallSearchCache {
 public:
  struct Answer {
    bool found = false;
    CallRecord call;
    std::size_t nameIndex = 0;
  };

  const Answer* Find(std::string_view text) const;
  void Remember(std::string_view text, Answer answer);
  bool KnownWithoutCall(std::string_view text) const;
  void RememberWithoutCall(std::string_view text) { Remember(text, Answer()); }
  void Clear() { answers_.clear(); }

 private:
  // Long texts are rare in expressions and not worth keeping.
  static constexpr std::size_t kLongestText = 512;
  static constexpr std::size_t kMostTexts = 8192;
  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  std::unordered_map<std::string, Answer, TextHash, std::equal_to<>> answers_;
};

}  // namespace tamrix
