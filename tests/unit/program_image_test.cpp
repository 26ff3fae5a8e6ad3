#include "image/program_image.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "core/text.h"
#include "image/codec.h"
#include "image_test_support.h"

namespace tamrix {
namespace {

// Joined at run time, so that this binary holds no whole marker either (see
// OwnBinaryHoldsNoWholeMarker).
volatile std::size_t tailOffset = 0;
std::string Glued(std::string_view head, std::string_view tail) {
  return std::string(head) + std::string(tail.substr(tailOffset));
}

// Unit 0 is "main"; further unit i is named "Ui" and holds "text i". Fixed
// keys keep separators out of the blobs.
std::string Payload(std::size_t furtherUnits) {
  std::string payload = EncodeText("main", 0) + std::string(kCodeEnd);
  for (std::size_t i = 1; i <= furtherUnits; ++i) {
    const int key = static_cast<int>(i % kKeyCount);
    payload += EncodeText("U" + std::to_string(i), key) + std::string(kNameEnd);
    payload += EncodeText("text " + std::to_string(i), key) + std::string(kCodeEnd);
  }
  return payload;
}

std::string Executable(std::string_view name, std::string_view payload) {
  return "\x7F" "ELF stub" + StartMarker() + std::string(name) + NameEndMarker() +
         std::string(payload) + EndMarker() + std::string(name);
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
  EXPECT_FALSE(ReadProgramImage("").hasProgram);
  EXPECT_FALSE(ReadProgramImage("stub" + StartMarker() + "ABC").hasProgram);
}

TEST(ProgramImageTest, OneUnitNeedsNoNameSeparator) {
  const auto image = ReadProgramImage(Executable("ABC", Payload(0)));
  ASSERT_TRUE(image.hasProgram);
  EXPECT_EQ(image.codes[0], "main");
  for (std::size_t i = 1; i < kCodeSlots; ++i) EXPECT_EQ(image.codes[i], "") << i;
  for (const auto& name : image.names) EXPECT_EQ(name, "");
  EXPECT_EQ(image.programName, "ABC.ZRC");  // from the payload, whatever the file's name
  EXPECT_FALSE(image.apiLibraryUsed);
}

TEST(ProgramImageTest, SixFurtherUnitsAtMostAndNothingAfterTheEnd) {
  for (std::size_t further : {6u, 8u}) {
    const auto image = ReadProgramImage(Executable("P", Payload(further)) + "&~^#~^junk");
    for (std::size_t i = 1; i <= 6; ++i) {
      EXPECT_EQ(image.names[i - 1], "U" + std::to_string(i));
      EXPECT_EQ(image.codes[i], "text " + std::to_string(i));
    }
    for (std::size_t i = 7; i < kCodeSlots; ++i) EXPECT_EQ(image.codes[i], "") << i;
    EXPECT_EQ(image.names[6], "");
  }
}

TEST(ProgramImageTest, SeparatorInsideABlobCutsIt) {
  const std::string blob = EncodeText(WithEncodedSequence("abcXYZrest", 0, 3, kCodeEnd), 0);
  ASSERT_TRUE(Contains(blob, kCodeEnd));
  EXPECT_EQ(ReadProgramImage(Executable("CUT", blob + std::string(kCodeEnd))).codes[0], "abc");
}

TEST(ProgramImageTest, ApiLibraryCountsInAnyCaseInUnitsZeroToSix) {
  std::array<std::string, kCodeSlots> codes;
  codes[0] = "APILIBRARY";
  codes[7] = "API LIBRARY";
  EXPECT_FALSE(ApiLibraryUsed(codes));
  codes[6] = "use Api Library";
  EXPECT_TRUE(ApiLibraryUsed(codes));
}

TEST(ProgramImageTest, PayloadIsSearchedByTheUpperCasedNameLessAnExtension) {
  const std::string payload = Payload(1);
  const std::string bytes = Executable("ABC", payload);
  EXPECT_EQ(SplitProgramImage(bytes, "abc"), payload);
  EXPECT_EQ(SplitProgramImage(bytes, "abc.exe"), payload);
  EXPECT_EQ(SplitProgramImage(bytes, "XYZ"), "");
  EXPECT_EQ(SplitProgramImage(bytes.substr(0, bytes.size() - 1), "ABC"), "");
  // "AB.C" still finds an end marker inside "AB.CDEF", but no start.
  EXPECT_EQ(SplitProgramImage(Executable("AB.CDEF", payload), "AB.CDEF"), "");
}

TEST(ProgramImageTest, DamagedLayoutsEndInTheStringCutFault) {
  const std::string payload = Payload(0);
  const std::vector<std::string> damaged = {
      Executable("abc", payload),      // lower case: the upper-cased name is not found
      Executable("AB.CDEF", payload),  // a dot: the cut name is not found
      Executable("A.B", payload),      // too short for the four characters a dot cuts
      Executable("ABC", "no separator"),
      Executable("ABC", payload + EncodeText("U1", 1) + std::string(kNameEnd) + "no separator"),
      NameEndMarker() + "before any start",  // a negative name length
  };
  for (const auto& bytes : damaged) {
    EXPECT_EQ(FaultOf([&] { ReadProgramImage(bytes); }), kInvalidCall) << bytes;
  }
}

TEST(LaunchTest, OnlyNoExtensionExeOrScrMayStart) {
  for (const char* name : {"prog", "prog.exe", "PROG.EXE", "prog.Scr", ".hidden-run-x1"}) {
    EXPECT_TRUE(HasRunnableExtension(name)) << name;
  }
  for (const char* name : {"prog.bin", "prog.exe.bak", "prog.", ".hidden.tam"}) {
    EXPECT_FALSE(HasRunnableExtension(name)) << name;
  }
}

TEST(LaunchTest, ProgramPathIsTheFolderAndASlashAsALanguageText) {
  const auto own = OwnFileAt("/home/jos\xC3\xA9/My Progs/prog.bin");
  EXPECT_FALSE(own.accepted);
  EXPECT_EQ(own.programPath, "/home/jos\xE9/My Progs/");
  EXPECT_EQ(OwnFileAt("/prog").programPath, "/");

  const auto self = LocateOwnFile();
  const auto expected = std::filesystem::read_symlink("/proc/self/exe");
  EXPECT_TRUE(self.accepted);
  EXPECT_EQ(self.path, expected.string());
  EXPECT_EQ(self.programPath, expected.parent_path().string() + "/");

  EXPECT_EQ(FixedProgramPath("/opt/"), "/opt/" + std::string(95, ' '));
  const std::string longPath = "/" + std::string(120, 'd') + "/";
  EXPECT_EQ(FixedProgramPath(longPath), longPath.substr(0, kProgramPathWidth));
}

TEST(ReadWholeFileTest, ReadsEveryByteAndFaultsOnWhatIsNoFile) {
  const ScratchFolder folder;
  std::string bytes;
  for (int b = 0; b < 300 * 256; ++b) bytes += static_cast<char>(b % 256);  // several reads
  EXPECT_EQ(ReadWholeFile(folder.Write("all-bytes", bytes)), bytes);
  EXPECT_EQ(FaultOf([&] { ReadWholeFile(folder.Path("missing")); }), kFileNotFound);
  EXPECT_EQ(FaultOf([&] { ReadWholeFile(folder.Path("")); }), kPathFileAccessError);
}

}  // namespace
}  // namespace tamrix
