#include "data/record_file.h"

#include "core/fault.h"
#include "data/record_layout.h"

namespace tamrix {

std::string ReadHead(const DataFile& file) {
  std::string head = file.ReadAt(0, zrf::kHeadSize);
  if (head.size() < zrf::kHeadSize) Throw(kInputPastEndOfFile);
  return head;
}

void WriteHead(DataFile& file, const std::string& head) { file.WriteAt(0, head); }

std::int32_t ReadRecordCount(const DataFile& file) { return CountOfHead(ReadHead(file)); }

std::string WaitForLock(FileNumbers& files, int number, bool take, const std::function<void()>& letEventsRun) {
  for (;;) {
    DataFile& file = files.At(number);
    std::string head;
    if (take) {
      const StartLock lock(file, zrf::kHeadSize);
      head = ReadHead(file);
      if (head[0] == zrf::kFree) {
        std::string busy = head;
        busy[0] = zrf::kBusy;
        WriteHead(file, busy);
      }
    } else {
      head = ReadHead(file);
    }
    if (head[0] == zrf::kFree) return head;
    letEventsRun();
  }
}

std::string ReadRecordAt(const DataFile& file, std::int64_t recordLength, std::int64_t place) {
  if (recordLength <= 0) return {};
  std::string record = file.ReadAt(zrf::RecordOffset(recordLength, place), static_cast<std::size_t>(recordLength));
  // Bytes behind the end of the file read as blanks.
  record.resize(static_cast<std::size_t>(recordLength), ' ');
  return record;
}

void WriteRecordAt(DataFile& file, std::int64_t recordLength, std::int64_t place, const std::string& record) {
  file.WriteAt(zrf::RecordOffset(recordLength, place), record);
}

}  // namespace tamrix
