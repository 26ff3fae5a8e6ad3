// The 20 rows of aliased files that OpenFile fills. A row is free while its
// alias is empty; the same alias may stand twice, and the first row wins.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tamrix {

struct AliasRow {
  std::string alias;  // upper case
  std::int16_t fileNumber = 0;
  std::string mode;   // "BINARY", "INPUT", "APPEND" or any word, upper case
};

class AliasTable {
 public:
  static constexpr std::size_t kRows = 20;

  // The first free row, or null when all are taken.
  AliasRow* FreeRow();
  // The first row of the alias, in any case, or null.
  AliasRow* Find(std::string_view alias);

 private:
  std::array<AliasRow, kRows> rows_;
};

}  // namespace tamrix
