#include "image/program_image.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "core/text.h"
#include "image/codec.h"
#include "image/key_table.h"
#include "separator_plain.h"

namespace tamrix {
namespace {

using Unit = std::pair<std::string, std::string>;  // name, text

// Joins at run time, so that this binary holds no whole marker either (see
// OwnBinaryHoldsNoWholeMarker).
volatile std::size_t tailOffset = 0;
std::string Glued(std::string_view head, std::string_view tail) {
  return std::string(head) + std::string(tail.substr(tailOffset));
}

long FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return fault.Number();
  }
  return 0;
}

// Fixed keys keep the blobs free of separators by chance.
std::string Encoded(std::string_view text, std::size_t index) {
  return EncodeText(text, static_cast<int>(index % kKeyCount));
}

std::string Payload(std::string_view mainText, const std::vector<Unit>& further = {}) {
  std::string payload = Encoded(mainText, 0) + std::string(kCodeEnd);
  for (std::size_t i = 0; i < further.size(); ++i) {
    payload += Encoded(further[i].first, i + 1) + std::string(kNameEnd);
    payload += Encoded(further[i].second, i + 2) + std::string(kCodeEnd);
  }
  return payload;
}

std::string Executable(std::string_view name, std::string_view payload) {
  return "\x7F" "ELF stub bytes" + StartMarker() + std::string(name) + NameEndMarker() +
         std::string(payload) + EndMarker() + std::string(name);
}

std::vector<Unit> NumberedUnits(std::size_t count) {
  std::vector<Unit> units;
  for (std::size_t i = 1; i <= count; ++i) {
    units.emplace_back("Unit" + std::to_string(i), "Text of unit " + std::to_string(i) + "\r\n");
  }
  return units;
}

TEST(ProgramImageTest, MarkersAreTheLayoutTexts) {
  EXPECT_EQ(StartMarker(), Glued("INICIO", "PROGZR"));
  EXPECT_EQ(NameEndMarker(), Glued("#FIM", "NOME"));
  EXPECT_EQ(EndMarker(), Glued("FIM", "PROGZR"));
}

// The reader searches its own file from the first byte: a marker compiled
// into the run-time would be found before the appended program.
TEST(ProgramImageTest, OwnBinaryHoldsNoWholeMarker) {
  const std::string self = ReadWholeFile("/proc/self/exe");
  for (const auto& marker : {StartMarker(), NameEndMarker(), EndMarker()}) {
    EXPECT_FALSE(Contains(self, marker)) << marker << " stands whole in this binary";
  }
  EXPECT_FALSE(ReadProgramImage(self).hasProgram);
}

TEST(ProgramImageTest, WithoutNameEndThereIsNoProgram) {
  EXPECT_FALSE(ReadProgramImage("just a stub").hasProgram);
  EXPECT_FALSE(ReadProgramImage("").hasProgram);
  EXPECT_FALSE(ReadProgramImage("stub" + StartMarker() + "ABC").hasProgram);
}

TEST(ProgramImageTest, OneUnitNeedsNoNameSeparator) {
  const auto image = ReadProgramImage(Executable("ABC", Payload("Write \"hi\"\r\n")));
  ASSERT_TRUE(image.hasProgram);
  EXPECT_EQ(image.codes[0], "Write \"hi\"\r\n");
  for (std::size_t i = 1; i < kCodeSlots; ++i) EXPECT_EQ(image.codes[i], "") << i;
  for (const auto& name : image.names) EXPECT_EQ(name, "");
  // The name comes from the payload, whatever the file is called.
  EXPECT_EQ(image.programName, "ABC.ZRC");
  EXPECT_FALSE(image.apiLibraryUsed);
}

TEST(ProgramImageTest, SevenUnitsFillCodesAndNames) {
  const auto further = NumberedUnits(6);
  const auto image = ReadProgramImage(Executable("P7", Payload("main", further)));
  EXPECT_EQ(image.codes[0], "main");
  for (std::size_t i = 1; i <= 6; ++i) {
    EXPECT_EQ(image.names[i - 1], further[i - 1].first);
    EXPECT_EQ(image.codes[i], further[i - 1].second);
  }
  EXPECT_EQ(image.names[6], "");
}

TEST(ProgramImageTest, UnitsPastTheSixthFurtherOneAreIgnored) {
  const auto image = ReadProgramImage(Executable("P9", Payload("main", NumberedUnits(8))));
  EXPECT_EQ(image.codes[6], "Text of unit 6\r\n");
  for (std::size_t i = 7; i < kCodeSlots; ++i) EXPECT_EQ(image.codes[i], "") << i;
  EXPECT_EQ(image.names[6], "");
}

TEST(ProgramImageTest, BytesAfterTheEndMarkerAreIgnored) {
  const std::string bytes = Executable("ABC", Payload("main", NumberedUnits(1)));
  const auto image = ReadProgramImage(bytes + "&~^#~^" + NameEndMarker() + "junk");
  EXPECT_EQ(image.codes[0], "main");
  EXPECT_EQ(image.codes[1], "Text of unit 1\r\n");
  EXPECT_EQ(image.codes[2], "");
}

TEST(ProgramImageTest, SeparatorInsideABlobCutsIt) {
  const std::string plain = WithEncodedSequence("abcXYZrest", 0, 3, kCodeEnd);
  const std::string blob = EncodeText(plain, 0);
  ASSERT_TRUE(Contains(blob, kCodeEnd));
  const auto image = ReadProgramImage(Executable("CUT", blob + std::string(kCodeEnd)));
  EXPECT_EQ(image.codes[0], "abc");
}

TEST(ProgramImageTest, ApiLibraryCountsInAnyCaseInUnitsZeroToSix) {
  const auto image = ReadProgramImage(
      Executable("API", Payload("main", {{"U1", "x"}, {"U2", "Use api Library now"}})));
  EXPECT_TRUE(image.apiLibraryUsed);
  std::array<std::string, kCodeSlots> codes;
  codes[0] = "APILIBRARY";
  EXPECT_FALSE(ApiLibraryUsed(codes));
  codes[7] = "API LIBRARY";
  EXPECT_FALSE(ApiLibraryUsed(codes));
  codes[6] = "api library";
  EXPECT_TRUE(ApiLibraryUsed(codes));
}

TEST(ProgramImageTest, PayloadIsSearchedByTheUpperCasedNameLessAnExtension) {
  const std::string payload = Payload("main");
  const std::string bytes = Executable("ABC", payload);
  EXPECT_EQ(SplitProgramImage(bytes, "ABC"), payload);
  EXPECT_EQ(SplitProgramImage(bytes, "abc"), payload);
  EXPECT_EQ(SplitProgramImage(bytes, "abc.exe"), payload);
  EXPECT_EQ(SplitProgramImage(bytes, "XYZ"), "");
  // "AB.C" still finds an end marker inside "AB.CDEF", but no start.
  EXPECT_EQ(SplitProgramImage(Executable("AB.CDEF", payload), "AB.CDEF"), "");
  EXPECT_EQ(SplitProgramImage(bytes.substr(0, bytes.size() - 1), "ABC"), "");
}

TEST(ProgramImageTest, DamagedLayoutsEndInTheStringCutFault) {
  const std::string payload = Payload("main");
  // The stored name no longer finds itself, so the payload is empty.
  EXPECT_EQ(FaultOf([&] { ReadProgramImage(Executable("abc", payload)); }), kInvalidCall);
  EXPECT_EQ(FaultOf([&] { ReadProgramImage(Executable("AB.CDEF", payload)); }), kInvalidCall);
  // Too short for the four characters a dot cuts off.
  EXPECT_EQ(FaultOf([&] { ReadProgramImage(Executable("A.B", payload)); }), kInvalidCall);
  EXPECT_EQ(FaultOf([&] { ReadProgramImage(Executable("ABC", "no separator")); }), kInvalidCall);
  // A further unit's name without its code separator.
  const std::string halfUnit = payload + Encoded("U1", 1) + std::string(kNameEnd) + "text";
  EXPECT_EQ(FaultOf([&] { ReadProgramImage(Executable("ABC", halfUnit)); }), kInvalidCall);
  // The name end before the start marker gives the name a negative length.
  EXPECT_EQ(FaultOf([&] { ReadProgramImage(NameEndMarker() + "stub"); }), kInvalidCall);
}

TEST(LaunchTest, OnlyNoExtensionExeOrScrMayStart) {
  for (const char* name : {"prog", "prog.exe", "PROG.EXE", "prog.scr", "Prog.Scr", ".hidden-run-x1"}) {
    EXPECT_TRUE(HasRunnableExtension(name)) << name;
  }
  for (const char* name : {"prog.bin", "prog.exe.bak", "prog.", ".hidden.tam", "prog.exe2"}) {
    EXPECT_FALSE(HasRunnableExtension(name)) << name;
  }
}

TEST(LaunchTest, ProgramPathIsTheFolderWithASlashAsALanguageText) {
  const auto own = OwnFileAt("/home/jos\xC3\xA9/My Progs/prog.bin");
  EXPECT_FALSE(own.accepted);
  EXPECT_EQ(own.path, "/home/jos\xC3\xA9/My Progs/prog.bin");
  EXPECT_EQ(own.programPath, "/home/jos\xE9/My Progs/");
  EXPECT_EQ(OwnFileAt("/prog").programPath, "/");
  EXPECT_TRUE(OwnFileAt("/opt/prog.exe").accepted);
}

TEST(LaunchTest, FixedProgramPathIsBlankPaddedAndCutAtOneHundred) {
  const std::string padded = FixedProgramPath("/opt/");
  EXPECT_EQ(padded.size(), kProgramPathWidth);
  EXPECT_EQ(Trim(padded), "/opt/");
  const std::string longPath = "/" + std::string(120, 'd') + "/";
  EXPECT_EQ(FixedProgramPath(longPath), longPath.substr(0, kProgramPathWidth));
}

TEST(LaunchTest, LocatesThisTestBinary) {
  const auto own = LocateOwnFile();
  const auto expected = std::filesystem::read_symlink("/proc/self/exe");
  EXPECT_TRUE(own.accepted);
  EXPECT_EQ(own.path, expected.string());
  EXPECT_EQ(own.programPath, expected.parent_path().string() + "/");
}

TEST(ReadWholeFileTest, ReadsEveryByteAndFaultsOnMissingFiles) {
  const auto folder = std::filesystem::temp_directory_path() /
                      ("tamrix-image-test-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder);
  std::string bytes;
  for (int round = 0; round < 300; ++round) {
    for (int b = 0; b < 256; ++b) bytes += static_cast<char>(b);
  }
  const auto file = (folder / "all-bytes").string();
  std::ofstream(file, std::ios::binary) << bytes;
  EXPECT_EQ(ReadWholeFile(file), bytes);
  EXPECT_EQ(FaultOf([&] { ReadWholeFile((folder / "missing").string()); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { ReadWholeFile(folder.string()); }), kPathFileAccessError);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tamrix
