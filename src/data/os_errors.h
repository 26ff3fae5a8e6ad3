// Failures of the operating system as the run-time's numbered faults.
#pragma once

#include <filesystem>

namespace tamrix {

// The run-time's fault number for an errno value met on `path`: a missing
// file in an existing folder is 53, a missing folder on the way is 76.
long FaultNumberForErrno(int error, const std::filesystem::path& path);

[[noreturn]] void ThrowErrno(int error, const std::filesystem::path& path);

}  // namespace tamrix
