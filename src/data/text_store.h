// The text store: items "#!" key "#@" value "#$" in the file "ZR.File" of
// the program's folder, key and value stored with every byte complemented,
// and a cache of the whole file that, once filled, GetString never reads
// again.
#pragma once

#include <string>
#include <string_view>

namespace tamrix {

class FileNumbers;

class TextStore {
 public:
  // `path` is the store's file in the language's form.
  void Save(FileNumbers& files, const std::string& path, std::string_view key, std::string_view value);
  std::string Get(FileNumbers& files, const std::string& path, std::string_view key);

  // The new content for a save: the key's item replaced (behind the first
  // item whose key begins with `key`) or a new item at the end.
  static std::string WithItem(const std::string& content, std::string_view key, std::string_view value);
  // The value of the first item whose key begins with `key`, or empty.
  static std::string ItemValue(const std::string& content, std::string_view key);

 private:
  std::string cache_;
};

}  // namespace tamrix
