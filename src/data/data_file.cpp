#include "data/data_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

#include "core/fault.h"
#include "data/os_errors.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr std::size_t kLineChunk = 4096;
// The byte of the in-use mark: far past the end of any real file.
constexpr off_t kInUseMark = std::numeric_limits<off_t>::max() - 1;

int OpenFlags(FileMode mode) {
  switch (mode) {
    case FileMode::Binary: return O_RDWR | O_CREAT;
    case FileMode::Input: return O_RDONLY;
    case FileMode::Append: return O_WRONLY | O_CREAT | O_APPEND;
  }
  return O_RDONLY;
}

// Whole-range advisory locks that belong to the open file, not the process,
// so that two opens of one file in one program exclude each other too.
void SetLock(int descriptor, short type, std::uint64_t length) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = 0;
  lock.l_len = static_cast<off_t>(length);
  while (::fcntl(descriptor, F_OFD_SETLKW, &lock) != 0 && errno == EINTR) {
  }
}

// The lock of the in-use byte; `wait` blocks until it is granted.
bool LockInUseMark(int descriptor, short type, bool wait) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = kInUseMark;
  lock.l_len = 1;
  for (;;) {
    if (::fcntl(descriptor, wait ? F_OFD_SETLKW : F_OFD_SETLK, &lock) == 0) return true;
    if (errno != EINTR) return false;
  }
}

}  // namespace

std::unique_ptr<DataFile> DataFile::Open(std::string_view languagePath, FileMode mode) {
  if (languagePath.empty()) Throw(kPathFileAccessError);
  const std::filesystem::path path = OsPath(languagePath);
  const int descriptor = ::open(path.c_str(), OpenFlags(mode) | O_CLOEXEC, 0666);
  if (descriptor < 0) ThrowErrno(errno, path);
  struct stat info {};
  if (::fstat(descriptor, &info) == 0 && S_ISDIR(info.st_mode)) {
    ::close(descriptor);
    Throw(kPathFileAccessError);
  }
  return std::unique_ptr<DataFile>(new DataFile(descriptor, mode, path));
}

DataFile::DataFile(int descriptor, FileMode mode, std::filesystem::path path)
    : descriptor_(descriptor), mode_(mode), path_(std::move(path)) {}

DataFile::~DataFile() { ::close(descriptor_); }

void DataFile::Fail() const { ThrowErrno(errno, path_); }

std::uint64_t DataFile::Size() const {
  struct stat info {};
  if (::fstat(descriptor_, &info) != 0) Fail();
  return static_cast<std::uint64_t>(info.st_size);
}

std::string DataFile::ReadAt(std::uint64_t offset, std::size_t length) const {
  // A long read is cut to what the file holds before its buffer is taken.
  constexpr std::size_t kLongRead = 1 << 20;
  if (length > kLongRead) {
    const std::uint64_t size = Size();
    length = static_cast<std::size_t>(std::min<std::uint64_t>(length, size > offset ? size - offset : 0));
  }
  std::string bytes(length, '\0');
  std::size_t done = 0;
  while (done < length) {
    const ssize_t got = ::pread(descriptor_, bytes.data() + done, length - done,
                                static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) Fail();
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  bytes.resize(done);
  return bytes;
}

void DataFile::WriteAt(std::uint64_t offset, std::string_view bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t put = ::pwrite(descriptor_, bytes.data() + done, bytes.size() - done,
                                 static_cast<off_t>(offset + done));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) Fail();
    done += static_cast<std::size_t>(put);
  }
}

bool DataFile::ReadLine(std::string& line) {
  line.clear();
  bool any = false;
  for (;;) {
    const std::string chunk = ReadAt(linePosition_, kLineChunk);
    if (chunk.empty()) return any;
    any = true;
    const auto end = chunk.find_first_of("\r\n");
    if (end == std::string::npos) {
      line += chunk;
      linePosition_ += chunk.size();
      continue;
    }
    line.append(chunk, 0, end);
    linePosition_ += end + 1;
    if (chunk[end] == '\r') {
      // CR LF is one line end, also when the LF starts the next chunk.
      const bool lfFollows = end + 1 < chunk.size() ? chunk[end + 1] == '\n' : ReadAt(linePosition_, 1) == "\n";
      if (lfFollows) ++linePosition_;
    }
    return true;
  }
}

void DataFile::AppendLine(std::string_view text) {
  std::string bytes(text);
  bytes += "\r\n";
  WriteAt(Size(), bytes);  // O_APPEND puts it at the end whatever the offset
}

void DataFile::MarkInUse() { LockInUseMark(descriptor_, F_RDLCK, true); }

bool DataFile::TryTakeAlone() { return LockInUseMark(descriptor_, F_WRLCK, false); }

StartLock::StartLock(DataFile& file, std::uint64_t length) : file_(file), length_(length) {
  SetLock(file_.descriptor_, F_WRLCK, length_);
}

StartLock::~StartLock() { SetLock(file_.descriptor_, F_UNLCK, length_); }

}  // namespace tamrix
