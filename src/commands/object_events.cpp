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
