#include "core/object_table.h"

#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr ValueVariable kText[] = {{".Txt", "String", true, ".Txt"}};
constexpr ValueVariable kBoxText[] = {{".Txt", "String", false, ".Txt"}};
constexpr ValueVariable kDecimalValue[] = {{".Value", "Decimal", true, ".Valor"}};
constexpr ValueVariable kIntegerValue[] = {{".Value", "Integer", true, ".Valor"}};
constexpr ValueVariable kSoundTimes[] = {{".Time", "Decimal", true, ".Time"},
                                         {".Position", "Decimal", true, ".Position"}};

using H = ObjectHome;

// Indexed by ObjectKind.
constexpr KindTraits kTraits[kObjectKindCount] = {
    {"AnimatedGif", false, H::CurrentWindow, {}},
    {"Button", true, H::CurrentWindow, {}},
    {"Text", true, H::CurrentWindow, kText},
    {"Currency", true, H::CurrentWindow, kDecimalValue},
    {"Check", true, H::CurrentWindow, kIntegerValue},
    {"Label", false, H::MainShown, kText},
    {"Link", false, H::MainShown, {}},
    {"Radio", true, H::CurrentWindow, kIntegerValue},
    {"Combo", true, H::CurrentWindow, kText},
    {"Frame", false, H::MainShown, {}},
    {"Mask", true, H::CurrentWindow, kText},
    {"Calendar", true, H::CurrentWindow, kText},
    {"ScrollBar", true, H::CurrentWindow, kIntegerValue},
    {"Box", true, H::CurrentWindow, kBoxText},
    {"Picture", false, H::MainHidden, {}},
    {"Image", false, H::MainShown, {}},
    {"Sound", true, H::MainHidden, kSoundTimes},
};

}  // namespace

const KindTraits& Traits(ObjectKind kind) { return kTraits[static_cast<std::size_t>(kind)]; }

void ObjectTable::Reset() {
  for (auto& family : families_) family.entries.clear();
  tabCounter_ = 0;
}

std::int16_t ObjectTable::TakeTabIndex() {
  const std::int16_t value = tabCounter_;
  tabCounter_ = ToInt16(tabCounter_ + 1.0);
  return value;
}

int ObjectTable::Find(ObjectKind kind, std::string_view name) const {
  if (name.empty()) return -1;
  const auto& entries = Family(kind).entries;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (EqualsNoCase(entries[i].name, name)) return static_cast<int>(i);
  }
  return -1;
}

ObjectControl* ObjectTable::FirstNamed(std::string_view name) const {
  for (int k = 0; k < kObjectKindCount; ++k) {
    const auto kind = static_cast<ObjectKind>(k);
    const int index = Find(kind, name);
    if (index >= 0) return Family(kind).entries[static_cast<std::size_t>(index)].control;
  }
  return nullptr;
}

}  // namespace tamrix
