// The databases that DB blocks declare: 21 slots, of which name lookups
// search the first 20 and only the first 11 carry an order.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/order_list.h"
#include "data/record_layout.h"

namespace tamrix {

struct DatabaseSlot {
  std::string name;
  std::string path;  // the folder, ending in "/"
  std::int16_t fileNumber = 0;
  std::int16_t recordLength = 0;
  std::vector<RecordField> fields;

  std::string FileName() const { return path + name + ".Zrf"; }
};

struct DatabaseOrder {
  std::string mode;  // "Indice", "Sequencial" or empty
  std::array<std::string, 11> keyFields;  // up to ten names, then an empty one
  OrderList list;
};

class DatabaseTable {
 public:
  static constexpr int kSlots = 21;
  static constexpr int kSearchedSlots = 20;
  static constexpr int kOrderedSlots = 11;
  static constexpr std::size_t kMaxFields = 300;

  // Slots filled so far; the next DB block fills this one.
  std::int16_t count = 0;

  // Fault 9 outside the slots that exist.
  DatabaseSlot& Slot(int slot);
  DatabaseOrder& Order(int slot);

  // The first of slots 0 to 19 with this name in any case, or -1.
  int Find(std::string_view name) const;

 private:
  std::array<DatabaseSlot, kSlots> slots_;
  std::array<DatabaseOrder, kOrderedSlots> orders_;
};

// The number of the field named `name` (the part behind the database's
// name, in any case), or -1.
int FindField(const DatabaseSlot& slot, std::string_view name);

// Fault 9 for a key field number beyond the array.
std::string& KeyField(DatabaseOrder& order, std::size_t number);

}  // namespace tamrix
