#include "core/stack_guard.h"

#include <sys/resource.h>

#include <cstdint>

#include "core/fault.h"

namespace tamrix {
namespace {

// Room kept free for the window system's own work inside a deep frame.
constexpr std::uintptr_t kMargin = 1536 * 1024;
constexpr std::uintptr_t kLargestUsable = 256 * 1024 * 1024;

thread_local std::uintptr_t stackBase = 0;
thread_local std::uintptr_t usableBytes = 0;

std::uintptr_t Here() { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); }

std::uintptr_t UsableStack() {
  rlimit limit{};
  std::uintptr_t size = 8 * 1024 * 1024;
  if (getrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY) {
    size = static_cast<std::uintptr_t>(limit.rlim_cur);
  } else if (limit.rlim_cur == RLIM_INFINITY) {
    size = kLargestUsable;
  }
  return size > 2 * kMargin ? size - kMargin : size / 2;
}

}  // namespace

void RecordStackBase() {
  stackBase = Here();
  usableBytes = UsableStack();
}

void CheckStackSpace() {
  if (stackBase == 0) RecordStackBase();
  const std::uintptr_t here = Here();
  if (here < stackBase && stackBase - here > usableBytes) Throw(kOutOfStackSpace);
}

}  // namespace tamrix
