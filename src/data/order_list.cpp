#include "data/order_list.h"

#include <algorithm>

#include "core/accent_folding.h"
#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kPlaceDigits = 6;

// The list's 16-bit index.
std::size_t IndexOf(std::int32_t index) { return static_cast<std::size_t>(ToInt16(index)); }

// The search's view of entry `index`: as many characters as the key has.
std::string Probe(const OrderList& list, std::int32_t index, std::size_t keyLength) {
  return SearchForm(StripQuotes(list.At(index).substr(0, keyLength)));
}

}  // namespace

OrderList::Entry OrderList::Make(std::string text) {
  // Sorted as the search compares: folded upper case over the first 131
  // characters, plain upper case behind them.
  const std::string upper = Upper(text);
  std::string key = FoldAccents(upper);
  if (upper.size() > kFoldedLength) key += upper.substr(kFoldedLength);
  return {std::move(key), std::move(text)};
}

void OrderList::Insert(std::string entry) {
  Entry made = Make(std::move(entry));
  const auto at = std::upper_bound(entries_.begin(), entries_.end(), made, Before);
  entries_.insert(at, std::move(made));
}

void OrderList::InsertAll(std::vector<std::string> entries) {
  const auto firstNew = static_cast<std::ptrdiff_t>(entries_.size());
  for (auto& text : entries) entries_.push_back(Make(std::move(text)));
  std::stable_sort(entries_.begin() + firstNew, entries_.end(), Before);
  std::inplace_merge(entries_.begin(), entries_.begin() + firstNew, entries_.end(), Before);
}

std::string OrderList::At(std::int32_t index) const {
  if (index < 0) return {};
  const std::size_t i = IndexOf(index);
  return i < entries_.size() ? entries_[i].text : std::string();
}

void OrderList::RemoveAt(std::int32_t index) {
  if (index < 0) return;
  const std::size_t i = IndexOf(index);
  if (i < entries_.size()) entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(i));
}

std::string PlaceText(std::int32_t place) { return ZeroPadded(place, static_cast<int>(kPlaceDigits)); }

std::int32_t PlaceOf(std::string_view entry) {
  const auto digits = entry.size() > kPlaceDigits ? entry.substr(entry.size() - kPlaceDigits) : entry;
  const auto place = ParseRegionalNumber(digits);
  if (!place) Throw(kTypeMismatch);
  return ToInt32(*place);
}

std::string SearchForm(std::string_view text) { return FoldAccents(Trim(Upper(text))); }

std::int32_t SearchOrder(const OrderList& list, std::string_view key, std::int32_t count, SearchMode mode) {
  const std::string wanted = SearchForm(key);
  std::int32_t low = -1;
  std::int32_t high = count;
  while (low + 1 != high) {
    const std::int32_t mid = low + (high - low) / 2;
    const int order = wanted.compare(Probe(list, mid, key.size()));
    if (order < 0) {
      high = mid;
    } else if (order > 0) {
      low = mid;
    } else {
      std::int32_t found = mid;
      if (mode == SearchMode::First) {
        while (found > 0 && Probe(list, found - 1, key.size()) == wanted) --found;
      } else if (mode == SearchMode::Last) {
        while (found < count && Probe(list, found + 1, key.size()) == wanted) ++found;
      }
      return found;
    }
  }
  if (mode != SearchMode::Next) return -1;
  return high == count ? high - 1 : high;
}

}  // namespace tamrix
