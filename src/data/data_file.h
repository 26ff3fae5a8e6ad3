// One open file of a program: bytes at any offset, lines, and a short lock
// between processes. Shared with other processes: nothing else is locked.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tamrix {

enum class FileMode {
  Binary,  // read and write at any byte; created when absent
  Input,   // lines from the start; the file must exist
  Append,  // lines at the end; created when absent
};

class DataFile {
 public:
  // Opens or fails with the run-time's fault for the system's error.
  static std::unique_ptr<DataFile> Open(std::string_view languagePath, FileMode mode);
  ~DataFile();
  DataFile(const DataFile&) = delete;
  DataFile& operator=(const DataFile&) = delete;

  FileMode Mode() const { return mode_; }
  std::uint64_t Size() const;

  // Offsets are 0-based; a read at the end gives the bytes that exist.
  std::string ReadAt(std::uint64_t offset, std::size_t length) const;
  void WriteAt(std::uint64_t offset, std::string_view bytes);

  // The next line without its end (CR LF, CR or LF); false at the end.
  bool ReadLine(std::string& line);
  // The text and CR LF at the end of the file.
  void AppendLine(std::string_view text);

  // Marks the file as in use by a program for as long as it stays open: a
  // shared advisory lock on one byte far past any record, so that a tool
  // that must have the file to itself can see that a program may be adding.
  void MarkInUse();
  // Takes that byte for this open file alone; false while any other open
  // file (in any process) holds its mark.
  bool TryTakeAlone();

 private:
  friend class StartLock;
  DataFile(int descriptor, FileMode mode, std::filesystem::path path);
  [[noreturn]] void Fail() const;

  int descriptor_;
  FileMode mode_;
  std::filesystem::path path_;
  std::uint64_t linePosition_ = 0;
};

// Holds the first `length` bytes of a file against the same lock of every
// other open file (in this or another process) while it lives.
class StartLock {
 public:
  StartLock(DataFile& file, std::uint64_t length);
  ~StartLock();
  StartLock(const StartLock&) = delete;
  StartLock& operator=(const StartLock&) = delete;

 private:
  DataFile& file_;
  std::uint64_t length_;
};

}  // namespace tamrix
