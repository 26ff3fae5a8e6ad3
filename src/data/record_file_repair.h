// The way out of a record file left locked or miscounted, by programs that
// shared it or by one that was killed while it added a record.
#pragma once

#include <string>
#include <vector>

namespace tamrix {

struct RepairResult {
  bool refused = false;
  std::string reason;               // why nothing was done, when refused
  std::string backup;               // the copy taken before the first change
  std::vector<std::string> done;    // one line per change
};

// Frees the lock byte, sets the count to the whole records the file holds
// and cuts a record cut short behind them, after copying the file to a
// backup beside it. Refuses while a program has the file open, since it may
// be adding, and when the header can't be read. A sound file is left alone.
RepairResult RepairRecordFile(const std::string& languagePath);

}  // namespace tamrix
