// Whole programs on plain files: aliased files, folders, the file
// container and the text store.
#include <gtest/gtest.h>

#include <memory>

#include "data/file_container.h"
#include "data_test_support.h"
#include "headless_desktop.h"

namespace tamrix::testing {
namespace {

std::string Joined(const std::vector<std::string>& lines) {
  std::string out = "Var r String, p String, n Integer\r\n";
  for (const auto& line : lines) out += line + "\r\n";
  return out;
}

class FileProgramTest : public ::testing::Test {
 protected:
  void Run(const std::vector<std::string>& lines, const std::string& answers = "") {
    run = std::make_unique<ProgramRun>(answers);
    run->programPath = folder.Slash();
    run->Run(Joined(lines));
  }
  // The text of each box, without the position in front of it.
  std::vector<std::string> Messages() const {
    std::vector<std::string> out;
    for (const auto& line : run->Boxes()) {
      std::size_t at = 0;
      for (int field = 0; field < 4; ++field) at = line.find('\t', at) + 1;
      std::string text = line.substr(at, line.find('\t', at) - at);
      if (text.rfind("Editor: ", 0) == 0) text = text.substr(text.find("\\r") + 2);
      out.push_back(text);
    }
    return out;
  }
  std::string In(const std::string& name) const { return folder / name; }

  TempFolder folder;
  std::unique_ptr<ProgramRun> run;
};

TEST_F(FileProgramTest, BinaryFilesReadAndWriteAtAnyByte) {
  Run({"p = ProgramDir & \"/data.bin\"", "OpenFile B, p, binary", "WriteFile b, 1, \"Hello world\"",
       "WriteFile B, 7, \"W\"", "n = SizeFile(b)", "Write n", "r = ReadFile(B, 5, 4)", "Write \"[\", r, \"]\"",
       "r = ReadFile(B, 10, 9)", "Write \"[\", r, \"]\"", "n = CloseFile(b)", "r = ReadFile(B, 1, 1)"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"11", "[o Wo]", "[ld]"}));
  EXPECT_EQ(ReadBytes(In("data.bin")), "Hello World");
  EXPECT_EQ(Messages(), (std::vector<std::string>{"ReadFile - Alias file not found: B"}));
}

TEST_F(FileProgramTest, LinesAreReadUpToEofAndAppendedWithCrLf) {
  WriteBytes(In("in.txt"), "one\r\ntwo\nthree");
  WriteBytes(In("empty.txt"), "");
  Run({"p = ProgramDir & \"/in.txt\"", "OpenFile t, p, INPUT", "p = ProgramDir & \"/empty.txt\"",
       "OpenFile e, p, Input", "p = ProgramDir & \"/out.txt\"", "OpenFile o, p, Append", "r = ReadFile(e)",
       "Write r", "r = ReadFile(t)", "Write r", "r = ReadFile(t)", "Write r", "r = ReadFile(t)", "Write r",
       "r = ReadFile(t)", "Write r", "WriteFile o, \"first\"", "WriteFile o, \"second\"", "r = ReadFile(o)",
       "Write \"[\", r, \"]\"", "WriteFile t, \"ignored\""});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"EOF", "one", "two", "three", "EOF", "[]"}));
  EXPECT_EQ(ReadBytes(In("out.txt")), "first\r\nsecond\r\n");
  EXPECT_EQ(ReadBytes(In("in.txt")), "one\r\ntwo\nthree");
  EXPECT_TRUE(run->Boxes().empty()) << run->Boxes()[0];
}

TEST_F(FileProgramTest, TheAliasTableHasTwentyRowsAndKeepsFailedOpens) {
  std::vector<std::string> lines = {"p = ProgramDir & \"/a.txt\""};
  for (int i = 0; i < 21; ++i) lines.push_back("OpenFile A" + std::to_string(i) + ", p, APPEND");
  lines.insert(lines.end(), {"WriteFile A19, \"x\"", "WriteFile A20, \"y\"", "n = CloseFile(A0)", "n = CloseFile(a1)",
                             "OpenFile Bad, \"/no/such/folder/f\", input", "OpenFile Other, p, RANDOM",
                             "WriteFile other, \"z\"", "r = ReadFile(Bad)", "OpenFile C, p, APPEND",
                             "WriteFile C, \"z\"", "n = SizeFile(Nothing)", "n = CloseFile(Nothing)"});
  Run(lines);
  EXPECT_EQ(Messages(), (std::vector<std::string>{"WriteFile - Alias file not found: A20",
                                                  "Error in command OpenFile: Path not found",
                                                  "Error in command ReadFile: Bad file name or number",
                                                  "WriteFile - Alias file not found: C",
                                                  "SizeFile - Alias file not found: NOTHING",
                                                  "CloseFile - Alias file not found: NOTHING"}));
  EXPECT_EQ(ReadBytes(In("a.txt")), "x\r\n");
}

TEST_F(FileProgramTest, DirectoryListsMatchingFilesInNameOrder) {
  for (const char* name : {"b.txt", "A.TXT", "c.dat", "README", ".hidden.txt"}) WriteBytes(In(name), "");
  std::filesystem::create_directory(In("folder.txt"));
  Run({"p = ProgramDir & \"/*.txt\"", "r = Directory(p)", "Write r", "r = Directory()", "Write r",
       "r = Directory(\"\")", "Write \"[\", r, \"]\"", "p = ProgramDir & \"/*.*\"", "r = Directory(p)", "Write r",
       "r = Directory()", "Write r", "r = Directory()", "Write r", "r = Directory()", "Write r",
       "p = ProgramDir & \"/?.dat\"", "r = Directory(p)", "Write r", "p = ProgramDir & \"/*.none\"",
       "r = Directory(p)", "Write \"[\", r, \"]\""});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"A.TXT", "b.txt", "[]", "A.TXT", "b.txt", "c.dat", "README",
                                                      "c.dat", "[]"}));
}

TEST_F(FileProgramTest, DeleteFileTakesABareNameFromTheProgramsFolder) {
  WriteBytes(In("gone.txt"), "x");
  Run({"r = DeleteFile(\"gone.txt\")", "Write r", "r = DeleteFile(\"gone.txt\")"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{folder.Slash() + "gone.txt"}));
  EXPECT_FALSE(std::filesystem::exists(In("gone.txt")));
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Error in command DeleteFile: File not found"}));
}

TEST_F(FileProgramTest, FolderCommandsAnswerWithTheirErrorText) {
  WriteBytes(In("src.txt"), "copy me");
  Run({"p = ProgramDir & \"/sub\"", "r = MkDir(p)", "Write \"[\", r, \"]\"", "r = MkDir(p)", "Write r",
       "p = ProgramDir & \"/no/sub\"", "r = MkDir(p)", "Write r", "r = RmDir(p)", "Write r",
       "p = ProgramDir & \"/src.txt\"", "Var d String", "d = ProgramDir & \"/sub/dst.txt\"", "r = Copy(p, d)",
       "Write \"[\", r, \"]\"", "p = ProgramDir & \"/missing.txt\"", "r = Copy(p, d)", "Write r",
       "p = ProgramDir & \"/sub\"", "r = RmDir(p)", "Write r"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"[]", "Erro 75: Directory already exists or access denied!",
                                                      "Erro 76: Path not found!", "Erro 76: Path not found!", "[]",
                                                      "Error 53: File not found",
                                                      "Erro 75: Directory already exists or access denied!"}));
  EXPECT_EQ(ReadBytes(In("sub/dst.txt")), "copy me");
  EXPECT_TRUE(run->Boxes().empty()) << run->Boxes()[0];
}

TEST_F(FileProgramTest, FindFileWalksTheTreeDepthFirst) {
  std::filesystem::create_directories(In("a/deep"));
  std::filesystem::create_directories(In("b"));
  WriteBytes(In("a/deep/Target.TXT"), "");
  WriteBytes(In("b/target.txt"), "");
  Run({"r = FindFile(ProgramDir, \"target.txt\")", "Write r", "r = FindFile(ProgramDir, \"none.txt\")",
       "Write \"[\", r, \"]\""});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{folder.Slash() + "a/deep/Target.TXT", "[]"}));
}

TEST_F(FileProgramTest, TheContainerStoresFilesBehindItsDirectory) {
  WriteBytes(In("one.txt"), "first file");
  WriteBytes(In("two.bin"), std::string("\0\xFF\r\n", 4));
  Run({"p = ProgramDir & \"/box.dat\"", "InsertFile \"One\", \"one.txt\", p", "InsertFile \"two\", \"two.bin\", p",
       "r = ProgramDir & \"/out1\"", "ExtractFile \"ONE\", r, \"box.dat\"", "r = ProgramDir & \"/out2\"",
       "ExtractFile \"Two\", r, \"box.dat\""});
  EXPECT_TRUE(run->Boxes().empty()) << run->Boxes()[0];
  EXPECT_EQ(ReadBytes(In("out1")), "first file");
  EXPECT_EQ(ReadBytes(In("out2")), std::string("\0\xFF\r\n", 4));
  const std::string box = ReadBytes(In("box.dat"));
  ASSERT_EQ(box.size(), 15000u + 10 + 1 + 4);
  EXPECT_EQ(box.substr(0, 50), "One" + std::string(22, ' ') + "10        15001          ");
  EXPECT_EQ(box.substr(50, 50), "two" + std::string(22, ' ') + "4         15012          ");
  EXPECT_EQ(box[100], ' ');
  EXPECT_EQ(box.substr(15000, 10), "first file");
}

TEST_F(FileProgramTest, ContainerFailures) {
  WriteBytes(In("one.txt"), "x");
  Run({"p = ProgramDir & \"/box.dat\"", "InsertFile \"One\", \"one.txt\", p", "r = ProgramDir & \"/out\"",
       "ExtractFile \"Other\", r, \"box.dat\"", "r = ProgramDir & \"/a.txt\"", "OpenFile X, r, APPEND",
       "InsertFile \"Two\", \"one.txt\", p"});
  // After the miss both files stay open, so the next insert finds number 1 taken.
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Arquivo n\xC3\xA3o encontrado!",  // in UTF-8
                                                  "Error in command InsertFile: File already open"}));
  EXPECT_EQ(ReadBytes(In("out")), "");
}

TEST_F(FileProgramTest, AFullContainerDirectoryOverflows) {
  std::string directory;
  for (int i = 0; i < 300; ++i) directory += ContainerEntryBytes({"f" + std::to_string(i), 1, 15001 + 2 * i});
  WriteBytes(In("box.dat"), directory);
  WriteBytes(In("one.txt"), "x");
  Run({"p = ProgramDir & \"/box.dat\"", "InsertFile \"One\", \"one.txt\", p"});
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Error in command InsertFile: Overflow"}));
}

TEST_F(FileProgramTest, ContainerNumbersBeyondSixtyFourBitsOverflow) {
  // Directory texts as a damaged container may hold them.
  const auto entry = [](const std::string& name, const std::string& size, const std::string& position) {
    return name + std::string(25 - name.size(), ' ') + size + std::string(10 - size.size(), ' ') + position +
           std::string(15 - position.size(), ' ');
  };
  WriteBytes(In("one.txt"), "x");
  WriteBytes(In("far.dat"), entry("far", "9e18", "9e18"));
  Run({"p = ProgramDir & \"/far.dat\"", "InsertFile \"One\", \"one.txt\", p"});
  EXPECT_EQ(Messages(), (std::vector<std::string>{"Error in command InsertFile: Overflow"}));
  WriteBytes(In("huge.dat"), entry("huge", "1e300", "15001"));
  WriteBytes(In("before.dat"), entry("before", "1", "-9.3e18"));
  for (const std::string name : {"huge", "before"}) {
    Run({"r = ProgramDir & \"/out\"", "ExtractFile \"" + name + "\", r, \"" + name + ".dat\""});
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Error in command ExtractFile: Overflow"})) << name;
  }
}

TEST_F(FileProgramTest, TheTextStoreFindsKeysByTheirBeginning) {
  Run({"SaveString \"color\", \"blue\"", "SaveString \"size\", \"\"", "SaveString \"color\", \"red\"",
       "r = GetString(\"color\")", "Write r", "r = GetString(\"col\")", "Write r", "r = GetString(\"size\")",
       "Write \"[\", r, \"]\"", "r = GetString(\"none\")", "Write \"[\", r, \"]\""});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"red", "red", "[]", "[]"}));
  // Key and value complemented byte by byte between plain marks; the old
  // content's tail stays behind a shorter one.
  const std::string bytes = ReadBytes(In("ZR.File"));
  std::string color;
  for (char c : std::string("color")) color += static_cast<char>(255 - static_cast<unsigned char>(c));
  EXPECT_EQ(bytes.substr(0, 2 + color.size()), "#!" + color);
  EXPECT_EQ(bytes.size(), std::string("#!color#@blue#$#!size#@#$").size());

  // Once read, the cache stays: a change by another program isn't seen.
  Run({"r = GetString(\"color\")", "Write r", "SaveString \"x\", \"y\"", "r = GetString(\"color\")", "Write r"});
  WriteBytes(In("ZR.File"), "");
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"red", "red"}));
}

}  // namespace
}  // namespace tamrix::testing
