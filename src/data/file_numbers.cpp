#include "data/file_numbers.h"

#include "core/fault.h"

namespace tamrix {

int FileNumbers::FreeNumber() const {
  for (int number = 1; number <= kLastNumber; ++number) {
    if (!IsOpen(number)) return number;
  }
  Throw(kTooManyFiles);
}

DataFile& FileNumbers::Open(int number, std::string_view languagePath, FileMode mode) {
  if (number < 0 || number > kLastNumber) Throw(kBadFileNameOrNumber);
  if (IsOpen(number)) Throw(kFileAlreadyOpen);
  auto file = DataFile::Open(languagePath, mode);
  DataFile& opened = *file;
  files_[number] = std::move(file);
  return opened;
}

void FileNumbers::Close(int number) { files_.erase(number); }

DataFile& FileNumbers::At(int number) {
  const auto hit = files_.find(number);
  if (hit == files_.end()) Throw(kBadFileNameOrNumber);
  return *hit->second;
}

}  // namespace tamrix
