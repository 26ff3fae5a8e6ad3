#include "core/window_table.h"

#include "core/text.h"

namespace tamrix {

void WindowTable::Reset(RunTimeWindow& main) {
  names_.fill(std::string());
  windows_.fill(nullptr);
  names_[0] = "PARENT";
  windows_[0] = &main;
  main.SetTag("PARENT");
  MakeMainCurrent();
  modes_ = WindowModes();
  imageSurface_ = nullptr;
  windowCodeOwner_.clear();
  pendingWindowCode_.clear();
  modalDepth_ = 0;
}

int WindowTable::FreeSlot() const {
  for (int slot = 1; slot < kWindowSlots; ++slot) {
    if (names_[Index(slot)].empty()) return slot;
  }
  return -1;
}

void WindowTable::Assign(int slot, std::string name, RunTimeWindow& window) {
  names_[Index(slot)] = std::move(name);
  windows_[Index(slot)] = &window;
}

int WindowTable::Find(std::string_view name) const {
  for (int slot = 0; slot < kWindowSlots; ++slot) {
    if (EqualsNoCase(StripQuotes(names_[Index(slot)]), name)) return slot;
  }
  return -1;
}

void WindowTable::Forget(RunTimeWindow& window) {
  for (auto& slotWindow : windows_) {
    if (slotWindow == &window) slotWindow = nullptr;
  }
  for (auto& timer : staticTimers_) {
    if (timer.savedWindow == &window) timer.savedWindow = nullptr;
  }
  if (current_ == &window) MakeMainCurrent();
}

void WindowTable::MakeMainCurrent() {
  current_ = windows_[0];
  currentName_ = "PARENT";
}

Surface& WindowTable::CurrentSurface() const {
  if (modes_.imageInUse && imageSurface_ != nullptr) return *imageSurface_;
  return current_->Drawing();
}

}  // namespace tamrix
