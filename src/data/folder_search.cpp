#include "data/folder_search.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/text.h"
#include "data/paths.h"

namespace fs = std::filesystem;

namespace tamrix {
namespace {

struct FolderEntries {
  std::vector<fs::path> files;
  std::vector<fs::path> folders;
};

std::string NameOf(const fs::path& path) { return LanguagePath(path.filename()); }

// The visible files and folders of one folder, each sorted by name; links to
// folders are not followed, so a walk cannot turn in a circle.
FolderEntries ReadFolder(const fs::path& folder) {
  FolderEntries entries;
  std::error_code error;
  for (fs::directory_iterator it(folder, fs::directory_options::skip_permission_denied, error), end;
       !error && it != end; it.increment(error)) {
    const fs::path& path = it->path();
    if (StartsWith(path.filename().string(), ".")) continue;
    std::error_code ignored;
    if (it->is_directory(ignored)) {
      if (!it->is_symlink(ignored)) entries.folders.push_back(path);
    } else if (it->is_regular_file(ignored)) {
      entries.files.push_back(path);
    }
  }
  const auto byName = [](const fs::path& a, const fs::path& b) {
    const std::string nameA = NameOf(a);
    const std::string nameB = NameOf(b);
    const std::string upperA = Upper(nameA);
    const std::string upperB = Upper(nameB);
    return upperA != upperB ? upperA < upperB : nameA < nameB;
  };
  std::sort(entries.files.begin(), entries.files.end(), byName);
  std::sort(entries.folders.begin(), entries.folders.end(), byName);
  return entries;
}

bool MatchUpper(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t starP = std::string_view::npos;
  std::size_t starN = 0;
  while (n < name.size()) {
    if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++n;
      ++p;
    } else if (p < pattern.size() && pattern[p] == '*') {
      starP = p++;
      starN = n;
    } else if (starP != std::string_view::npos) {
      p = starP + 1;
      n = ++starN;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

std::string FindIn(const fs::path& folder, const std::string& upperName) {
  const FolderEntries entries = ReadFolder(folder);
  for (const auto& file : entries.files) {
    if (Upper(NameOf(file)) == upperName) return LanguagePath(file);
  }
  for (const auto& sub : entries.folders) {
    std::string found = FindIn(sub, upperName);
    if (!found.empty()) return found;
  }
  return {};
}

}  // namespace

bool WildcardMatch(std::string_view name, std::string_view pattern) {
  const std::string upperName = Upper(name);
  const std::string upperPattern = Upper(pattern);
  if (MatchUpper(upperName, upperPattern)) return true;
  return EndsWith(upperPattern, ".*") && upperName.find('.') == std::string::npos &&
         MatchUpper(upperName, std::string_view(upperPattern).substr(0, upperPattern.size() - 2));
}

std::optional<std::string> FileListing::Start(std::string_view pattern) {
  const std::string path = ReplaceAll(pattern, "\\", "/");
  const auto slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? std::string(".") : path.substr(0, slash + 1);
  const std::string last = slash == std::string::npos ? path : path.substr(slash + 1);
  const std::string namePattern = last.empty() ? std::string(1, '*') : last;
  matches_.clear();
  next_ = 0;
  for (const auto& file : ReadFolder(OsPath(folder)).files) {
    const std::string name = NameOf(file);
    if (WildcardMatch(name, namePattern)) matches_.push_back(name);
  }
  return Next();
}

std::optional<std::string> FileListing::Next() {
  if (next_ >= matches_.size()) return std::nullopt;
  return matches_[next_++];
}

std::string FindInTree(std::string_view root, std::string_view name) {
  if (root.empty() || name.empty()) return {};
  std::error_code ignored;
  const fs::path start = OsPath(root);
  if (!fs::is_directory(start, ignored)) return {};
  return FindIn(start, Upper(name));
}

}  // namespace tamrix
