#include "data/record_file_repair.h"

#include <filesystem>

#include "core/fault.h"
#include "data/data_file.h"
#include "data/paths.h"
#include "data/record_file.h"
#include "data/record_file_check.h"
#include "data/record_layout.h"

namespace tamrix {
namespace {

// The first of "<file>.bak", "<file>.bak2", ... that doesn't exist yet.
std::filesystem::path FreeBackupName(const std::filesystem::path& file) {
  std::filesystem::path name = file.string() + ".bak";
  for (int n = 2; std::filesystem::exists(name); ++n) name = file.string() + ".bak" + std::to_string(n);
  return name;
}

}  // namespace

RepairResult RepairRecordFile(const std::string& languagePath) {
  RepairResult result;
  if (!FileExists(languagePath)) {
    result.refused = true;
    result.reason = "no such file";
    return result;
  }
  const auto file = DataFile::Open(languagePath, FileMode::Binary);
  // Held until the file closes: a program that opens the file meanwhile
  // waits for the repair to end.
  if (!file->TryTakeAlone()) {
    result.refused = true;
    result.reason = "a program has the file open and may be adding to it; close it first";
    return result;
  }
  StoredDatabase db;
  try {
    db = ReadStoredDatabase(*file);
  } catch (const RuntimeFault& fault) {
    result.refused = true;
    result.reason = "the header can't be read (" + fault.Description() + ")";
    return result;
  }
  if (db.recordLength <= 0) {
    result.refused = true;
    result.reason = "the record length " + std::to_string(db.recordLength) + " can't hold a record";
    return result;
  }
  const RecordsPresent present = CountRecordsPresent(file->Size(), db.recordLength);
  const bool locked = db.lock != zrf::kFree;
  const bool miscounted = db.count != present.records;
  if (!locked && !miscounted && present.strayBytes == 0) return result;

  const std::filesystem::path path = OsPath(languagePath);
  const std::filesystem::path backup = FreeBackupName(path);
  std::filesystem::copy_file(path, backup);
  result.backup = LanguagePath(backup);

  std::string head = ReadHead(*file);
  if (locked) {
    head[0] = zrf::kFree;
    result.done.push_back("the lock byte \"" + std::string(1, db.lock) + "\" is freed");
  }
  if (miscounted) {
    PutCount(head, static_cast<std::int32_t>(present.records));
    result.done.push_back("the count " + std::to_string(db.count) + " is set to the " +
                          std::to_string(present.records) + " records the file holds");
  }
  WriteHead(*file, head);
  if (present.strayBytes > 0) {
    std::filesystem::resize_file(path, file->Size() - static_cast<std::uint64_t>(present.strayBytes));
    result.done.push_back("the " + std::to_string(present.strayBytes) + " bytes of a record cut short are removed");
  }
  return result;
}

}  // namespace tamrix
