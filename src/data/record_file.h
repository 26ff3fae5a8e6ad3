// Work on an open record file that every record command shares: the first
// 20 bytes (lock byte and count) and records at their places.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "data/data_file.h"
#include "data/file_numbers.h"

namespace tamrix {

// The first 20 bytes; a file shorter than that is fault 62.
std::string ReadHead(const DataFile& file);
void WriteHead(DataFile& file, const std::string& head);
std::int32_t ReadRecordCount(const DataFile& file);

// Reads the first 20 bytes of the file under `number` until the lock byte
// is "0", letting events run between two reads, for as long as it takes.
// The file is looked up anew after events ran, as they may have closed it.
// With `take`, the byte is set to "1" and written back at once; the test
// and the set are one step for every process that uses this run-time, so
// that two of them never pass together. Gives the 20 bytes as read.
std::string WaitForLock(FileNumbers& files, int number, bool take, const std::function<void()>& letEventsRun);

std::string ReadRecordAt(const DataFile& file, std::int64_t recordLength, std::int64_t place);
void WriteRecordAt(DataFile& file, std::int64_t recordLength, std::int64_t place, const std::string& record);

}  // namespace tamrix
