// The Window Table and the Current Window: which windows the program has
// named, and which one receives output and new objects.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "core/desktop.h"

namespace tamrix {

inline constexpr int kWindowSlots = 20;
inline constexpr int kStaticWindowTimers = 5;

// One of the one-shot timers TimerJanela(0..4) that run a static window's
// code, with the window that was current when its code started.
struct StaticWindowTimer {
  std::unique_ptr<DesktopTimer> timer;
  bool running = false;
  RunTimeWindow* savedWindow = nullptr;
};

// Program-wide flags of the window commands.
struct WindowModes {
  bool fixedWindow = false;     // Window FIXED is in force
  bool mouseGeneral = false;    // Window MOUSEGENERAL is in force
  bool windowCaptured = false;  // CaptureWindow: the main window drags by its client area
  bool imageInUse = false;      // an Image is the surface; focus leaves the Current Window alone
};

class WindowTable {
 public:
  // Slot 0 is "PARENT", the main window, which is also current; the other
  // slots are free.
  void Reset(RunTimeWindow& main);

  const std::string& Name(int slot) const { return names_[Index(slot)]; }
  RunTimeWindow* Window(int slot) const { return windows_[Index(slot)]; }
  // The lowest free slot from 1 on, or -1 when all are in use.
  int FreeSlot() const;
  void Assign(int slot, std::string name, RunTimeWindow& window);
  // The slot's name is cleared; its window stays until it is forgotten.
  void ClearName(int slot) { names_[Index(slot)].clear(); }
  // The first slot whose name, without quotes, equals `name` in any case;
  // -1 when none does.
  int Find(std::string_view name) const;
  // A window that is gone: no slot, save or Current Window refers to it
  // any more; the main window takes its place as current.
  void Forget(RunTimeWindow& window);

  RunTimeWindow& Main() const { return *windows_[0]; }
  RunTimeWindow& Current() const { return *current_; }
  // The Current Window Name, upper case: "PARENT" for the main window.
  const std::string& CurrentName() const { return currentName_; }
  void SetCurrent(RunTimeWindow& window) { current_ = &window; }
  void SetCurrentName(std::string name) { currentName_ = std::move(name); }
  void MakeMainCurrent();
  // The Current Window's surface, or the used Image's while imageInUse
  // stands.
  Surface& CurrentSurface() const;
  // An Image's surface becomes the one that drawing reaches (.USE); nullptr
  // when that image goes.
  void UseImageSurface(Surface* surface) { imageSurface_ = surface; }
  Surface* ImageSurface() const { return imageSurface_; }

  WindowModes& Modes() { return modes_; }
  // The window whose <name>_Code runs; its closing stops that code.
  std::string& WindowCodeOwner() { return windowCodeOwner_; }
  // The <name>_Code that the next static window timer runs.
  std::string& PendingWindowCode() { return pendingWindowCode_; }
  std::array<StaticWindowTimer, kStaticWindowTimers>& StaticTimers() { return staticTimers_; }
  // Timer3: the screen-wide mouse position of MOUSEGENERAL.
  std::unique_ptr<DesktopTimer>& MouseTimer() { return mouseTimer_; }
  // Timer2: mirrors the Text objects' texts into their variables.
  std::unique_ptr<DesktopTimer>& TextTimer() { return textTimer_; }
  // How many windows are shown modally right now.
  int& ModalDepth() { return modalDepth_; }

 private:
  static std::size_t Index(int slot) { return static_cast<std::size_t>(slot); }

  std::array<std::string, kWindowSlots> names_;
  std::array<RunTimeWindow*, kWindowSlots> windows_{};
  RunTimeWindow* current_ = nullptr;
  std::string currentName_;
  WindowModes modes_;
  Surface* imageSurface_ = nullptr;
  std::string windowCodeOwner_;
  std::string pendingWindowCode_;
  std::array<StaticWindowTimer, kStaticWindowTimers> staticTimers_;
  std::unique_ptr<DesktopTimer> mouseTimer_;
  std::unique_ptr<DesktopTimer> textTimer_;
  int modalDepth_ = 0;
};

}  // namespace tamrix
