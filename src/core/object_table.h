// The Object Table: one family of entries per object kind, global to the
// program and not per window. The index of an entry is also the index of its
// control instance; entries are never shifted, and a freed entry (empty
// name) is taken again by the next object of its kind.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/object_controls.h"

namespace tamrix {

// Where a kind's control lives.
enum class ObjectHome {
  CurrentWindow,  // loaded on the current window
  MainShown,      // loaded on the main window and handed to the current one
  MainHidden,     // stays on the main window
};

// A language variable that mirrors an object: "<name><suffix>".
struct ValueVariable {
  std::string_view suffix;
  std::string_view type;
  // Box declares its variable later, when it is activated.
  bool declaredAtCreation;
  // The suffix under which closing a dynamic window removes it; the numeric
  // kinds are removed as ".Valor", which is not their name, and so stay.
  std::string_view suffixAtWindowClose;
};

struct KindTraits {
  std::string_view name;  // as in messages: "Button"
  bool takesFocus;        // takes the TabCounter
  ObjectHome home;
  std::span<const ValueVariable> variables;
};

const KindTraits& Traits(ObjectKind kind);

struct ObjectEntry {
  std::string name;   // as given; "" = free
  std::string owner;  // the current window's name when it was made
  ObjectControl* control = nullptr;
  bool multiLine = false;  // Text: the kind chosen at creation, MultiLine or not
};

struct ObjectFamily {
  std::vector<ObjectEntry> entries;  // ObjectCount is their number
};

class ObjectTable {
 public:
  ObjectFamily& Family(ObjectKind kind) { return families_[static_cast<std::size_t>(kind)]; }
  const ObjectFamily& Family(ObjectKind kind) const { return families_[static_cast<std::size_t>(kind)]; }

  // All families empty, the TabCounter at 0: the start of a program.
  void Reset();

  // The TabCounter's value for a new object; the counter goes up. One
  // counter for all kinds and windows.
  std::int16_t TakeTabIndex();

  // The first entry whose name equals `name` in any case, or -1. Free
  // entries never match.
  int Find(ObjectKind kind, std::string_view name) const;
  // The control of the first object of that name of any kind, families
  // taken in closing order; nullptr when there is none.
  ObjectControl* FirstNamed(std::string_view name) const;

 private:
  std::array<ObjectFamily, kObjectKindCount> families_;
  std::int16_t tabCounter_ = 0;
};

}  // namespace tamrix
