// Reading a record file without its DB block, for tools: the header's
// facts, each record's values as text, and a check of the whole file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "data/data_file.h"
#include "data/record_layout.h"

namespace tamrix {

struct StoredDatabase {
  char lock = ' ';
  std::int32_t count = 0;
  std::string name;
  std::int32_t recordLength = 0;
  std::string created;
  std::string prepared;
  std::string password;
  std::vector<RecordField> fields;
};

// Reads every area of the header; a fault names the area that failed.
StoredDatabase ReadStoredDatabase(const DataFile& file);

struct FieldReading {
  bool readable = true;
  std::string text;  // the value (a String between quotes), or why it can't be read
};

// A field's value as text; numbers as they print.
FieldReading DescribeValue(const RecordField& field, std::string_view record);

struct CheckResult {
  std::vector<std::string> problems;  // the file is not sound
  std::vector<std::string> notes;     // worth knowing, not a fault
  std::int32_t deleted = 0;
};

// The header reads, the record length is the sum of the stored fields, the
// count fits the file's size, every value of every record that is not
// deleted unscrambles, and the lock byte is free. Once 100 problems are
// listed, a note says from which record on the rest went unchecked.
CheckResult CheckRecordFile(const DataFile& file);

}  // namespace tamrix
