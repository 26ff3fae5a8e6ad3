#include "data/alias_table.h"

#include "core/text.h"

namespace tamrix {

AliasRow* AliasTable::FreeRow() {
  for (auto& row : rows_) {
    if (row.alias.empty()) return &row;
  }
  return nullptr;
}

AliasRow* AliasTable::Find(std::string_view alias) {
  const std::string wanted = Upper(alias);
  for (auto& row : rows_) {
    if (row.alias == wanted) return &row;
  }
  return nullptr;
}

}  // namespace tamrix
