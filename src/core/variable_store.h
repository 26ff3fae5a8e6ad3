// The three typed variable tables. Names are flat and case-insensitive; a
// lookup searches String, then Integer, then Decimal, and the first match
// wins. Name records keep the upper-cased name cut at 50 characters.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/value.h"

namespace tamrix {

enum class VarType { String = 0, Integer = 1, Decimal = 2 };

const char* TypeName(VarType type);

// Where a name was last found, kept by a caller that looks the same name up
// again and again. It holds while the tables keep their shape: any
// declaration or removal makes it stale.
struct NameCache {
  std::uint64_t shape = 0;
  int first = -1;
  VarType type = VarType::String;
};

class VariableStore {
 public:
  // Shows a stop box; set by the interpreter.
  using StopBoxFunction = std::function<void(const std::string&)>;

  VariableStore();
  void SetReporting(StopBoxFunction stopBox, const std::string* errorPosition);

  // Empties all three tables.
  void Reset();

  // The first slot of the variable, or -1; everything from the first "(" on
  // is ignored. Sets LastType on success.
  int VarIndex(std::string_view name, NameCache* cache = nullptr);
  std::string_view LastType() const { return lastType_; }
  VarType LastVarType() const { return lastVarType_; }

  // The value of a variable or array element; a stop box and an empty text
  // for an undeclared name. An index outside the value array is a fault.
  Value GetVariable(std::string_view name, NameCache* cache = nullptr);
  // The stored text of the String slot `slot`, to be changed in place.
  std::string& TextAt(int slot);
  // GetVariable for a name that VarIndex has just found at `first`.
  Value ReadFound(std::string_view name, int first);
  // Stores a value converted to the variable's type. An undeclared name
  // raises the run-time's own error when `complain` is set; a bad index or a
  // value that does not convert leaves the variable as it was.
  void SetVariable(std::string_view name, const Value& value, bool complain, NameCache* cache = nullptr);

  void DeclareScalar(std::string_view name, std::string_view typeText);
  void DeclareArray(std::string_view nameWithSize, std::string_view typeText);
  void RemoveVariable(std::string_view name, bool complain);

  // The bytes that the value slots of all three tables may take together:
  // a quarter of the machine's physical memory. A declaration past it ends
  // the run with the memory fault before anything is allocated.
  static std::uint64_t SlotBudgetBytes();

  // Counts, for tests and tools.
  std::size_t RecordCount(VarType type) const { return tables_[Index(type)].records.size(); }

 private:
  struct Record {
    std::string name;  // upper case, cut at 50, as compared (trimmed)
    int first = 0;
    int size = 1;
  };
  // A looked-up name with its hash, worked out once for the three tables.
  struct HashedName {
    std::string_view text;
    std::size_t hash;
  };
  struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
    std::size_t operator()(const HashedName& name) const { return name.hash; }
  };
  struct NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return a == b; }
    bool operator()(const HashedName& a, std::string_view b) const { return a.text == b; }
    bool operator()(std::string_view a, const HashedName& b) const { return a == b.text; }
  };
  struct Table {
    std::vector<Record> records;
    // name -> first record
    std::unordered_map<std::string, std::size_t, NameHash, NameEqual> index;
    int slotsInUse = 0;
    std::vector<std::string> texts;
    std::vector<std::int32_t> integers;
    std::vector<double> decimals;
  };

  static std::size_t Index(VarType type) { return static_cast<std::size_t>(type); }
  static std::string RecordName(std::string_view name);
  // Drops record `at`, keeping the index of first records by name.
  void ForgetRecord(Table& table, std::size_t at);
  // VarIndex without a cache.
  int LookUp(std::string_view name);
  void ResizeValues(VarType type, int slots);
  int SlotCount(VarType type) const;
  Value ReadSlot(VarType type, int slot) const;
  void WriteSlot(VarType type, int slot, const Value& value);
  // The element offset of "name(i)": a number, or an Integer variable's value.
  int ElementIndex(std::string_view name);
  void AddRecord(VarType type, std::string_view name, int size);

  std::array<Table, 3> tables_;
  std::uint64_t shape_ = 1;  // changes with every record added or dropped
  std::string lookupKey_;  // VarIndex's upper-cased name, kept to spare an allocation per lookup
  const char* lastType_ = "";
  VarType lastVarType_ = VarType::String;
  StopBoxFunction stopBox_;
  const std::string* errorPosition_ = nullptr;
};

}  // namespace tamrix
