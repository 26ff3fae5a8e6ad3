// The program's file numbers: one table for aliased files, record files,
// the file container and the text store, so that two users of one number
// meet as "File already open".
#pragma once

#include <map>
#include <memory>
#include <string_view>

#include "data/data_file.h"

namespace tamrix {

class FileNumbers {
 public:
  static constexpr int kLastNumber = 511;

  // The lowest number from 1 that no open file holds; fault 67 when none.
  int FreeNumber() const;
  // Fault 55 when the number holds a file, 52 outside 0 to 511; on an open
  // failure the number stays free.
  DataFile& Open(int number, std::string_view languagePath, FileMode mode);
  // A number that holds no file is closed silently.
  void Close(int number);
  // Fault 52 when the number holds no file.
  DataFile& At(int number);
  bool IsOpen(int number) const { return files_.count(number) != 0; }
  void CloseAll() { files_.clear(); }

 private:
  std::map<int, std::unique_ptr<DataFile>> files_;
};

}  // namespace tamrix
