#include "data/paths.h"

#include <system_error>

#include "core/codepage.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kProgramPathWidth = 100;

}  // namespace

std::filesystem::path OsPath(std::string_view languagePath) {
  return std::filesystem::path(Cp1252ToUtf8(ReplaceAll(languagePath, "\\", "/")));
}

std::string LanguagePath(const std::filesystem::path& path) { return Utf8ToCp1252Lossy(path.string()); }

bool FileExists(std::string_view languagePath) {
  if (languagePath.empty()) return false;
  std::error_code ignored;
  const auto status = std::filesystem::status(OsPath(languagePath), ignored);
  return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

std::string ResolvePath(std::string_view path, std::string_view programPath) {
  if (path.empty()) return {};
  std::string candidate(path);
  const bool hasFolder = path.find_first_of("\\/") != std::string_view::npos;
  // A drive ("C:") is kept as written, and a path from the root has no drive
  // to take from the current folder here: both stand as written.
  if (!(path.size() > 1 && path[1] == ':') && !hasFolder) {
    candidate = std::string(programPath.substr(0, kProgramPathWidth)) + candidate;
  }
  return FileExists(candidate) ? candidate : std::string();
}

}  // namespace tamrix
