#include "core/variable_store.h"

#include <unistd.h>

#include <cmath>
#include <limits>

#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kNameWidth = 50;

std::uint64_t SlotBytes(VarType type) {
  switch (type) {
    case VarType::String: return sizeof(std::string);
    case VarType::Integer: return sizeof(std::int32_t);
    case VarType::Decimal: return sizeof(double);
  }
  return sizeof(std::string);
}

std::string BaseName(std::string_view name) {
  const auto bracket = name.find('(');
  return std::string(bracket == std::string_view::npos ? name : name.substr(0, bracket));
}

}  // namespace

const char* TypeName(VarType type) {
  switch (type) {
    case VarType::String: return "String";
    case VarType::Integer: return "Integer";
    case VarType::Decimal: return "Decimal";
  }
  return "String";
}

VariableStore::VariableStore() { Reset(); }

void VariableStore::SetReporting(StopBoxFunction stopBox, const std::string* errorPosition) {
  stopBox_ = std::move(stopBox);
  errorPosition_ = errorPosition;
}

void VariableStore::Reset() {
  ++shape_;
  for (auto type : {VarType::String, VarType::Integer, VarType::Decimal}) {
    Table& table = tables_[Index(type)];
    table = Table();
    ResizeValues(type, 2);
  }
}

std::string VariableStore::RecordName(std::string_view name) {
  std::string upper = Upper(name);
  if (upper.size() > kNameWidth) upper.resize(kNameWidth);
  return Trim(upper);
}

void VariableStore::ForgetRecord(Table& table, std::size_t at) {
  ++shape_;
  const std::string name = table.records[at].name;
  table.records.erase(table.records.begin() + static_cast<std::ptrdiff_t>(at));
  table.index.erase(name);
  for (auto& entry : table.index) {
    if (entry.second > at) --entry.second;
  }
  // A later record under the same (cut) name is now the first of that name.
  for (std::size_t i = at; i < table.records.size(); ++i) {
    if (table.records[i].name == name) {
      table.index.emplace(name, i);
      break;
    }
  }
}

int VariableStore::SlotCount(VarType type) const {
  const Table& table = tables_[Index(type)];
  switch (type) {
    case VarType::String: return static_cast<int>(table.texts.size());
    case VarType::Integer: return static_cast<int>(table.integers.size());
    case VarType::Decimal: return static_cast<int>(table.decimals.size());
  }
  return 0;
}

void VariableStore::ResizeValues(VarType type, int slots) {
  Table& table = tables_[Index(type)];
  const auto n = static_cast<std::size_t>(slots);
  switch (type) {
    case VarType::String: table.texts.resize(n); break;
    case VarType::Integer: table.integers.resize(n); break;
    case VarType::Decimal: table.decimals.resize(n); break;
  }
}

int VariableStore::VarIndex(std::string_view name, NameCache* cache) {
  if (cache != nullptr && cache->shape == shape_) {
    if (cache->first >= 0) {
      lastVarType_ = cache->type;
      lastType_ = TypeName(cache->type);
    }
    return cache->first;
  }
  const int first = LookUp(name);
  if (cache != nullptr) *cache = NameCache{shape_, first, lastVarType_};
  return first;
}

int VariableStore::LookUp(std::string_view name) {
  // The stored names are cut and trimmed; the name looked up is only
  // upper-cased, so a name longer than 50 characters is never found.
  const auto bracket = name.find('(');
  lookupKey_.assign(bracket == std::string_view::npos ? name : name.substr(0, bracket));
  for (char& c : lookupKey_) c = UpperChar(c);
  const HashedName key{lookupKey_, NameHash{}(std::string_view(lookupKey_))};
  for (auto type : {VarType::String, VarType::Integer, VarType::Decimal}) {
    const Table& table = tables_[Index(type)];
    const auto hit = table.index.find(key);
    if (hit != table.index.end()) {
      lastVarType_ = type;
      lastType_ = TypeName(type);
      return table.records[hit->second].first;
    }
  }
  return -1;
}

Value VariableStore::ReadSlot(VarType type, int slot) const {
  if (slot < 0 || slot >= SlotCount(type)) Throw(kSubscriptOutOfRange);
  const Table& table = tables_[Index(type)];
  const auto i = static_cast<std::size_t>(slot);
  switch (type) {
    case VarType::String: return table.texts[i];
    case VarType::Integer: return table.integers[i];
    case VarType::Decimal: return table.decimals[i];
  }
  return std::string();
}

void VariableStore::WriteSlot(VarType type, int slot, const Value& value) {
  if (slot < 0 || slot >= SlotCount(type)) Throw(kSubscriptOutOfRange);
  Table& table = tables_[Index(type)];
  const auto i = static_cast<std::size_t>(slot);
  if (type == VarType::String) {
    table.texts[i] = TextOf(value);
    return;
  }
  double number = 0;
  if (const auto* text = std::get_if<std::string>(&value)) {
    const auto parsed = ParseRegionalNumber(*text);
    if (!parsed) Throw(kTypeMismatch);
    number = *parsed;
  } else {
    number = NumberOf(value);
  }
  if (type == VarType::Integer) {
    table.integers[i] = ToInt32(number);
  } else {
    table.decimals[i] = number;
  }
}

int VariableStore::ElementIndex(std::string_view name) {
  const auto open = name.find('(');
  if (open == std::string_view::npos) return 0;
  const auto close = name.find(')');
  if (close == std::string_view::npos || close < open) Throw(kInvalidCall);
  const std::string inner(name.substr(open + 1, close - open - 1));
  if (const auto number = ParseRegionalNumber(inner)) return ToInt32(*number);
  // An index variable: its first slot is read from the Integer values,
  // whatever table the name stands in.
  const char* savedType = lastType_;
  const VarType savedVarType = lastVarType_;
  const int slot = VarIndex(inner);
  int index = 0;
  if (slot < 0) {
    if (stopBox_) stopBox_("Can't read " + inner + ": undeclared variable!");
  } else {
    index = std::get<std::int32_t>(ReadSlot(VarType::Integer, slot));
  }
  lastType_ = savedType;
  lastVarType_ = savedVarType;
  return index;
}

Value VariableStore::GetVariable(std::string_view name, NameCache* cache) {
  const int first = VarIndex(name, cache);
  if (first < 0) {
    if (stopBox_) {
      const std::string position = errorPosition_ != nullptr ? *errorPosition_ : std::string();
      stopBox_(position + "\r\nCan't read " + std::string(name) + ": undeclared variable!");
    }
    return std::string();
  }
  return ReadFound(name, first);
}

std::string& VariableStore::TextAt(int slot) {
  if (slot < 0 || slot >= SlotCount(VarType::String)) Throw(kSubscriptOutOfRange);
  return tables_[Index(VarType::String)].texts[static_cast<std::size_t>(slot)];
}

Value VariableStore::ReadFound(std::string_view name, int first) {
  const VarType type = lastVarType_;
  const int offset = ElementIndex(name);
  return ReadSlot(type, first + offset);
}

void VariableStore::SetVariable(std::string_view name, const Value& value, bool complain, NameCache* cache) {
  const int first = VarIndex(name, cache);
  if (first < 0) {
    if (complain) {
      throw RuntimeFault(kRaisedByTamrix,
                         "Can't assign value to " + std::string(name) + ": undeclared variable!");
    }
    return;
  }
  const VarType type = lastVarType_;
  try {
    const int offset = ElementIndex(name);
    WriteSlot(type, first + offset, value);
  } catch (const RuntimeFault&) {
    // A bad index or a value that does not convert leaves the old value.
  }
}

std::uint64_t VariableStore::SlotBudgetBytes() {
  static const std::uint64_t budget = [] {
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long pageSize = ::sysconf(_SC_PAGE_SIZE);
    if (pages <= 0 || pageSize <= 0) return std::uint64_t{1} << 30;
    return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize) / 4;
  }();
  return budget;
}

void VariableStore::AddRecord(VarType type, std::string_view name, int size) {
  Table& table = tables_[Index(type)];
  // Slots are counted in 32 bits, and all of them share one memory budget.
  constexpr long long kMaxSlots = std::numeric_limits<std::int32_t>::max() - 1;
  if (static_cast<long long>(table.slotsInUse) + size > kMaxSlots) Throw(kOutOfMemory);
  std::uint64_t bytes = SlotBytes(type) * static_cast<std::uint64_t>(size);
  for (auto each : {VarType::String, VarType::Integer, VarType::Decimal}) {
    bytes += SlotBytes(each) * static_cast<std::uint64_t>(tables_[Index(each)].slotsInUse);
  }
  if (bytes > SlotBudgetBytes()) Throw(kOutOfMemory);
  ++shape_;
  Record record{RecordName(name), table.slotsInUse, size};
  table.index.emplace(record.name, table.records.size());
  table.records.push_back(std::move(record));
  table.slotsInUse += size;
  // The value array keeps room for one slot more than in use.
  if (SlotCount(type) < table.slotsInUse + 1) ResizeValues(type, table.slotsInUse + 1);
}

namespace {

bool ParseType(std::string_view typeText, VarType& type) {
  if (typeText == "String") {
    type = VarType::String;
  } else if (typeText == "Integer") {
    type = VarType::Integer;
  } else if (typeText == "Decimal") {
    type = VarType::Decimal;
  } else {
    return false;
  }
  return true;
}

}  // namespace

void VariableStore::DeclareScalar(std::string_view name, std::string_view typeText) {
  if (VarIndex(name) >= 0) return;
  VarType type{};
  if (!ParseType(typeText, type)) return;
  AddRecord(type, name, 1);
}

void VariableStore::DeclareArray(std::string_view nameWithSize, std::string_view typeText) {
  const auto open = nameWithSize.find('(');
  const auto close = nameWithSize.find(')');
  int size = 0;
  if (open != std::string_view::npos && close != std::string_view::npos && close > open) {
    const double leading = Val(nameWithSize.substr(open + 1, close - open));
    size = leading > 0 ? ToInt32(leading) : 0;
  }
  const std::string name = BaseName(nameWithSize);
  if (VarIndex(name) >= 0) return;
  VarType type{};
  if (!ParseType(typeText, type)) return;
  AddRecord(type, name, size);
}

void VariableStore::RemoveVariable(std::string_view name, bool complain) {
  const std::string key = Upper(BaseName(name));
  for (auto type : {VarType::String, VarType::Integer, VarType::Decimal}) {
    Table& table = tables_[Index(type)];
    const auto hit = table.index.find(key);
    if (hit == table.index.end()) continue;
    const std::size_t at = hit->second;
    const int first = table.records[at].first;
    const int size = table.records[at].size;
    ForgetRecord(table, at);
    for (std::size_t i = at; i < table.records.size(); ++i) table.records[i].first -= size;
    // Values above the variable move down; the slot above the last is cleared.
    const auto eraseRange = [&](auto& values) {
      const auto begin = values.begin() + first;
      const auto end = values.begin() + std::min<std::ptrdiff_t>(first + size, static_cast<std::ptrdiff_t>(values.size()));
      values.erase(begin, end);
    };
    switch (type) {
      case VarType::String: eraseRange(table.texts); break;
      case VarType::Integer: eraseRange(table.integers); break;
      case VarType::Decimal: eraseRange(table.decimals); break;
    }
    table.slotsInUse -= size;
    ResizeValues(type, std::max(table.slotsInUse + 1, 2));
    WriteSlot(type, table.slotsInUse, type == VarType::String ? Value(std::string()) : Value(0));
    return;
  }
  if (complain && stopBox_) stopBox_("RemoveVariable - undeclared variable: " + std::string(name));
}

}  // namespace tamrix
