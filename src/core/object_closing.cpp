#include "core/object_closing.h"

#include "core/fault.h"
#include "core/interpreter.h"
#include "core/object_table.h"

namespace tamrix {
namespace {

enum class Walk { MainWindow, DynamicWindow };

// Clears one entry: its variables, name and owner, then its control.
void ClearEntry(Interpreter& in, ObjectKind kind, std::size_t index, Walk walk) {
  ObjectEntry& entry = in.Objects().Family(kind).entries[index];
  for (const ValueVariable& variable : Traits(kind).variables) {
    const std::string_view suffix = walk == Walk::MainWindow ? variable.suffix : variable.suffixAtWindowClose;
    in.Variables().RemoveVariable(entry.name + std::string(suffix), false);
  }
  entry.name.clear();
  entry.owner.clear();
  if (entry.control == nullptr) return;
  ReleaseUsedImage(in, entry.control);
  if (index == 0) {
    entry.control->SetVisible(false);
  } else {
    // Re-parented controls go back to the main window before they go.
    if (Traits(kind).home == ObjectHome::MainShown) entry.control->MoveToWindow("PARENT");
    in.Screen().Controls().Unload(*entry.control);
    entry.control = nullptr;
  }
}

}  // namespace

void ShutdownObjects(Interpreter& in) {
  for (int k = 0; k < kObjectKindCount; ++k) {
    const auto kind = static_cast<ObjectKind>(k);
    for (std::size_t i = in.Objects().Family(kind).entries.size(); i-- > 0;) {
      ClearEntry(in, kind, i, Walk::MainWindow);
    }
  }
}

void ReleaseUsedImage(Interpreter& in, ObjectControl* control) {
  auto* image = dynamic_cast<ImageControl*>(control);
  if (image == nullptr || in.Windows().ImageSurface() == nullptr) return;
  try {
    if (in.Windows().ImageSurface() == &image->Drawing()) in.Windows().UseImageSurface(nullptr);
  } catch (const RuntimeFault&) {
    in.Windows().UseImageSurface(nullptr);
  }
}

void CloseWindowObjects(Interpreter& in, const std::string& tag) {
  for (int k = 0; k < kObjectKindCount; ++k) {
    const auto kind = static_cast<ObjectKind>(k);
    auto& entries = in.Objects().Family(kind).entries;
    for (std::size_t i = entries.size(); i-- > 0;) {
      if (entries[i].owner == tag) ClearEntry(in, kind, i, Walk::DynamicWindow);
    }
  }
}

}  // namespace tamrix
