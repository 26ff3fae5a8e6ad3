#include "data/text_store.h"

#include "data/file_numbers.h"
#include "image/codec.h"

namespace tamrix {
namespace {

constexpr std::string_view kKeyMark = "#!";
constexpr std::string_view kValueMark = "#@";
constexpr std::string_view kEndMark = "#$";

std::string WholeFile(DataFile& file) { return file.ReadAt(0, static_cast<std::size_t>(file.Size())); }

}  // namespace

std::string TextStore::WithItem(const std::string& content, std::string_view key, std::string_view value) {
  const std::string head = std::string(kKeyMark) + std::string(key);
  const std::string item = std::string(kValueMark) + std::string(value) + std::string(kEndMark);
  const auto at = content.find(head);
  if (at == std::string::npos) return content + head + item;
  const auto end = content.find(kEndMark, at);
  const std::string tail = end == std::string::npos ? std::string() : content.substr(end + kEndMark.size());
  return content.substr(0, at) + head + item + tail;
}

std::string TextStore::ItemValue(const std::string& content, std::string_view key) {
  const auto at = content.find(std::string(kKeyMark) + std::string(key));
  if (at == std::string::npos) return {};
  const auto valueAt = content.find(kValueMark, at);
  if (valueAt == std::string::npos) return {};
  const auto start = valueAt + kValueMark.size();
  const auto end = content.find(kEndMark, start);
  return content.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

void TextStore::Save(FileNumbers& files, const std::string& path, std::string_view key, std::string_view value) {
  const int number = files.FreeNumber();
  DataFile& file = files.Open(number, path, FileMode::Binary);
  cache_ = WholeFile(file);
  cache_ = WithItem(cache_, InvertBytes(key), InvertBytes(value));
  // Written over the old content and not cut: a shorter text leaves the old
  // tail behind it.
  file.WriteAt(0, cache_);
  files.Close(number);
}

std::string TextStore::Get(FileNumbers& files, const std::string& path, std::string_view key) {
  if (cache_.empty()) {
    const int number = files.FreeNumber();
    cache_ = WholeFile(files.Open(number, path, FileMode::Binary));
    files.Close(number);
  }
  return InvertBytes(ItemValue(cache_, InvertBytes(key)));
}

}  // namespace tamrix
