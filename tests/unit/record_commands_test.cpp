// Whole programs on record files: the DB block, the record commands, the
// order and the search, compaction, and the failures that end a program.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "core/regional.h"
#include "data/record_layout.h"
#include "data/scrambled_value.h"
#include "data_test_support.h"
#include "headless_desktop.h"
#include "library_test_support.h"

namespace tamrix::testing {
namespace {

// Agenda: Nome String 20 (width 25), Idade Integer (9), Saldo Decimal (13).
constexpr int kAgendaLength = 47;
const std::vector<std::string> kAgenda = {
    "Var r String, n Integer", "DB Agenda, ProgramDir", "Nome, String, 20", "Idade, Integer", "Saldo, Decimal",
    "EndDB", "OpenDB Agenda, \"\""};

std::string Joined(const std::vector<std::string>& lines) {
  std::string out;
  for (const auto& line : lines) out += line + "\r\n";
  return out;
}

// The text field of each box line, with "\r" as the trace writes it.
std::vector<std::string> BoxTexts(const ProgramRun& run) {
  std::vector<std::string> texts;
  for (const auto& line : run.Boxes()) {
    std::size_t at = 0;
    for (int field = 0; field < 4; ++field) at = line.find('\t', at) + 1;
    texts.push_back(line.substr(at, line.find('\t', at) - at));
  }
  return texts;
}

// Texts of the boxes without the "Editor: 0 Line: n\r" in front.
std::vector<std::string> Messages(const ProgramRun& run) {
  std::vector<std::string> out;
  for (auto text : BoxTexts(run)) {
    if (text.rfind("Editor: ", 0) == 0) text = text.substr(text.find("\\r") + 2);
    out.push_back(text);
  }
  return out;
}

class RecordProgramTest : public ::testing::Test {
 protected:
  // Runs the Agenda declaration and then `body`; gives the exit status.
  int Run(const std::vector<std::string>& body, const std::string& answers = "", bool declare = true) {
    std::vector<std::string> lines = declare ? kAgenda : std::vector<std::string>();
    lines.insert(lines.end(), body.begin(), body.end());
    run = std::make_unique<ProgramRun>(answers);
    run->programPath = folder.Slash();
    run->desktop.onPump = onPump;
    return run->Run(Joined(lines));
  }
  std::string File() const { return folder / "Agenda.Zrf"; }
  std::string Head() const { return ReadBytes(File()).substr(0, 20); }

  TempFolder folder;
  std::unique_ptr<ProgramRun> run;
  std::function<void()> onPump;  // each time the program lets events run
};

TEST_F(RecordProgramTest, AddedRecordsReadBackIntoTheFieldVariables) {
  Run({"Agenda.Nome = \"Ana\"", "Agenda.Idade = 30", "Agenda.Saldo = 2.5", "AddRecord Agenda",
       "Agenda.Nome = \"Bruno\"", "Agenda.Idade = 41.5", "AddRecord Agenda", "Agenda.Nome = \"x\"",
       "r = ReadRecord(Agenda, 1)", "Write r", "Write Agenda.Nome, \"/\", Agenda.Idade, \"/\", Agenda.Saldo",
       "n = TotalRecordsDB(Agenda)", "Write n"});
  // Each column is its field's width: five more than the declared size.
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"Bruno" + std::string(20, ' ') + "42" + std::string(7, ' ') +
                                                          "2.5" + std::string(10, ' '),
                                                      "Bruno/42/2.5", "2"}));
  EXPECT_TRUE(run->Boxes().empty()) << run->Boxes()[0];
  const std::string bytes = ReadBytes(File());
  ASSERT_EQ(bytes.size(), 19999u + 2 * kAgendaLength);
  EXPECT_EQ(bytes[0], '0');
  EXPECT_EQ(CountOfHead(bytes.substr(0, 20)), 2);
  const std::string record1 = bytes.substr(19999 + kAgendaLength, kAgendaLength);
  EXPECT_EQ(UnscrambleValue(record1.substr(0, 25)), "Bruno");
  EXPECT_EQ(IntegerFromBytes(UnscrambleValue(record1.substr(25, 9))), 42);  // 41.5 rounds to even
  EXPECT_EQ(DecimalFromBytes(UnscrambleValue(record1.substr(34, 13))), 2.5);
}

TEST_F(RecordProgramTest, ANewDatabaseHasNoRecordToReadButTakesOneToUpdate) {
  Run({"n = TotalRecordsDB(Agenda)", "Write n", "r = ReadRecord(Agenda, 0)", "Agenda.Nome = \"Zé\"",
       "UpdateRecord Agenda, 0", "DeleteRecord Agenda, 1", "DeleteRecord Agenda, -1", "n = TotalRecordsDB(Agenda)",
       "Write n"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"0", "0"}));
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Can't read record: invalid position!",
                                                      "Can't delete record: invalid position!",
                                                      "Can't delete record: invalid position!"}));
  // The record at the count is written without raising the count.
  EXPECT_EQ(ReadBytes(File()).size(), 19999u + kAgendaLength);
}

TEST_F(RecordProgramTest, HeaderOfANewFile) {
  Run({}, "", false);
  Run({"DB Agenda, ProgramDir, \"pw\"", "Nome, String, 20", "Idade, Integer", "Saldo, Decimal", "EndDB"}, "",
      false);
  const std::string header = ReadBytes(File());
  ASSERT_EQ(header.size(), 20000u);
  EXPECT_EQ(AreaText(header, zrf::kName), "Agenda");
  EXPECT_EQ(AreaText(header, zrf::kRecordLength), "47");
  EXPECT_EQ(AreaText(header, zrf::kPassword), "pw");
  EXPECT_EQ(AreaText(header, zrf::kCreated).size(), 19u);
  EXPECT_EQ(AreaText(header, zrf::kPrepared).size(), 19u);
  const auto fields = ReadFieldList(header);
  ASSERT_EQ(fields.size(), 3u);
  EXPECT_EQ(fields[1].type, "Integer");
}

TEST_F(RecordProgramTest, PasswordsAndMissingFilesAndNames) {
  Run({"Var n Integer", "n = 5", "DB Agenda, ProgramDir, \"Pw\"", "Nome, String, 5", "EndDB",
       "OpenDB Agenda, \"pw\"", "OpenDB agenda2, \"\"", "n = TotalRecordsDB(Nada)", "Write n", "CloseDB Nada"},
      "", false);
  EXPECT_EQ(BoxTexts(*run), (std::vector<std::string>{
                                "Editor: 0 Line: 6\\rError connecting do database 'Agenda': Invalid password!",
                                "Error: Database descriptor 'agenda2' not found!",
                                "Error: Database descriptor 'Nada' not found!",
                                "Error: Database descriptor 'Nada' not found!",
                                "Editor: 0 Line: 10\\rError in command CloseDB: Subscript out of range"}));
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"0"}));
  Run({"DB Agenda, ProgramDir", "Nome, String, 5", "EndDB", "DeleteFile \"Agenda.Zrf\"", "OpenDB Agenda, \"\""}, "",
      false);
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Error in function OpenDB - File not found: " +
                                                      folder.Slash() + "Agenda.Zrf"}));
}

TEST_F(RecordProgramTest, AChangedRecordLengthIsRefusedAndTheSlotTakenAgain) {
  Run({"AddRecord Agenda"});
  Run({"Var r String", "DB Agenda, ProgramDir", "Nome, String, 21", "EndDB", "DB Outra, ProgramDir", "X, Integer", "EndDB",
       "OpenDB Outra, \"\"", "Outra.X = 5", "AddRecord Outra", "r = ReadRecord(Outra, 0)", "Write Outra.X"},
      "", false);
  ASSERT_EQ(BoxTexts(*run).size(), 1u);
  EXPECT_EQ(BoxTexts(*run)[0],
            "Error (Agenda): The size of the file fields have changed.\\rReturn to the original structure of the "
            "fields, or delete the file\\rso that the ZR create a new file with a new structure.\\rWarning! if the "
            "file is deleted, the records already\\rin the database can not be recovered!");
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"5"}));
  // Same total width, other fields: accepted.
  Run({"DB Agenda, ProgramDir", "A, String, 20", "B, Decimal", "C, Integer", "EndDB"}, "", false);
  EXPECT_TRUE(run->Boxes().empty());
}

TEST_F(RecordProgramTest, ATextTooLongForItsFieldLeavesItBlankAndTheRecordUnreadable) {
  const int status = Run({"Agenda.Nome = \"123456789012345678901\"", "AddRecord Agenda", "n = TotalRecordsDB(Agenda)",
                          "Write n", "r = ReadRecord(Agenda, 0)", "Write \"not reached\""});
  EXPECT_EQ(status, 1);
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"1"}));
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{
                                "AddRecord: The size of the field 'Agenda.Nome'\\ris smaller than the data size "
                                "allocated to the field!",
                                "Run-time error '9':\\r\\n\\r\\nSubscript out of range"}));
  EXPECT_EQ(ReadBytes(File()).substr(19999, 25), std::string(25, ' '));
}

TEST_F(RecordProgramTest, DeletedAndHashRecordsReadAsEmpty) {
  Run({"Agenda.Nome = \"#\"", "Agenda.Idade = 7", "AddRecord Agenda", "Agenda.Nome = \"Ana\"", "AddRecord Agenda",
       "DeleteRecord Agenda, 1", "r = ReadRecord(Agenda, 1)", "Write \"[\", r, \"]\", Agenda.Nome, Agenda.Idade",
       "Agenda.Idade = 3", "r = ReadRecord(Agenda, 0)", "Write \"[\", r, \"]\", Agenda.Idade"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"[]0", "[]0"}));
  // Deletion leaves blanks and the mark; the count keeps the slot.
  const std::string record1 = ReadBytes(File()).substr(19999 + kAgendaLength);
  EXPECT_EQ(UnscrambleValue(record1), "#");
  EXPECT_EQ(record1.substr(6), std::string(kAgendaLength - 6, ' '));
  EXPECT_EQ(CountOfHead(Head()), 2);
}

TEST_F(RecordProgramTest, OrderAndSearch) {
  Run({"Agenda.Nome = \"carla\"", "AddRecord Agenda", "Agenda.Nome = \"Ana\"", "AddRecord Agenda",
       "Agenda.Nome = \"\xC1NGELO\"", "AddRecord Agenda", "Agenda.Nome = \"bia\"", "AddRecord Agenda",
       "Agenda.Nome = \"ana\"", "AddRecord Agenda", "OrderDB Agenda, Nome",
       // The last record read by the rebuild stays in the variables.
       "Write Agenda.Nome",
       "n = FindDB(Agenda, \"FIRST\", \"ANA\")", "Write n", "n = FindDB(Agenda, \"LAST\", \"ana\")", "Write n",
       "n = FindDB(Agenda, \"NEXT\", \"b\")", "Write n", "n = FindDB(Agenda, \"NEXT\", \"zz\")", "Write n",
       "n = FindDB(Agenda, \"PRIMEIRO\", \"beto\")", "Write n",
       "r = ReadRecord(Agenda, 0)", "Write Agenda.Nome", "r = ReadRecord(Agenda, 4)", "Write Agenda.Nome",
       // Deleting under the order moves the entry: its place keeps a blank key.
       "DeleteRecord Agenda, 4", "r = ReadRecord(Agenda, 0)", "Write \"[\", r, \"]\"", "r = ReadRecord(Agenda, 1)",
       "Write Agenda.Nome", "OrderDB Agenda, SEQUENTIAL", "Agenda.Nome = \"?\"", "r = ReadRecord(Agenda, 0)",
       "Write \"[\", Agenda.Nome, \"]\"", "r = ReadRecord(Agenda, 1)", "Write Agenda.Nome"});
  // Sorted: Ana(1) ana(4) \xC1NGELO(2) bia(3) carla(0); carla's place then
  // sorts first with the scrambled bytes of its blank record.
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"ana", "0", "1", "3", "4", "-1", "Ana", "carla", "[]", "Ana",
                                                      "[]", "Ana"}));
  EXPECT_TRUE(run->Boxes().empty()) << run->Boxes()[0];
}

TEST_F(RecordProgramTest, SearchFailures) {
  Run({"Agenda.Nome = \"a\"", "AddRecord Agenda", "n = FindDB(Agenda, \"FIRST\", \"a\")", "Write n",
       "OrderDB Agenda, Nome", "n = FindDB(Agenda, \"FIRST\", \"a\", \"b\")", "Write n", "OrderDB Agenda, Apelido",
       "n = 5", "n = FindDB(Nada, \"FIRST\", \"a\")", "Write n"});
  const std::string noOrder =
      "Error in command FindDB!\\rMake sure you set the order of the database with the command OrderDB!";
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{noOrder, noOrder, "Index field not found in database: Apelido",
                                                      "Error: Database descriptor 'Nada' not found!",
                                                      "Error in command FindDB: Subscript out of range"}));
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"0", "0", "5"}));
}

TEST_F(RecordProgramTest, AnOrderOnADecimalKeySortsAndSearchesItsText) {
  Run({"Agenda.Saldo = 9.5", "AddRecord Agenda", "Agenda.Saldo = 10", "AddRecord Agenda", "OrderDB Agenda, Saldo",
       "r = ReadRecord(Agenda, 0)", "Write Agenda.Saldo", "n = FindDB(Agenda, \"FIRST\", \"9.5\")", "Write n"});
  // As text "10" stands before "9.5".
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"10", "1"}));
}

TEST_F(RecordProgramTest, UnderACommaLocaleDecimalKeysAreSearchedWithTheComma) {
  Regional comma;
  comma.decimalSign = ',';
  comma.groupingSign = '.';
  const ScopedRegional settings(comma);
  Run({"Agenda.Saldo = 2.5", "AddRecord Agenda", "OrderDB Agenda, Saldo", "r = ReadRecord(Agenda, 0)",
       "Write Agenda.Saldo", "n = FindDB(Agenda, \"FIRST\", \"2,5\")", "Write n",
       "n = FindDB(Agenda, \"FIRST\", \"2.5\")", "Write n"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"2,5", "0", "-1"}));
}

TEST_F(RecordProgramTest, UpdateUnderAnOrderEndsTheProgramAndWritesNothing) {
  const int status = Run({"Agenda.Nome = \"a\"", "AddRecord Agenda", "OrderDB Agenda, Nome", "Agenda.Nome = \"b\"",
                          "UpdateRecord Agenda, 0", "Write \"not reached\""});
  EXPECT_EQ(status, 1);
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Run-time error '13':\\r\\n\\r\\nType mismatch"}));
  EXPECT_EQ(UnscrambleValue(ReadBytes(File()).substr(19999, 25)), "a");
}

TEST_F(RecordProgramTest, CompactionDropsDeletedRecordsAndRenumbersAutoIncrement) {
  const std::vector<std::string> book = {"Var r String", "DB Livro, ProgramDir", "Id, AutoInc", "Titulo, String, 10",
                                         "EndDB", "OpenDB Livro, \"\""};
  std::vector<std::string> body = book;
  for (const char* title : {"um", "dois", "tres", "quatro"}) {
    body.push_back(std::string("Livro.Titulo = \"") + title + "\"");
    body.push_back("AddRecord Livro");
  }
  for (const char* line : {"DeleteRecord Livro, 1", "CloseDB Livro", "CompactDB Livro", "OpenDB Livro, \"\"",
                           "r = TotalRecordsDB(Livro)", "Write r", "r = ReadRecord(Livro, 1)",
                           "Write Livro.Id, Livro.Titulo", "r = ReadRecord(Livro, 2)", "Write Livro.Id, Livro.Titulo"}) {
    body.push_back(line);
  }
  Run(body, "", false);
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"3", "1tres", "2quatro"}));
  EXPECT_TRUE(run->Boxes().empty()) << run->Boxes()[0];
  EXPECT_EQ(ReadBytes(folder / "Livro.Zrf").size(), 19999u + 3 * 24);
  EXPECT_FALSE(std::filesystem::exists(folder / "Temp.Zrf"));

  // A Temp.Zrf in the folder stops any compaction there.
  WriteBytes(folder / "Temp.Zrf", "");
  Run({"Var r String", "DB Livro, ProgramDir", "Id, AutoInc", "Titulo, String, 10", "EndDB", "CompactDB Livro"}, "",
      false);
  EXPECT_EQ(BoxTexts(*run), (std::vector<std::string>{
                                "Another user is clearing the database!\\rIf you are sure that no user's performing "
                                "this routine,\\rdelete the file " + folder.Slash() + "Temp.Zrf"}));
}

TEST_F(RecordProgramTest, CompactionWritesTheOldFirstByteOverTheNewRecordZero) {
  // The header rewrite carries the old record 0's first byte (the length of
  // its "#") over the first byte of the record that moved there.
  Run({"Agenda.Nome = \"Ana\"", "AddRecord Agenda", "Agenda.Nome = \"Bruno\"", "AddRecord Agenda",
       "DeleteRecord Agenda, 0", "CloseDB Agenda", "CompactDB Agenda", "OpenDB Agenda, \"\"",
       "r = ReadRecord(Agenda, 0)", "Write Agenda.Nome"});
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"B"}));
}

TEST_F(RecordProgramTest, TheTwelfthDatabaseIsDeclaredButCannotTakeRecords) {
  std::vector<std::string> body;
  for (int i = 0; i < 12; ++i) {
    const std::string name = "Base" + std::to_string(i);
    body.insert(body.end(), {"DB " + name + ", ProgramDir", "X, Integer", "EndDB", "OpenDB " + name + ", \"\""});
  }
  body.insert(body.end(), {"AddRecord Base10", "AddRecord Base11", "Write \"not reached\""});
  EXPECT_EQ(Run(body, "", false), 1);
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Run-time error '9':\\r\\n\\r\\nSubscript out of range"}));
  // The count was raised before the order was looked at; the record never came.
  EXPECT_EQ(CountOfHead(ReadBytes(folder / "Base11.Zrf").substr(0, 20)), 1);
  EXPECT_EQ(ReadBytes(folder / "Base11.Zrf").size(), 20000u);
}

TEST_F(RecordProgramTest, AFolderThatCannotBeMadeEndsTheProgramAtTheOpen) {
  EXPECT_EQ(Run({"DB Agenda, ProgramDir & \"/a/b\"", "Nome, String, 5", "EndDB"}, "", false), 1);
  Run({"Var p String", "p = ProgramDir & \"/a/b\"", "DB Agenda, p", "Nome, String, 5", "EndDB"}, "", false);
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Run-time error '76':\\r\\n\\r\\nPath not found"}));
}

TEST_F(RecordProgramTest, DamagedFilesEndTheProgramWithTheFatalBox) {
  WriteBytes(File(), "0" + std::string(29, 'x'));  // no record length in the header
  EXPECT_EQ(Run({"Write \"not reached\""}), 1);
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Run-time error '5':\\r\\n\\r\\nInvalid procedure call or argument"}));
  std::filesystem::remove(File());
  // Cut below its first 20 bytes while open: the lock byte can't be read.
  onPump = [this] { std::filesystem::resize_file(File(), 10); };
  EXPECT_EQ(Run({"Write \"cut\"", "AddRecord Agenda"}), 1);
  EXPECT_EQ(Messages(*run), (std::vector<std::string>{"Run-time error '62':\\r\\n\\r\\nInput past end of file"}));
}

TEST_F(RecordProgramTest, TheLockWaitLetsEventsRunUntilTheByteIsFree) {
  Run({});
  std::string bytes = ReadBytes(File());
  bytes[0] = '1';
  WriteBytes(File(), bytes);
  int pumps = 0;
  onPump = [&] {
    if (++pumps == 3) {
      std::string now = ReadBytes(File());
      now[0] = '0';
      WriteBytes(File(), now);
    }
  };
  Run({"Agenda.Nome = \"x\"", "AddRecord Agenda", "n = TotalRecordsDB(Agenda)", "Write n"});
  EXPECT_EQ(pumps, 4);  // three in the wait, one by Write
  EXPECT_EQ(run->Written(), (std::vector<std::string>{"1"}));
  EXPECT_EQ(Head()[0], '0');
}

}  // namespace
}  // namespace tamrix::testing
