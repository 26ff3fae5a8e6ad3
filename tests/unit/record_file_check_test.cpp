// The check and the repair of tamrix-db on sound and damaged record files.
#include <gtest/gtest.h>

#include <functional>

#include "data/data_file.h"
#include "data/record_file_check.h"
#include "data/record_file_repair.h"
#include "data/record_file.h"
#include "data/record_layout.h"
#include "data/scrambled_value.h"
#include "data_test_support.h"

namespace tamrix::testing {
namespace {

constexpr int kLength = 9 + 15;  // Id Integer, Nome String 10

// A file of three records, the second deleted.
std::string SoundFile() {
  HeaderContent content{"Pessoas", kLength, "01/01/2024 00:00:00", "", {}};
  content.fields = {{"Id", "", "Integer", 9, 1}, {"Nome", "", "String", 15, 10}};
  std::string bytes = BuildHeader(content);
  PutArea(bytes, zrf::kPrepared, "02/01/2024 00:00:00");
  PutCount(bytes, 3);
  bytes.resize(19999);
  for (int r = 0; r < 3; ++r) {
    std::string record(kLength, ' ');
    PutField(record, content.fields[0], ScrambleValue(r == 1 ? std::string("#") : IntegerBytes(r)));
    if (r != 1) PutField(record, content.fields[1], ScrambleValue("name " + std::to_string(r)));
    bytes += record;
  }
  return bytes;
}

CheckResult Check(const TempFolder& folder, const std::string& bytes) {
  const std::string path = folder / "Pessoas.Zrf";
  WriteBytes(path, bytes);
  return CheckRecordFile(*DataFile::Open(path, FileMode::Input));
}

TEST(RecordFileCheckTest, ASoundFilePasses) {
  TempFolder folder;
  const CheckResult result = Check(folder, SoundFile());
  EXPECT_TRUE(result.problems.empty()) << result.problems[0];
  EXPECT_TRUE(result.notes.empty());
  EXPECT_EQ(result.deleted, 1);
}

// A taken lock byte and a count that is not the number of records are
// problems of their own, and the records that stand in the file are still
// checked.
TEST(RecordFileCheckTest, ALockOrACountOutOfStepIsAProblemOfItsOwn) {
  TempFolder folder;
  std::string locked = SoundFile();
  locked[0] = '1';
  EXPECT_EQ(Check(folder, locked).problems,
            std::vector<std::string>{"the lock byte is \"1\", not \"0\": every record command waits for it"});
  std::string ahead = SoundFile();
  PutCount(ahead, 4);
  ahead[19999 + 4] = ' ';  // record 0 is damaged too
  const CheckResult aheadResult = Check(folder, ahead);
  ASSERT_EQ(aheadResult.problems.size(), 2u);
  EXPECT_EQ(aheadResult.problems[0], "the count runs ahead of the data: it says 4 records, the file holds 3");
  EXPECT_EQ(aheadResult.problems[1].rfind("record 0, field Id:", 0), 0u);
  const CheckResult behind = Check(folder, SoundFile() + std::string(kLength, ' '));
  ASSERT_EQ(behind.problems.size(), 1u);
  EXPECT_EQ(behind.problems[0].rfind("the count is behind the data: it says 3 records, the file holds 4", 0), 0u);
}

struct Damage {
  const char* name;
  std::function<void(std::string&)> apply;
  const char* problem;  // the start of the first problem
};

TEST(RecordFileCheckTest, DamageIsFoundAndNamed) {
  const Damage damages[] = {
      {"busy lock", [](std::string& b) { b[0] = '1'; }, "the lock byte is \"1\""},
      {"short header", [](std::string& b) { b.resize(12000); }, "header: the file is shorter"},
      {"missing record", [](std::string& b) { b.resize(b.size() - kLength); }, "the count runs ahead of the data"},
      {"stray bytes", [](std::string& b) { b += "xy"; }, "2 bytes behind the last record"},
      {"count text", [](std::string& b) { PutArea(b, zrf::kCount, "three"); }, "record count: Type mismatch"},
      {"record length", [](std::string& b) { PutArea(b, zrf::kRecordLength, "25"); }, "the record length is 25"},
      {"key byte", [](std::string& b) { b[19999 + 2 * kLength + 4] = ' '; }, "record 2, field Id: key byte outside"},
      {"value length", [](std::string& b) { b[19999 + 9] = 40; }, "record 0, field Nome: value runs past"},
      {"no end mark", [](std::string& b) { PutArea(b, zrf::FieldNameArea(2), "Extra"); }, "field list:"},
      {"records of no bytes",
       [](std::string& b) {
         PutArea(b, zrf::kRecordLength, "0");
         PutArea(b, zrf::FieldSizeArea(0), "-5");
         PutArea(b, zrf::FieldSizeArea(1), "-5");
         b.resize(zrf::kHeaderSize);
       },
       "records of 0 bytes: none of them can be read"},
  };
  TempFolder folder;
  for (const auto& damage : damages) {
    std::string bytes = SoundFile();
    damage.apply(bytes);
    const CheckResult result = Check(folder, bytes);
    ASSERT_FALSE(result.problems.empty()) << damage.name;
    EXPECT_EQ(result.problems[0].rfind(damage.problem, 0), 0u) << damage.name << ": " << result.problems[0];
  }
}

TEST(RecordFileCheckTest, TheListOfProblemsEndsAtAHundred) {
  // The three records, then 57 of blanks whose two fields both fail.
  std::string bytes = SoundFile();
  PutCount(bytes, 60);
  bytes.resize(19999 + 60 * kLength, ' ');
  TempFolder folder;
  const CheckResult result = Check(folder, bytes);
  EXPECT_EQ(result.problems.size(), 100u);
  ASSERT_EQ(result.notes.size(), 1u);
  EXPECT_EQ(result.notes[0], "records from 53 on are not checked: 100 problems are listed");
}

struct RepairCase {
  const char* name;
  std::function<void(std::string&)> damage;
  std::vector<std::string> done;
  std::int32_t count;  // after the repair
};

TEST(RecordFileRepairTest, FreesTheLockAndCountsTheRecordsPresentAfterABackup) {
  const RepairCase cases[] = {
      {"lock taken", [](std::string& b) { b[0] = '1'; }, {"the lock byte \"1\" is freed"}, 3},
      {"count ahead",
       [](std::string& b) {
         b[0] = '1';
         PutCount(b, 999999);
       },
       {"the lock byte \"1\" is freed", "the count 999999 is set to the 3 records the file holds"},
       3},
      {"count behind", [](std::string& b) { PutCount(b, 1); }, {"the count 1 is set to the 3 records the file holds"}, 3},
      {"record cut short",
       [](std::string& b) {
         PutCount(b, 3);
         b += std::string(kLength / 2, 'x');
       },
       {"the 12 bytes of a record cut short are removed"},
       3},
      {"every record cut short",
       [](std::string& b) { b.resize(19999 + kLength - 1); },
       {"the count 3 is set to the 0 records the file holds", "the 22 bytes of a record cut short are removed"},
       0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TempFolder folder;
    std::string bytes = SoundFile();
    c.damage(bytes);
    const std::string path = folder / "Pessoas.Zrf";
    WriteBytes(path, bytes);
    EXPECT_FALSE(CheckRecordFile(*DataFile::Open(path, FileMode::Input)).problems.empty());

    const RepairResult result = RepairRecordFile(path);
    EXPECT_FALSE(result.refused) << result.reason;
    EXPECT_EQ(result.done, c.done);
    EXPECT_EQ(result.backup, path + ".bak");
    EXPECT_EQ(ReadBytes(path + ".bak"), bytes);
    const CheckResult after = CheckRecordFile(*DataFile::Open(path, FileMode::Input));
    EXPECT_TRUE(after.problems.empty()) << after.problems[0];
    EXPECT_EQ(ReadRecordCount(*DataFile::Open(path, FileMode::Input)), c.count);
  }
}

TEST(RecordFileRepairTest, LeavesASoundFileAloneAndKeepsEarlierBackups) {
  TempFolder folder;
  const std::string path = folder / "Pessoas.Zrf";
  WriteBytes(path, SoundFile());
  const RepairResult sound = RepairRecordFile(path);
  EXPECT_FALSE(sound.refused);
  EXPECT_TRUE(sound.done.empty());
  EXPECT_FALSE(std::filesystem::exists(path + ".bak"));

  std::string locked = SoundFile();
  locked[0] = '1';
  WriteBytes(path, locked);
  WriteBytes(path + ".bak", "older");
  EXPECT_EQ(RepairRecordFile(path).backup, path + ".bak2");
  EXPECT_EQ(ReadBytes(path + ".bak"), "older");
}

// A program that has the file open holds its in-use mark: it may be adding,
// and a repair would roll its count back.
TEST(RecordFileRepairTest, RefusesWhileAProgramHasTheFileOpen) {
  TempFolder folder;
  const std::string path = folder / "Pessoas.Zrf";
  std::string locked = SoundFile();
  locked[0] = '1';
  WriteBytes(path, locked);
  {
    const auto program = DataFile::Open(path, FileMode::Binary);
    program->MarkInUse();
    const RepairResult result = RepairRecordFile(path);
    EXPECT_TRUE(result.refused);
    EXPECT_EQ(ReadBytes(path), locked);
    EXPECT_FALSE(std::filesystem::exists(path + ".bak"));
  }
  EXPECT_FALSE(RepairRecordFile(path).refused);
  EXPECT_TRUE(RepairRecordFile(folder / "Missing.Zrf").refused);
  WriteBytes(path, "short");
  EXPECT_TRUE(RepairRecordFile(path).refused);
}

// A header that claims 999,999 records, the most it can hold: the damage is told once
// and only the three records that stand in the file are shown.
TEST(RecordFileDumpTest, ACountPastTheFileIsToldOnce) {
  TempFolder folder;
  std::string bytes = SoundFile();
  PutCount(bytes, 999999);
  const std::string path = folder / "Pessoas.Zrf";
  WriteBytes(path, bytes);
  std::vector<std::string> lines;
  DumpRecordFile(*DataFile::Open(path, FileMode::Input), [&](const std::string& line) {
    if (lines.size() < 100) lines.push_back(line);
  });
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_EQ(lines[1], "records: 999999");
  EXPECT_EQ(lines[10], "damage: the count says 999999 records, the file holds 3; only those are shown");
  EXPECT_EQ(lines[11], "record 0: Id=0 Nome=\"name 0\"");
  EXPECT_EQ(lines[12], "record 1: deleted");
}

TEST(RecordFileCheckTest, ValuesReadAsText) {
  const RecordField number{"N", "", "Decimal", 13, 1};
  std::string record(13, ' ');
  PutField(record, number, ScrambleValue(DecimalBytes(-2.5)));
  EXPECT_EQ(DescribeValue(number, record).text, "-2.5");
  PutField(record, number, ScrambleValue("abc"));
  EXPECT_FALSE(DescribeValue(number, record).readable);
}

}  // namespace
}  // namespace tamrix::testing
