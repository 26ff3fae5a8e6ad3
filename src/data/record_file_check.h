// Reading a record file without its DB block, for tools: the header's
// facts, each record's values as text, and a check of the whole file.
#pragma once

#include <cstdint>
#include <functional>
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

// The whole records that a file of `fileSize` bytes holds, and the bytes
// of a record cut short behind them.
struct RecordsPresent {
  std::int64_t records = 0;
  std::int64_t strayBytes = 0;
};
RecordsPresent CountRecordsPresent(std::uint64_t fileSize, std::int32_t recordLength);

// The header, the fields and every record as text lines, handed to
// `print`. A count past the end of the file is told once as damage, and
// only the records that stand in the file are shown.
void DumpRecordFile(const DataFile& file, const std::function<void(const std::string&)>& print);

struct CheckResult {
  std::vector<std::string> problems;  // the file is not sound
  std::vector<std::string> notes;     // worth knowing, not a fault
  std::int32_t deleted = 0;
};

// The header reads, the record length is the sum of the stored fields, the
// lock byte is free, the count is the number of records that the file
// holds (neither ahead of nor behind them), and every value of every record
// that is counted and present and not deleted unscrambles. Once 100
// problems are listed, a note says from which record on the rest went
// unchecked.
CheckResult CheckRecordFile(const DataFile& file);

}  // namespace tamrix
