#include "data/record_file_check.h"

#include <algorithm>
#include <functional>

#include "core/fault.h"
#include "core/numbers.h"
#include "data/record_file.h"
#include "data/scrambled_value.h"

namespace tamrix {
namespace {

// Fields that overlap can make each of hundreds of fields fail in every
// record; past this many problems the records left are not checked.
constexpr std::size_t kListedProblems = 100;

// Runs `read`; a fault becomes one that names `what`.
template <typename T>
T Reading(const std::string& what, const std::function<T()>& read) {
  try {
    return read();
  } catch (const RuntimeFault& fault) {
    throw RuntimeFault(fault.Number(), what + ": " + fault.Description());
  }
}

std::string ValueFault(const RuntimeFault& fault) {
  switch (fault.Number()) {
    case kSubscriptOutOfRange: return "key byte outside the key table";
    case kInvalidCall: return "value runs past its area";
    default: return fault.Description();
  }
}

std::size_t ExpectedValueLength(const std::string& type) {
  if (type == "Integer" || type == "AutoInc") return 4;
  if (type == "Decimal") return 8;
  return std::string::npos;
}

}  // namespace

StoredDatabase ReadStoredDatabase(const DataFile& file) {
  std::string header = file.ReadAt(0, zrf::kHeaderSize);
  if (header.size() < zrf::kHeaderSize) {
    throw RuntimeFault(kInputPastEndOfFile, "header: the file is shorter than the header's 20,000 bytes");
  }
  const auto area = [&](const char* what, HeaderArea where) {
    return Reading<std::string>(what, [&] { return AreaText(header, where); });
  };
  StoredDatabase db;
  db.lock = header[zrf::kLock.offset];
  db.count = Reading<std::int32_t>("record count", [&] { return CountOfHead(header.substr(0, zrf::kHeadSize)); });
  db.name = area("name", zrf::kName);
  db.recordLength = Reading<std::int32_t>(
      "record length", [&] { return ToInt16(Val(StrippedAreaText(header, zrf::kRecordLength))); });
  db.created = area("creation time", zrf::kCreated);
  db.prepared = area("last preparation", zrf::kPrepared);
  db.password = Reading<std::string>("password", [&] { return StrippedAreaText(header, zrf::kPassword); });
  db.fields = Reading<std::vector<RecordField>>("field list", [&] { return ReadFieldList(header); });
  return db;
}

FieldReading DescribeValue(const RecordField& field, std::string_view record) {
  if (field.width <= 0) return {true, "(no value: the type is unknown)"};
  try {
    const std::string value = UnscrambleValue(FieldBytes(record, field));
    const std::size_t expected = ExpectedValueLength(field.type);
    if (expected != std::string::npos && value.size() != expected) {
      return {false, "a " + field.type + " value of " + std::to_string(value.size()) + " bytes"};
    }
    if (field.type == "Integer" || field.type == "AutoInc") return {true, std::to_string(IntegerFromBytes(value))};
    if (field.type == "Decimal") return {true, NumberText(DecimalFromBytes(value))};
    return {true, "\"" + value + "\""};
  } catch (const RuntimeFault& fault) {
    return {false, ValueFault(fault)};
  }
}

RecordsPresent CountRecordsPresent(std::uint64_t fileSize, std::int32_t recordLength) {
  RecordsPresent present;
  if (recordLength <= 0) return present;
  // Record 0 starts on the header's last byte, so a file of the header alone
  // holds no record.
  const auto size = static_cast<std::int64_t>(fileSize);
  const std::int64_t firstRecord = static_cast<std::int64_t>(zrf::RecordOffset(recordLength, 0));
  if (size > static_cast<std::int64_t>(zrf::kHeaderSize)) {
    present.records = (size - firstRecord) / recordLength;
  }
  const std::int64_t end = std::max<std::int64_t>(zrf::kHeaderSize, firstRecord + present.records * recordLength);
  present.strayBytes = std::max<std::int64_t>(0, size - end);
  return present;
}

void DumpRecordFile(const DataFile& file, const std::function<void(const std::string&)>& print) {
  const StoredDatabase db = ReadStoredDatabase(file);
  print("lock byte: " + std::string(1, db.lock));
  print("records: " + std::to_string(db.count));
  print("name: " + db.name);
  print("record length: " + std::to_string(db.recordLength));
  print("created: " + db.created);
  print("last prepared: " + db.prepared);
  print("password: \"" + db.password + "\"");
  print("fields:");
  for (const auto& field : db.fields) {
    print("  " + field.name + " " + field.type + " width " + std::to_string(field.width) + " at " +
          std::to_string(field.start));
  }
  // A count past the end of the file is damage, told once; only the records
  // that stand in the file are shown.
  const RecordsPresent present = CountRecordsPresent(file.Size(), db.recordLength);
  std::int64_t shown = std::max<std::int64_t>(db.count, 0);
  if (shown > present.records) {
    print("damage: the count says " + std::to_string(db.count) + " records, the file holds " +
          std::to_string(present.records) + "; only those are shown");
    shown = present.records;
  }
  for (std::int64_t r = 0; r < shown; ++r) {
    const std::string record = ReadRecordAt(file, db.recordLength, r);
    std::string line = "record " + std::to_string(r) + ":";
    bool deleted = false;
    try {
      deleted = IsDeletedRecord(record);
    } catch (const RuntimeFault&) {
      // shown field by field below
    }
    if (deleted) {
      line += " deleted";
    } else {
      for (const auto& field : db.fields) line += " " + field.name + "=" + DescribeValue(field, record).text;
    }
    print(line);
  }
}

CheckResult CheckRecordFile(const DataFile& file) {
  CheckResult result;
  StoredDatabase db;
  try {
    db = ReadStoredDatabase(file);
  } catch (const RuntimeFault& fault) {
    result.problems.push_back(fault.Description());
    return result;
  }
  if (db.lock != zrf::kFree) {
    result.problems.push_back("the lock byte is \"" + std::string(1, db.lock) +
                              "\", not \"0\": every record command waits for it");
  }
  std::int32_t widths = 0;
  for (const auto& field : db.fields) widths += field.width;
  if (widths != db.recordLength) {
    result.problems.push_back("the record length is " + std::to_string(db.recordLength) +
                              " but the stored fields take " + std::to_string(widths));
    return result;
  }
  // Records of no bytes all read as the empty text, which no record command
  // can read; the file's size doesn't bound how many of them are counted.
  const std::int64_t length = db.recordLength;
  if (length <= 0) {
    if (db.count > 0) {
      result.problems.push_back("records of " + std::to_string(length) + " bytes: none of them can be read");
    }
    return result;
  }
  if (db.count < 0) result.problems.push_back("the record count is negative");
  const RecordsPresent present = CountRecordsPresent(file.Size(), db.recordLength);
  if (db.count > present.records) {
    result.problems.push_back("the count runs ahead of the data: it says " + std::to_string(db.count) +
                              " records, the file holds " + std::to_string(present.records));
  } else if (db.count < present.records) {
    result.problems.push_back("the count is behind the data: it says " + std::to_string(db.count) +
                              " records, the file holds " + std::to_string(present.records) +
                              ", and the next AddRecord writes over those behind it");
  }
  if (present.strayBytes > 0) {
    result.problems.push_back(std::to_string(present.strayBytes) + " bytes behind the last record");
  }
  if (db.fields.empty()) return result;
  const std::int32_t checked = static_cast<std::int32_t>(std::min<std::int64_t>(db.count, present.records));
  for (std::int32_t r = 0; r < checked; ++r) {
    if (result.problems.size() >= kListedProblems) {
      result.notes.push_back("records from " + std::to_string(r) + " on are not checked: " +
                             std::to_string(result.problems.size()) + " problems are listed");
      break;
    }
    const std::string record = ReadRecordAt(file, length, r);
    try {
      if (IsDeletedRecord(record)) {
        ++result.deleted;
        continue;
      }
    } catch (const RuntimeFault&) {
      // The first field is checked with the others below.
    }
    for (const auto& field : db.fields) {
      const FieldReading value = DescribeValue(field, record);
      if (!value.readable) {
        result.problems.push_back("record " + std::to_string(r) + ", field " + field.name + ": " + value.text);
      }
    }
  }
  return result;
}

}  // namespace tamrix
