// Arbitrary bytes as a record file: through the check of "tamrix-db check",
// then, each time on a fresh copy, through programs that open the file and
// read it with the record commands. The seeds in fuzz/seeds/record_file
// were written by the declaration below.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "data/data_file.h"
#include "data/record_file.h"
#include "data/record_file_check.h"
#include "fuzz_limits.h"
#include "scratch_folder.h"

namespace {

using tamrix::testing::Lines;

const std::string kDeclaration = Lines({"Var r String, n Integer, i Integer", "DB Fuzz, ProgramDir, \"key\"",
                                        "Id, AutoInc", "Nome, String, 20", "Idade, Integer", "Saldo, Decimal",
                                        "EndDB", "OpenDB Fuzz, \"key\"", ""});

const std::string kPrograms[] = {
    // Every record in the file's order.
    Lines({"n = TotalRecordsDB(Fuzz)", "i = 0", "While i < n", "r = ReadRecord(Fuzz, i)", "i++", "Loop"}),
    // Ordered by two keys, searched, and read in that order.
    Lines({"OrderDB Fuzz, Nome, Idade", "n = FindDB(Fuzz, \"FIRST\", \"a\")", "n = FindDB(Fuzz, \"LAST\", \"Ana\")",
           "n = FindDB(Fuzz, \"NEXT\", \"B\", 3)", "n = FindDB(Fuzz, \"ANY\", \"Bruno\")", "i = 0", "While i < 5",
           "r = ReadRecord(Fuzz, i)", "i++", "Loop"}),
    // Changed in place, compacted and read again, then changed in order
    // (where an update ends the program by design).
    Lines({"Fuzz.Nome = \"Zeca\"", "Fuzz.Idade = 7", "Fuzz.Saldo = 1.5", "AddRecord Fuzz", "UpdateRecord Fuzz, 0",
           "DeleteRecord Fuzz, 1", "CloseDB Fuzz", "CompactDB Fuzz", "OpenDB Fuzz, \"key\"",
           "n = TotalRecordsDB(Fuzz)", "r = ReadRecord(Fuzz, 0)", "OrderDB Fuzz, Nome", "AddRecord Fuzz",
           "DeleteRecord Fuzz, 1", "UpdateRecord Fuzz, 0"}),
};

void CheckAsTheToolDoes(const std::string& path) {
  try {
    const auto file = tamrix::DataFile::Open(path, tamrix::FileMode::Input);
    if (tamrix::CheckRecordFile(*file).problems.empty()) tamrix::ReadRecordCount(*file);
  } catch (const tamrix::RuntimeFault&) {
    // A file that can't be read is reported by the tool, not a failure.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tamrix::fuzzing::ScratchFolder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  folder.Empty();
  CheckAsTheToolDoes(folder.Write("Fuzz.Zrf", bytes));
  for (const std::string& program : kPrograms) {
    folder.Empty();
    folder.Write("Fuzz.Zrf", bytes);
    tamrix::fuzzing::LimitedRun run;
    run.programPath = folder.Slash();
    run.Guarded([&] { run.Run(kDeclaration + program); });
  }
  return 0;
}
