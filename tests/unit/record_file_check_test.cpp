// The check of tamrix-db on sound and damaged record files.
#include <gtest/gtest.h>

#include <functional>

#include "data/data_file.h"
#include "data/record_file_check.h"
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
  // A record written at the count's position is worth a note only.
  const CheckResult longer = Check(folder, SoundFile() + std::string(kLength, ' '));
  EXPECT_TRUE(longer.problems.empty());
  EXPECT_EQ(longer.notes.size(), 1u);
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
      {"missing record", [](std::string& b) { b.resize(b.size() - kLength); }, "the count of 3 records needs"},
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
