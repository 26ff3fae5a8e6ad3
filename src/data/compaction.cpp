#include "data/compaction.h"

#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/data_state.h"
#include "data/file_operations.h"
#include "data/paths.h"
#include "data/record_file.h"
#include "data/scrambled_value.h"

namespace tamrix {
namespace {

std::string ReadHeader(const DataFile& file) {
  std::string header = file.ReadAt(0, zrf::kHeaderSize);
  header.resize(zrf::kHeaderSize, ' ');
  return header;
}

std::string BusyMessage(const std::string& tempName) {
  return "Another user is clearing the database!\rIf you are sure that no user's performing this routine,\r"
         "delete the file " + tempName;
}

}  // namespace

void CompactDatabase(Interpreter& interpreter, DataState& state, const std::string& name, int slot) {
  const DatabaseSlot& db = state.databases.Slot(slot);
  FileNumbers& files = state.files;
  files.Close(slot);
  std::string fileName = db.path + name;
  if (Upper(name.size() >= 3 ? name.substr(name.size() - 3) : name) != "ZRF") fileName += ".Zrf";
  const std::string tempName = db.path + "Temp.Zrf";
  if (FileExists(tempName)) {
    interpreter.StopBox(BusyMessage(tempName));
    return;
  }

  const int sourceNumber = files.FreeNumber();
  DataFile& source = files.Open(sourceNumber, fileName, FileMode::Binary);
  source.MarkInUse();
  const int tempNumber = files.FreeNumber();
  DataFile& temp = files.Open(tempNumber, tempName, FileMode::Binary);
  const std::string header = ReadHeader(source);
  temp.WriteAt(0, header);

  const std::int32_t count = CountOfHead(header);
  const std::int16_t length = ToInt16(Val(StrippedAreaText(header, zrf::kRecordLength)));
  const bool renumber = Upper(Trim(AreaText(header, zrf::FieldTypeArea(0)))) == "AUTOINC";
  RecordField first;
  first.width = FieldWidth("AutoInc", 0);
  std::int32_t kept = 0;
  for (std::int32_t r = 0; r < count; ++r) {
    std::string record = ReadRecordAt(source, length, r);
    if (IsDeletedRecord(record)) continue;
    if (renumber) PutField(record, first, ScrambleValue(IntegerBytes(kept)));
    WriteRecordAt(temp, length, kept, record);
    ++kept;
  }

  // The whole header goes back over the new record 0's first byte with the
  // byte that the old file holds there.
  std::string finalHeader = ReadHeader(source);
  finalHeader.replace(zrf::kCount.offset, zrf::kCount.width, zrf::kCount.width, ' ');
  PutCount(finalHeader, kept);
  temp.WriteAt(0, finalHeader);

  files.Close(sourceNumber);
  files.Close(tempNumber);
  RemoveFile(fileName);
  RenameFile(tempName, fileName);
  files.Open(slot, fileName, FileMode::Binary).MarkInUse();
}

}  // namespace tamrix
