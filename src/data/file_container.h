// The file container: a directory of 300 entries of 50 bytes (name 25,
// size 10, 1-based position 15), then the stored files, one unused byte
// between two of them. The source or destination is always file number 1
// and the container file number 2.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tamrix {

class FileNumbers;

inline constexpr std::size_t kContainerDirectorySize = 15000;
inline constexpr std::size_t kContainerEntrySize = 50;
inline constexpr int kContainerFileNumber = 2;
inline constexpr int kContainedFileNumber = 1;

struct ContainerEntry {
  std::string name;
  std::int64_t size = 0;
  std::int64_t position = 0;  // 1-based
};

// Entry `index` of a directory as stored (name with its blanks).
ContainerEntry ReadContainerEntry(std::string_view directory, std::size_t index);
// The 50 bytes of an entry: the name cut at 25, numbers in decimal, each
// left-aligned in blanks.
std::string ContainerEntryBytes(const ContainerEntry& entry);

// Stores `source` (a resolved path) under `name`; an existing container gets
// one entry more.
void InsertIntoContainer(FileNumbers& files, std::string_view name, const std::string& source,
                         const std::string& container);

// Writes the stored file `name` to `destination`; false when the directory
// has no such name (both files then stay open, the destination empty).
bool ExtractFromContainer(FileNumbers& files, std::string_view name, const std::string& destination,
                          const std::string& container);

}  // namespace tamrix
