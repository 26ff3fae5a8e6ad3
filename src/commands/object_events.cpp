#include "commands/object_events.h"

#include "core/interpreter.h"

namespace tamrix {
namespace {

const ObjectEntry* EntryOf(Interpreter& in, ObjectKind kind, int index) {
  const auto& entries = in.Objects().Family(kind).entries;
  const auto at = static_cast<std::size_t>(index);
  return at < entries.size() ? &entries[at] : nullptr;
}

std::string NameOf(Interpreter& in, ObjectKind kind, int index) {
  const ObjectEntry* entry = EntryOf(in, kind, index);
  return entry != nullptr ? entry->name : std::string();
}

// The numeric kinds' variable, under the name the window's class writes.
std::string ValueVariableName(const std::string& name, bool onMainWindow) {
  return name + (onMainWindow ? ".value" : ".Valor");
}

void SetRefIndex(Interpreter& in, int index, bool onMainWindow) {
  if (onMainWindow) in.Variables().SetVariable("RefIndex", std::int32_t{index}, false);
}

bool OwnerClosing(Interpreter& in, const ObjectEntry& entry) {
  const int slot = in.Windows().Find(entry.owner);
  return slot >= 0 && in.Windows().Window(slot) != nullptr && in.Windows().Window(slot)->Flags().closing;
}

}  // namespace

void ButtonClicked(Interpreter& in, int index, bool onMainWindow) {
  const std::string name = NameOf(in, ObjectKind::Button, index);
  if (onMainWindow) in.Variables().SetVariable("RefIndex", std::int32_t{index}, false);
  in.Mail().clickedButton = name;
  in.Variables().SetVariable("TestButton", name, false);
}

void ObjectFocusChanged(Interpreter& in, ObjectKind kind, int index, bool gained) {
  in.Variables().SetVariable(gained ? "GotFocus" : "LostFocus", NameOf(in, kind, index), false);
  const ObjectEntry* entry = EntryOf(in, kind, index);
  if (kind != ObjectKind::Button || entry == nullptr) return;
  const int slot = in.Windows().Find(entry->owner);
  if (slot >= 0 && in.Windows().Window(slot) != nullptr) in.Windows().Window(slot)->Flags().buttonHasFocus = gained;
}

}  // namespace tamrix

namespace tamrix {

void ObjectClicked(Interpreter& in, ObjectKind kind, int index, bool onMainWindow) {
  if (EntryOf(in, kind, index) != nullptr) SetRefIndex(in, index, onMainWindow);
}

void ChoiceClicked(Interpreter& in, ObjectKind kind, int index, int value, bool onMainWindow) {
  const ObjectEntry* entry = EntryOf(in, kind, index);
  if (entry == nullptr || entry->name.empty()) return;
  SetRefIndex(in, index, onMainWindow);
  if (kind == ObjectKind::Radio) {
    for (const ObjectEntry& radio : in.Objects().Family(ObjectKind::Radio).entries) {
      if (!radio.name.empty()) in.Variables().SetVariable(ValueVariableName(radio.name, onMainWindow), 0.0, true);
    }
    if (value == 0) return;
    value = 1;
  }
  in.Variables().SetVariable(ValueVariableName(entry->name, onMainWindow), static_cast<double>(value), true);
}

void ValueChanged(Interpreter& in, ObjectKind kind, int index, double value, bool onMainWindow) {
  const ObjectEntry* entry = EntryOf(in, kind, index);
  if (entry == nullptr || entry->name.empty()) return;
  in.Variables().SetVariable(ValueVariableName(entry->name, onMainWindow), value, kind == ObjectKind::Currency);
}

void NumberLostFocus(Interpreter& in, int index, double value, bool onMainWindow) {
  const ObjectEntry* entry = EntryOf(in, ObjectKind::Currency, index);
  if (entry == nullptr || entry->name.empty() || OwnerClosing(in, *entry)) return;
  in.Variables().SetVariable(ValueVariableName(entry->name, onMainWindow), value, false);
}

void ObjectTextChanged(Interpreter& in, ObjectKind kind, int index, const std::string& text) {
  const ObjectEntry* entry = EntryOf(in, kind, index);
  if (entry == nullptr || entry->name.empty()) return;
  in.Variables().SetVariable(entry->name + ".Txt", text, false);
}

}  // namespace tamrix
