// Helpers shared by the tests of the program image, its codec and the packer.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include "core/fault.h"
#include "image/codec.h"
#include "image/key_table.h"

namespace tamrix {

// The fault number that `action` ends in, or 0.
inline long FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return fault.Number();
  }
  return 0;
}

// Replaces the bytes of `plain` from `at` (0-based) so that key `key` turns
// them into `sequence` in the encoded text.
inline std::string WithEncodedSequence(std::string plain, int key, std::size_t at,
                                       std::string_view sequence) {
  const auto keyText = kKeyTable[static_cast<std::size_t>(key)];
  for (std::size_t i = 0; i < sequence.size(); ++i) {
    const auto wanted = static_cast<unsigned char>(~static_cast<unsigned char>(sequence[i]));
    const auto keyByte = static_cast<unsigned char>(keyText[(at + i) % keyText.size()]);
    plain[at + i] = static_cast<char>(SubKeyByte(wanted, keyByte));
  }
  return plain;
}

// A folder of its own for one test, removed with everything in it.
class ScratchFolder {
 public:
  ScratchFolder()
      : path_(std::filesystem::temp_directory_path() /
              ("tamrix-image-test-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(path_);
  }
  ~ScratchFolder() { std::filesystem::remove_all(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string Path(const std::string& name) const { return (path_ / name).string(); }
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tamrix
