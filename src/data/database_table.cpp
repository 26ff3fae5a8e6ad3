#include "data/database_table.h"

#include "core/fault.h"
#include "core/text.h"

namespace tamrix {

DatabaseSlot& DatabaseTable::Slot(int slot) {
  if (slot < 0 || slot >= kSlots) Throw(kSubscriptOutOfRange);
  return slots_[static_cast<std::size_t>(slot)];
}

DatabaseOrder& DatabaseTable::Order(int slot) {
  if (slot < 0 || slot >= kOrderedSlots) Throw(kSubscriptOutOfRange);
  return orders_[static_cast<std::size_t>(slot)];
}

int DatabaseTable::Find(std::string_view name) const {
  const std::string wanted = Upper(name);
  for (int slot = 0; slot < kSearchedSlots; ++slot) {
    if (Upper(slots_[static_cast<std::size_t>(slot)].name) == wanted) return slot;
  }
  return -1;
}

int FindField(const DatabaseSlot& slot, std::string_view name) {
  const std::string wanted = Upper(name);
  for (std::size_t i = 0; i < slot.fields.size(); ++i) {
    const std::string& full = slot.fields[i].fullName;
    const auto dot = full.find('.');
    const std::string behind = dot == std::string::npos ? std::string() : full.substr(dot + 1);
    if (Upper(behind) == wanted) return static_cast<int>(i);
  }
  return -1;
}

std::string& KeyField(DatabaseOrder& order, std::size_t number) {
  if (number >= order.keyFields.size()) Throw(kSubscriptOutOfRange);
  return order.keyFields[number];
}

}  // namespace tamrix
