#include "data/file_container.h"

#include <algorithm>

#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/file_numbers.h"
#include "data/file_operations.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr std::size_t kNameWidth = 25;
constexpr std::size_t kSizeWidth = 10;
constexpr std::size_t kPositionWidth = 15;
constexpr std::size_t kEntries = kContainerDirectorySize / kContainerEntrySize;
constexpr std::int64_t kFirstPosition = kContainerDirectorySize + 1;

std::string Field(std::string_view text, std::size_t width) {
  std::string out(text.substr(0, width));
  out.resize(width, ' ');
  return out;
}

std::string Slice(std::string_view text, std::size_t offset, std::size_t width) {
  return offset < text.size() ? std::string(text.substr(offset, width)) : std::string();
}

// The directory as read: a container shorter than it reads as blanks.
std::string ReadDirectory(DataFile& container) {
  std::string directory = container.ReadAt(0, kContainerDirectorySize);
  directory.resize(kContainerDirectorySize, ' ');
  return directory;
}

// A directory's numbers may be any text: one that no 64-bit whole number
// holds is the overflow fault.
std::int64_t WholeNumber(std::string_view text) {
  const double value = Val(text);
  if (!(value >= -0x1p63 && value < 0x1p63)) Throw(kOverflow);
  return static_cast<std::int64_t>(value);
}

}  // namespace

ContainerEntry ReadContainerEntry(std::string_view directory, std::size_t index) {
  const std::size_t at = index * kContainerEntrySize;
  return {Slice(directory, at, kNameWidth), WholeNumber(Slice(directory, at + kNameWidth, kSizeWidth)),
          WholeNumber(Slice(directory, at + kNameWidth + kSizeWidth, kPositionWidth))};
}

std::string ContainerEntryBytes(const ContainerEntry& entry) {
  return Field(entry.name, kNameWidth) + Field(std::to_string(entry.size), kSizeWidth) +
         Field(std::to_string(entry.position), kPositionWidth);
}

void InsertIntoContainer(FileNumbers& files, std::string_view name, const std::string& source,
                         const std::string& container) {
  const bool existed = FileExists(container);
  DataFile& input = files.Open(kContainedFileNumber, source, FileMode::Binary);
  DataFile& store = files.Open(kContainerFileNumber, container, FileMode::Binary);
  std::string directory(kContainerDirectorySize, ' ');
  std::size_t free = 0;
  ContainerEntry entry{std::string(name), static_cast<std::int64_t>(input.Size()), kFirstPosition};
  if (existed) {
    directory = ReadDirectory(store);
    ContainerEntry last;
    while (free < kEntries && directory[free * kContainerEntrySize] != ' ') {
      last = ReadContainerEntry(directory, free++);
    }
    // The walk has no end of its own: past a full directory it runs on
    // until its 16-bit position overflows.
    if (free == kEntries) Throw(kOverflow);
    if (__builtin_add_overflow(last.position, last.size, &entry.position) ||
        __builtin_add_overflow(entry.position, 1, &entry.position)) {
      Throw(kOverflow);
    }
  }
  directory.replace(free * kContainerEntrySize, kContainerEntrySize, ContainerEntryBytes(entry));
  store.WriteAt(0, directory);
  store.WriteAt(static_cast<std::uint64_t>(entry.position - 1),
                input.ReadAt(0, static_cast<std::size_t>(entry.size)));
  files.Close(kContainedFileNumber);
  files.Close(kContainerFileNumber);
}

bool ExtractFromContainer(FileNumbers& files, std::string_view name, const std::string& destination,
                          const std::string& container) {
  if (FileExists(destination)) RemoveFile(destination);
  DataFile& output = files.Open(kContainedFileNumber, destination, FileMode::Binary);
  DataFile& store = files.Open(kContainerFileNumber, container, FileMode::Binary);
  const std::string directory = ReadDirectory(store);
  const std::string wanted = Upper(name);
  for (std::size_t i = 0; i < kEntries; ++i) {
    const ContainerEntry entry = ReadContainerEntry(directory, i);
    if (Upper(Trim(entry.name)) != wanted) continue;
    // A directory that promises more than the container holds gives what is there.
    const auto stored = static_cast<std::int64_t>(store.Size());
    const std::int64_t length = entry.position > 0 ? std::min(entry.size, stored - (entry.position - 1)) : 0;
    if (length > 0) {
      output.WriteAt(0, store.ReadAt(static_cast<std::uint64_t>(entry.position - 1),
                                     static_cast<std::size_t>(length)));
    }
    files.Close(kContainedFileNumber);
    files.Close(kContainerFileNumber);
    return true;
  }
  return false;
}

}  // namespace tamrix
