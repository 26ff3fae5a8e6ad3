// The folder in which a fuzz target puts an input as a file: one for the
// whole process, emptied before each run, as programs leave files behind.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "data_test_support.h"

namespace tamrix::fuzzing {

class ScratchFolder {
 public:
  void Empty() {
    for (const auto& entry : std::filesystem::directory_iterator(Path())) std::filesystem::remove_all(entry);
  }

  // Writes `bytes` into the folder as `name`; gives its path.
  std::string Write(const std::string& name, std::string_view bytes) {
    const std::string path = folder_ / name;
    testing::WriteBytes(path, std::string(bytes));
    return path;
  }

  // The folder with "/" behind it, as a program's folder.
  std::string Slash() const { return folder_.Slash(); }

 private:
  std::filesystem::path Path() const { return folder_.Slash(); }

  testing::TempFolder folder_;
};

}  // namespace tamrix::fuzzing
