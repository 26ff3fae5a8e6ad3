// tamrix-db: shows, checks and repairs a record file (".Zrf") with the
// run-time's own reading of the format.
//
//   tamrix-db dump FILE    the header, the fields and every record as text
//   tamrix-db check FILE   exit status 0 when the file is sound, 1 if not
//   tamrix-db repair FILE  frees the lock byte and sets the count to the
//                          records present, after a backup copy; status 1
//                          when it refuses
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>

#include "core/codepage.h"
#include "core/fault.h"
#include "data/data_file.h"
#include "data/record_file.h"
#include "data/record_file_check.h"
#include "data/record_file_repair.h"
#include "data/record_layout.h"

namespace {

using namespace tamrix;

// Texts of the file are Windows-1252; the terminal takes UTF-8.
void Print(const std::string& text) { std::printf("%s\n", Cp1252ToUtf8(text).c_str()); }

int Dump(const DataFile& file) {
  DumpRecordFile(file, Print);
  return 0;
}

int Check(const DataFile& file, const std::string& name) {
  const CheckResult result = CheckRecordFile(file);
  for (const auto& note : result.notes) Print(name + ": note: " + note);
  for (const auto& problem : result.problems) Print(name + ": " + problem);
  if (!result.problems.empty()) return 1;
  const std::int32_t count = ReadRecordCount(file);
  Print(name + ": ok, " + std::to_string(count) + " records, " + std::to_string(result.deleted) + " deleted");
  return 0;
}

int Repair(const std::string& name) {
  const RepairResult result = RepairRecordFile(name);
  if (result.refused) {
    Print(name + ": not repaired: " + result.reason);
    return 1;
  }
  if (result.done.empty()) {
    Print(name + ": nothing to repair");
    return 0;
  }
  Print(name + ": backup in " + result.backup);
  for (const auto& change : result.done) Print(name + ": " + change);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string command = argc == 3 ? argv[1] : "";
  if (command != "dump" && command != "check" && command != "repair") {
    std::fprintf(stderr, "usage: tamrix-db dump FILE\n       tamrix-db check FILE\n       tamrix-db repair FILE\n");
    return 2;
  }
  const std::string name = argv[2];
  try {
    if (command == "repair") return Repair(Utf8ToCp1252Lossy(name));
    const auto file = DataFile::Open(Utf8ToCp1252Lossy(name), FileMode::Input);
    return command == "dump" ? Dump(*file) : Check(*file, Utf8ToCp1252Lossy(name));
  } catch (const RuntimeFault& fault) {
    std::printf("%s: %s\n", name.c_str(), fault.Description().c_str());
    return 1;
  } catch (const std::exception& error) {
    std::printf("%s: %s\n", name.c_str(), error.what());
    return 1;
  }
}
