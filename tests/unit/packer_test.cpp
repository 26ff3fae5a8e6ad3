#include "image/packer.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "core/text.h"
#include "image/key_table.h"
#include "image/program_image.h"
#include "separator_plain.h"

namespace tamrix {
namespace {

std::string RefusalOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const PackError& error) {
    return error.what();
  }
  return "";
}

std::vector<SourceUnit> SevenUnits() {
  std::vector<SourceUnit> units = {{"", "Main text\r\nEndProgram\r\n"}};
  for (int i = 1; i <= 6; ++i) {
    units.push_back({"Unit" + std::to_string(i), "Sub S" + std::to_string(i) + "()\r\nEndSub\r\n"});
  }
  return units;
}

class TempFolder {
 public:
  TempFolder()
      : path_(std::filesystem::temp_directory_path() /
              ("tamrix-packer-test-" + std::to_string(::getpid()))) {
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() { std::filesystem::remove_all(path_); }
  std::string Write(const std::string& name, const std::string& bytes) const {
    const auto file = (path_ / name).string();
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

 private:
  std::filesystem::path path_;
};

TEST(PackerTest, PackedUnitsReadBackBehindAStub) {
  const auto units = SevenUnits();
  const std::string bytes = PackExecutable("stub machine code", "HELLO", units);
  EXPECT_TRUE(StartsWith(bytes, "stub machine code" + StartMarker() + "HELLO" + NameEndMarker()));
  EXPECT_TRUE(EndsWith(bytes, EndMarker() + "HELLO"));
  const auto image = ReadProgramImage(bytes);
  ASSERT_TRUE(image.hasProgram);
  EXPECT_EQ(image.programName, "HELLO.ZRC");
  for (std::size_t i = 0; i < units.size(); ++i) EXPECT_EQ(image.codes[i], units[i].text);
  for (std::size_t i = 1; i < units.size(); ++i) EXPECT_EQ(image.names[i - 1], units[i].name);
}

// A text whose encoding under each key but `spared` holds a separator.
std::string SeparatorUnderEveryKeyBut(int spared) {
  std::string text(120, 'x');
  for (int key = 0; key < kKeyCount; ++key) {
    if (key == spared) continue;
    const auto at = static_cast<std::size_t>(10 * key + 3);
    text = WithEncodedSequence(text, key, at, key % 2 == 0 ? kCodeEnd : kNameEnd);
  }
  return text;
}

TEST(PackerTest, TakesAKeyWhoseEncodingHoldsNoSeparator) {
  const std::string text = SeparatorUnderEveryKeyBut(7);
  const std::string packed = PackProgram("SEP", {{"", "main"}, {"N", text}});
  const auto image = ReadProgramImage(packed);
  EXPECT_EQ(image.codes[1], text);
  EXPECT_EQ(image.names[0], "N");
  const std::string refusal = RefusalOf([] {
    PackProgram("SEP", {{"", SeparatorUnderEveryKeyBut(-1)}});
  });
  EXPECT_TRUE(Contains(refusal, "main unit")) << refusal;
}

TEST(PackerTest, EveryByteValueSurvivesPacking) {
  std::string text;
  for (int round = 0; round < 4; ++round) {
    for (int b = 0; b < 256; ++b) text += static_cast<char>(b);
  }
  const auto image = ReadProgramImage(PackProgram("BYTES", {{"", text}, {"\xFF&~", text}}));
  EXPECT_EQ(image.codes[0], text);
  EXPECT_EQ(image.names[0], "\xFF&~");
  EXPECT_EQ(image.codes[1], text);
}

TEST(PackerTest, RefusesBadUnitCountsNamesAndStubs) {
  EXPECT_NE(RefusalOf([] { PackProgram("A", {}); }), "");
  auto eight = SevenUnits();
  eight.push_back({"Unit7", "x"});
  EXPECT_NE(RefusalOf([&] { PackProgram("A", eight); }), "");
  EXPECT_NE(RefusalOf([] { PackProgram("abc", {{"", "x"}}); }), "");
  EXPECT_NE(RefusalOf([] { PackExecutable("old" + NameEndMarker(), "A", {{"", "x"}}); }), "");
  const std::string packed = PackExecutable("stub", "OLD", {{"", "old"}});
  EXPECT_NE(RefusalOf([&] { PackExecutable(packed, "NEW", {{"", "new"}}); }), "");
}

TEST(PackerTest, ProgramNamesAreUpperCaseBaseNamesThatCanBeStored) {
  EXPECT_EQ(ProgramNameOf("/home/ana/src/hello.tam"), "HELLO");
  EXPECT_EQ(ProgramNameOf("My_Prog-2.tam"), "MY_PROG-2");
  EXPECT_EQ(ProgramNameOf("noextension"), "NOEXTENSION");
  EXPECT_EQ(ProgramNameProblem("MY.PROG"), "holds a dot");
  EXPECT_EQ(ProgramNameProblem(""), "is empty");
  EXPECT_EQ(ProgramNameProblem("123_-"), "has no letter");
  for (const char* bad : {"my.prog.tam", ".hidden", "2024.tam", "dir/", "caf\xC3\xA9.tam",
                          "with space.tam", "hash#.tam"}) {
    EXPECT_NE(RefusalOf([&] { ProgramNameOf(bad); }), "") << bad;
  }
  EXPECT_EQ(UnitNameOf("/src/Rotinas.Extra.tam"), "Rotinas.Extra");
  EXPECT_EQ(UnitNameOf("fun\xC3\xA7\xC3\xB5" "es.tam"), "fun\xE7\xF5" "es");
}

TEST(PrepareSourceTest, LineEndsBecomeCrLfOnce) {
  EXPECT_EQ(PrepareSource("a\nb\n", "f"), "a\r\nb\r\n");
  EXPECT_EQ(PrepareSource("a\r\nb\nc", "f"), "a\r\nb\r\nc");
  EXPECT_EQ(PrepareSource("\n\n", "f"), "\r\n\r\n");
  EXPECT_EQ(PrepareSource("lone\rcr", "f"), "lone\rcr");
  EXPECT_EQ(PrepareSource("", "f"), "");
}

TEST(PrepareSourceTest, Utf8BecomesWindows1252OrIsRefusedWithItsLine) {
  EXPECT_EQ(PrepareSource("\xEF\xBB\xBFS\xC3\xA3o \xE2\x82\xAC\n", "f"), "S\xE3o \x80\r\n");
  const std::string error = RefusalOf([] { PrepareSource("ok\nok\n\xE4\xB8\xAD\n", "main.tam"); });
  EXPECT_TRUE(Contains(error, "main.tam line 3")) << error;
  // Bytes that are not UTF-8, such as a file already in Windows-1252.
  EXPECT_TRUE(Contains(RefusalOf([] { PrepareSource("caf\xE9", "x.tam"); }), "x.tam line 1"));
}

TEST(LoadSourceUnitsTest, ReadsMainAndNamesFurtherUnitsAfterTheirFiles) {
  const TempFolder folder;
  const auto main = folder.Write("hello.tam", "Write 1\n");
  const auto unit = folder.Write("Rotinas.tam", "Sub X()\nEndSub\n");
  const auto units = LoadSourceUnits({main, unit});
  ASSERT_EQ(units.size(), 2u);
  EXPECT_EQ(units[0].name, "");
  EXPECT_EQ(units[0].text, "Write 1\r\n");
  EXPECT_EQ(units[1].name, "Rotinas");
  EXPECT_EQ(units[1].text, "Sub X()\r\nEndSub\r\n");
  EXPECT_TRUE(Contains(RefusalOf([&] { LoadSourceUnits({main, main + ".missing"}); }),
                       "File not found"));
  EXPECT_NE(RefusalOf([&] { LoadSourceUnits(std::vector<std::string>(8, main)); }), "");
  EXPECT_NE(RefusalOf([] { LoadSourceUnits({}); }), "");
}

}  // namespace
}  // namespace tamrix
