// The order of a database in memory: entries of key bytes followed by the
// record's place in the file in six digits, kept sorted without regard to
// case or accents, and FindDB's binary search over them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

class OrderList {
 public:
  void Clear() { entries_.clear(); }
  // After the entries that sort equal to it.
  void Insert(std::string entry);
  // Many entries at once, as if inserted one by one in this order.
  void InsertAll(std::vector<std::string> entries);
  // Indexes are 16-bit: one beyond is fault 6. Reading at or past the end
  // gives the empty text; removing there does nothing.
  std::string At(std::int32_t index) const;
  void RemoveAt(std::int32_t index);
  std::size_t Size() const { return entries_.size(); }

 private:
  struct Entry {
    std::string sortKey;
    std::string text;
  };
  static Entry Make(std::string text);
  static bool Before(const Entry& a, const Entry& b) { return a.sortKey < b.sortKey; }

  std::vector<Entry> entries_;
};

// The six-digit place at the end of an entry.
std::string PlaceText(std::int32_t place);
// The place that an entry's last six characters name; fault 13 when they
// are no number (as for the empty entry behind the last).
std::int32_t PlaceOf(std::string_view entry);

enum class SearchMode {
  Any,    // the first match met
  First,  // the first of the equal entries
  Last,   // the last of them
  Next,   // without a match, where the key would stand
};

// The text as the search compares it: upper case, blanks stripped, accents
// folded (first 131 characters only).
std::string SearchForm(std::string_view text);

// The position of `key` (the search values, each padded to its field's
// width) among the first `count` entries, or -1.
std::int32_t SearchOrder(const OrderList& list, std::string_view key, std::int32_t count, SearchMode mode);

}  // namespace tamrix
