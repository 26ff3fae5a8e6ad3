// Finding files in folders: Directory's listing of one folder by a pattern
// with "*" and "?", and FindFile's walk of a folder tree. Names compare
// without regard to case, as the language's programs expect.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

// "*" stands for any run of characters, "?" for one; a pattern ending in
// ".*" also takes names without a dot.
bool WildcardMatch(std::string_view name, std::string_view pattern);

class FileListing {
 public:
  // Starts a new listing of the files (not folders, not hidden files) that
  // match the pattern's last part in the pattern's folder, in name order;
  // gives the first.
  std::optional<std::string> Start(std::string_view pattern);
  std::optional<std::string> Next();

 private:
  std::vector<std::string> matches_;
  std::size_t next_ = 0;
};

// The path of the first file of that name met by a depth-first walk from
// `root` (a folder's own files before its subfolders, each in name order);
// empty when there is none.
std::string FindInTree(std::string_view root, std::string_view name);

}  // namespace tamrix
