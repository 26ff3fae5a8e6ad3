#include "data/file_operations.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

#include "core/fault.h"
#include "data/os_errors.h"
#include "data/paths.h"

namespace tamrix {
namespace {

void Check(int result, const std::filesystem::path& path) {
  if (result != 0) ThrowErrno(errno, path);
}

}  // namespace

void RemoveFile(std::string_view languagePath) {
  if (languagePath.empty()) Throw(kFileNotFound);
  const auto path = OsPath(languagePath);
  Check(::unlink(path.c_str()), path);
}

void RenameFile(std::string_view from, std::string_view to) {
  const auto source = OsPath(from);
  Check(std::rename(source.c_str(), OsPath(to).c_str()), source);
}

void CopyFile(std::string_view source, std::string_view destination) {
  if (source.empty() || destination.empty()) Throw(kBadFileNameOrNumber);
  const auto from = OsPath(source);
  const auto to = OsPath(destination);
  std::error_code error;
  std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
  if (!error) return;
  // Blame the side that failed: a missing source, or the destination's place.
  std::error_code ignored;
  const bool sourceThere = std::filesystem::exists(from, ignored);
  ThrowErrno(error.value(), sourceThere ? to : from);
}

void MakeFolder(std::string_view languagePath) {
  if (languagePath.empty()) Throw(kPathNotFound);
  const auto path = OsPath(languagePath);
  if (::mkdir(path.c_str(), 0777) != 0) {
    Throw(errno == ENOENT || errno == ENOTDIR ? kPathNotFound : FaultNumberForErrno(errno, path));
  }
}

void RemoveFolder(std::string_view languagePath) {
  if (languagePath.empty()) Throw(kPathNotFound);
  const auto path = OsPath(languagePath);
  if (::rmdir(path.c_str()) != 0) {
    Throw(errno == ENOENT || errno == ENOTDIR ? kPathNotFound : FaultNumberForErrno(errno, path));
  }
}

}  // namespace tamrix
