// The language's vocabulary: the keyword list, in the order in which calls
// are searched inside expressions, and the reserved block words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

// The 142 keywords, spelt exactly; the search inside expressions is
// case-sensitive and follows this order.
const std::vector<std::string>& KeywordList();
// The places in the list, in list order, of the keywords that can stand in
// `text`: those whose first two characters occur in it. Any other keyword
// is certainly absent, so a search of these alone finds what a search of
// the whole list finds.
std::vector<std::size_t> KeywordCandidates(std::string_view text);
// The upper-cased keywords, for word tests.
bool IsKeyword(std::string_view upperWord);
// The eleven keywords whose call in an expression makes it numeric.
bool IsNumericKeyword(std::string_view upperName);
// True if a statement's first word may go to the command dispatcher.
bool IsCommandWord(std::string_view word);

}  // namespace tamrix
