// The order list of a database and FindDB's search over it.
#include <gtest/gtest.h>

#include "core/fault.h"
#include "data/order_list.h"

namespace tamrix {
namespace {

// Entries as OrderDB builds them from one key field of width 10: the row's
// opening quote, the value filled to 9 characters, the place.
std::string Entry(const std::string& value, int place) {
  std::string key = "\"" + value;
  key.resize(10, ' ');
  return key + PlaceText(place);
}

std::string Key(const std::string& value) {
  std::string key = value;
  key.resize(10, ' ');
  return key;
}

OrderList Names(const std::vector<std::string>& values) {
  OrderList list;
  std::vector<std::string> entries;
  for (std::size_t i = 0; i < values.size(); ++i) entries.push_back(Entry(values[i], static_cast<int>(i)));
  list.InsertAll(entries);
  return list;
}

std::vector<std::int32_t> Places(const OrderList& list) {
  std::vector<std::int32_t> places;
  for (std::size_t i = 0; i < list.Size(); ++i) places.push_back(PlaceOf(list.At(static_cast<std::int32_t>(i))));
  return places;
}

TEST(OrderListTest, SortsWithoutRegardToCaseOrAccentsThenByPlace) {
  // "\xC9" is E acute, "\xE1" a acute.
  const OrderList list = Names({"carlos", "\xC9rica", "Ana", "bia", "ana", "ERICA", "\xE1lvaro"});
  EXPECT_EQ(Places(list), (std::vector<std::int32_t>{6, 2, 4, 3, 0, 1, 5}));
}

TEST(OrderListTest, SingleInsertsGoBehindTheirEquals) {
  OrderList list = Names({"bia", "ana"});
  list.Insert(Entry("ANA", 7));
  list.Insert(Entry("aaa", 8));
  EXPECT_EQ(Places(list), (std::vector<std::int32_t>{8, 1, 7, 0}));
  EXPECT_EQ(Places(Names({"b", "a", "c"})), Places([] {
              OrderList one;
              for (const auto& [v, p] : std::vector<std::pair<std::string, int>>{{"b", 0}, {"a", 1}, {"c", 2}})
                one.Insert(Entry(v, p));
              return one;
            }()));
}

TEST(OrderListTest, ReadsPastTheEndAsEmptyAndIndexesAre16Bit) {
  OrderList list = Names({"a", "b"});
  EXPECT_EQ(list.At(2), "");
  EXPECT_EQ(list.At(40), "");
  list.RemoveAt(5);
  EXPECT_EQ(list.Size(), 2u);
  list.RemoveAt(0);
  EXPECT_EQ(Places(list), (std::vector<std::int32_t>{1}));
  try {
    list.At(32768);
    FAIL() << "no overflow";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kOverflow);
  }
}

TEST(OrderListTest, PlaceIsTheLastSixCharacters) {
  EXPECT_EQ(PlaceText(42), "000042");
  EXPECT_EQ(PlaceOf("\"Ana      000042"), 42);
  EXPECT_EQ(PlaceOf("000000"), 0);
  try {
    PlaceOf("");
    FAIL() << "the empty entry names a place";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kTypeMismatch);
  }
}

struct SearchCase {
  const char* value;
  SearchMode mode;
  std::int32_t expected;
};

TEST(OrderSearchTest, ModesOverEqualAndMissingKeys) {
  // Sorted: ana(0) Ana(1) ANA(2) bia(3) carla(4) dora(5)
  const OrderList list = Names({"ana", "Ana", "ANA", "bia", "carla", "dora"});
  const SearchCase cases[] = {
      {"ana", SearchMode::First, 0},   {"ana", SearchMode::Last, 2},   {"\xC1na", SearchMode::First, 0},
      {"  ana", SearchMode::Last, 2},  {"bia", SearchMode::Any, 3},    {"dora", SearchMode::Last, 5},
      {"beto", SearchMode::Any, -1},   {"beto", SearchMode::First, -1}, {"beto", SearchMode::Next, 3},
      {"aaa", SearchMode::Next, 0},    {"zeca", SearchMode::Next, 5},   {"car", SearchMode::Any, -1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SearchOrder(list, Key(c.value), 6, c.mode), c.expected) << c.value << " " << static_cast<int>(c.mode);
  }
}

TEST(OrderSearchTest, EmptyListsAndEmptyKeys) {
  const OrderList empty;
  EXPECT_EQ(SearchOrder(empty, Key("ana"), 0, SearchMode::Next), -1);
  EXPECT_EQ(SearchOrder(empty, Key("ana"), 0, SearchMode::Any), -1);
  const OrderList list = Names({"a", "b", "c", "d"});
  EXPECT_EQ(SearchOrder(list, "", 4, SearchMode::Any), 1);  // matches at the first probe
  EXPECT_EQ(SearchOrder(list, "", 4, SearchMode::First), 0);
  EXPECT_EQ(SearchOrder(list, "", 4, SearchMode::Last), 4);  // the walk reaches the entry at the count
}

TEST(OrderSearchTest, KeysCompareOnTheirFirst131FoldedCharacters) {
  const std::string longValue(140, 'x');
  OrderList list;
  list.Insert("\"" + longValue + "y" + PlaceText(0));
  EXPECT_EQ(SearchOrder(list, longValue + "z", 1, SearchMode::Any), 0);
  EXPECT_EQ(SearchForm("  J\xF5\xE3o  "), "JOAO");
  EXPECT_EQ(SearchForm("\xC2ngela"), "\xC2NGELA");  // no entry for the circumflex A
}

}  // namespace
}  // namespace tamrix
