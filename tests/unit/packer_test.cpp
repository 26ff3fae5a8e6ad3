#include "image/packer.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/text.h"
#include "image/key_table.h"
#include "image/program_image.h"
#include "image_test_support.h"

namespace tamrix {
namespace {

// The message of the PackError that `action` ends in, or "".
std::string RefusalOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const PackError& error) {
    return error.what();
  }
  return "";
}

// A text whose encoding under every key but `spared` holds a separator.
std::string SeparatorUnderEveryKeyBut(int spared) {
  std::string text(120, 'x');
  for (int key = 0; key < kKeyCount; ++key) {
    if (key == spared) continue;
    const auto at = static_cast<std::size_t>(10 * key + 3);
    text = WithEncodedSequence(text, key, at, key % 2 == 0 ? kCodeEnd : kNameEnd);
  }
  return text;
}

TEST(PackerTest, PackedUnitsReadBackBehindAStub) {
  std::string everyByte;
  for (int b = 0; b < 4 * 256; ++b) everyByte += static_cast<char>(b % 256);
  std::vector<SourceUnit> units = {{"", "Main\r\n"}};
  for (int i = 1; i <= 6; ++i) units.push_back({"Unit" + std::to_string(i), everyByte});
  const std::string bytes = PackExecutable("stub code", "HELLO", units);
  EXPECT_TRUE(StartsWith(bytes, "stub code" + StartMarker() + "HELLO" + NameEndMarker()));
  EXPECT_TRUE(EndsWith(bytes, EndMarker() + "HELLO"));
  const auto image = ReadProgramImage(bytes);
  EXPECT_EQ(image.programName, "HELLO.ZRC");
  for (std::size_t i = 0; i < units.size(); ++i) EXPECT_EQ(image.codes[i], units[i].text);
  for (std::size_t i = 1; i < units.size(); ++i) EXPECT_EQ(image.names[i - 1], units[i].name);
}

TEST(PackerTest, TakesAKeyWhoseEncodingHoldsNoSeparator) {
  const std::string text = SeparatorUnderEveryKeyBut(7);
  const auto image = ReadProgramImage(PackProgram("SEP", {{"", "main"}, {"N", text}}));
  EXPECT_EQ(image.codes[1], text);
  EXPECT_EQ(image.names[0], "N");
  const auto refusal = RefusalOf([] { PackProgram("SEP", {{"", SeparatorUnderEveryKeyBut(-1)}}); });
  EXPECT_TRUE(Contains(refusal, "main unit")) << refusal;
}

TEST(PackerTest, RefusesBadUnitCountsNamesAndStubs) {
  EXPECT_NE(RefusalOf([] { PackProgram("A", {}); }), "");
  EXPECT_NE(RefusalOf([] { PackProgram("A", std::vector<SourceUnit>(8, {"U", "x"})); }), "");
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
  for (const char* bad :
       {"my.prog.tam", ".hidden", "dir/", "caf\xC3\xA9.tam", "a b.tam", "a#.tam"}) {
    EXPECT_NE(RefusalOf([&] { ProgramNameOf(bad); }), "") << bad;
  }
  EXPECT_EQ(UnitNameOf("/src/Rotinas.Extra.tam"), "Rotinas.Extra");
  EXPECT_EQ(UnitNameOf("fun\xC3\xA7\xC3\xB5" "es.tam"), "fun\xE7\xF5" "es");
}

TEST(ConvertSourceFileTest, LineEndsBecomeCrLfOnce) {
  EXPECT_EQ(ConvertSourceFile("a\nb\n", "f"), "a\r\nb\r\n");
  EXPECT_EQ(ConvertSourceFile("a\r\nb\nc", "f"), "a\r\nb\r\nc");
  EXPECT_EQ(ConvertSourceFile("\n\r\n", "f"), "\r\n\r\n");
  EXPECT_EQ(ConvertSourceFile("lone\rcr", "f"), "lone\rcr");
}

TEST(ConvertSourceFileTest, Utf8BecomesWindows1252OrIsRefusedWithItsLine) {
  EXPECT_EQ(ConvertSourceFile("\xEF\xBB\xBFS\xC3\xA3o \xE2\x82\xAC\n", "f"), "S\xE3o \x80\r\n");
  const auto refusal = RefusalOf([] { ConvertSourceFile("ok\nok\n\xE4\xB8\xAD\n", "main.tam"); });
  EXPECT_TRUE(Contains(refusal, "main.tam line 3")) << refusal;
  // Not UTF-8 at all, such as a file already in Windows-1252.
  EXPECT_TRUE(Contains(RefusalOf([] { ConvertSourceFile("caf\xE9", "x.tam"); }), "x.tam line 1"));
}

TEST(LoadSourceUnitsTest, ReadsMainAndNamesFurtherUnitsAfterTheirFiles) {
  const ScratchFolder folder;
  const auto main = folder.Write("hello.tam", "Write 1\n");
  const auto units = LoadSourceUnits({main, folder.Write("Rotinas.tam", "Sub X()\n")});
  ASSERT_EQ(units.size(), 2u);
  EXPECT_EQ(units[0].name, "");
  EXPECT_EQ(units[0].text, "Write 1\r\n");
  EXPECT_EQ(units[1].name, "Rotinas");
  EXPECT_EQ(units[1].text, "Sub X()\r\n");
  EXPECT_TRUE(Contains(RefusalOf([&] { LoadSourceUnits({main, folder.Path("gone.tam")}); }),
                       "File not found"));
  EXPECT_NE(RefusalOf([&] { LoadSourceUnits(std::vector<std::string>(8, main)); }), "");
}

}  // namespace
}  // namespace tamrix
