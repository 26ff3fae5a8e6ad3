// The SQL command against a recording database layer: what reaches the
// layer (connection strings, cursor locations, cursor and lock types,
// criteria, values), the connection count, and the closing of everything
// with the main window.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "commands/sql_command.h"
#include "core/fault.h"
#include "core_sandbox.h"
#include "data/database_layer.h"

namespace tamrix::testing {
namespace {

// Every call that reaches the layer, as one line each.
struct LayerLog {
  std::vector<std::string> calls;
  long rows = 2;  // rows of every recordset
};

class FakeRecordset : public DbRecordset {
 public:
  explicit FakeRecordset(LayerLog& log) : log_(log), position_(log.rows > 0 ? 0 : -1) {}
  void MoveFirst() override { Move("MoveFirst", 0); }
  void MoveLast() override { Move("MoveLast", log_.rows - 1); }
  void MoveNext() override { Move("MoveNext", position_ + 1); }
  void MovePrevious() override { Move("MovePrevious", position_ - 1); }
  void AddNew() override { log_.calls.push_back("AddNew"); }
  void Update() override { log_.calls.push_back("Update"); }
  void Delete() override { log_.calls.push_back("Delete"); }
  void Find(const std::string& criteria) override {
    log_.calls.push_back("Find " + criteria);
    if (criteria == "none") position_ = log_.rows;
  }
  bool Eof() const override { return log_.rows == 0 || position_ >= log_.rows; }
  bool Bof() const override { return log_.rows == 0 || position_ < 0; }
  long RecordCount() override {
    log_.calls.push_back("RecordCount");
    return log_.rows;
  }
  std::string ReadField(const std::string& name) override {
    if (name != "name") ThrowDatabaseFault(kItemNotFound);
    return "row" + std::to_string(position_);
  }
  void WriteField(const std::string& name, const Value& value) override {
    log_.calls.push_back("Write " + name + " " + TextOf(value) + (IsText(value) ? " text" : " number"));
  }
  void Close() override { log_.calls.push_back("Close recordset"); }

 private:
  void Move(const std::string& name, long to) {
    log_.calls.push_back(name);
    if (log_.rows == 0) ThrowDatabaseFault(kNoCurrentRecord);
    position_ = to < -1 ? -1 : (to > log_.rows ? log_.rows : to);
  }
  LayerLog& log_;
  long position_;
};

class FakeConnection : public DbConnection {
 public:
  explicit FakeConnection(LayerLog& log) : log_(log) {}
  void Open(const std::string& text, const std::string&) override {
    log_.calls.push_back("Open " + text);
    if (text == "refused") ThrowProviderError("connection refused");
  }
  void Close() override { log_.calls.push_back("Close connection"); }
  void Execute(const std::string& command) override { log_.calls.push_back("Execute " + command); }
  void SetCursorLocation(CursorLocation location) override {
    log_.calls.push_back("Location " + std::to_string(static_cast<int>(location)));
  }
  std::unique_ptr<DbRecordset> OpenRecordset(const std::string& source, CursorType cursor, LockType lock) override {
    log_.calls.push_back("Recordset " + source + " " + std::to_string(static_cast<int>(cursor)) + " " +
                         std::to_string(static_cast<int>(lock)));
    return std::make_unique<FakeRecordset>(log_);
  }

 private:
  LayerLog& log_;
};

class FakeLayer : public DatabaseLayer {
 public:
  explicit FakeLayer(LayerLog& log) : log_(log) {}
  std::unique_ptr<DbConnection> MakeConnection() override { return std::make_unique<FakeConnection>(log_); }

 private:
  LayerLog& log_;
};

class SqlCommandTest : public ::testing::Test {
 protected:
  SqlCommandTest() { RegisterSqlCommand(run.interpreter, std::make_shared<FakeLayer>(log)); }

  int Run(const std::vector<const char*>& lines) { return run.Run(Unit(lines)); }

  LayerLog log;
  ProgramRun run;
};

TEST_F(SqlCommandTest, CursorLocationWordsAndTheirDefault) {
  Run({"SQL a.OPEN, \"x.db\"", "SQL b.OPEN, \"y.db\", USESERVER", "SQL c.OPEN, \"z.db\", \"useclient\"",
       "SQL d.OPEN, \"w.db\", ELSEWHERE"});
  EXPECT_EQ(log.calls, (std::vector<std::string>{"Open x.db", "Location 3", "Open y.db", "Location 2", "Open z.db",
                                                 "Location 3", "Open w.db"}));
}

TEST_F(SqlCommandTest, CursorAndLockWordsBecomeTheirNumbers) {
  Run({"SQL a.OPEN, \"x.db\"", "SQL a.t1.OPEN, \"items\"", "SQL a.t2.OPEN, \"items\", STATIC, READONLY",
       "SQL a.t3.OPEN, \"items\", \"forwardonly\", BATCHOPTIMISTIC", "SQL a.t4.OPEN, \"items\", SIDEWAYS, LOOSE",
       "SQL a.t5.OPEN, \"items\", KEYSET"});
  const std::vector<std::string> expected = {"Recordset items 2 3", "Recordset items 3 1", "Recordset items 0 4",
                                             "Recordset items 0 0"};
  std::vector<std::string> opened;
  for (const auto& call : log.calls) {
    if (call.rfind("Recordset", 0) == 0) opened.push_back(call);
  }
  EXPECT_EQ(opened, expected);
  ASSERT_EQ(run.Boxes().size(), 1u);
  EXPECT_NE(run.Boxes()[0].find("must also inform the lock type"), std::string::npos);
}

TEST_F(SqlCommandTest, AFailedOpenDoesNotCountAndTheNextOpenTakesItsSlot) {
  Run({"SQL a.OPEN, \"refused\"", "Var i Integer", "i = 0", "While i < 10", "SQL b.OPEN, \"x.db\"", "i++", "Loop",
       "SQL c.OPEN, \"x.db\""});
  const auto boxes = run.Boxes();
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_NE(boxes[0].find("SQL Error -2147467259: connection refused"), std::string::npos);
  EXPECT_EQ(boxes[1], StopBoxLine("Can't open more than 10 database files!"));
}

TEST_F(SqlCommandTest, ValuesAndCriteriaAreEvaluatedAndFieldsKeepTheirValueKind) {
  Run({"Var q String, d String", "q = \"name = 'Pen'\"", "d = \"DELETE x\"", "SQL a.OPEN, \"x.db\"", "SQL a.t.OPEN, \"items\"", "SQL a.t.FIND, q",
       "SQL a.t.qty = 2 + 3", "SQL a.t.name, \"Pen\"", "SQL a.t.code = \"007\"", "SQL a.EXECUTE, d"});
  std::vector<std::string> tail(log.calls.end() - 6, log.calls.end());
  EXPECT_EQ(tail, (std::vector<std::string>{"MoveFirst", "Find name = 'Pen'", "Write qty 5 number",
                                            "Write name Pen text", "Write code 007 text", "Execute DELETE x"}));
}

TEST_F(SqlCommandTest, TotalRecordsOfAnEmptyTableFailsAtTheMoveAndCountsNothing) {
  log.rows = 0;
  Run({"Var v String", "SQL a.OPEN, \"x.db\"", "SQL a.t.OPEN, \"items\"", "Write SQLPointer",
       "v = SQL(a.t.TOTALRECORDS)", "Write v"});
  EXPECT_EQ(run.Written(),
            (std::vector<std::string>{"EOF", "SQL Error 3021: Either BOF or EOF is True, or the current record has "
                                             "been deleted. Requested operation requires a current record."}));
  EXPECT_EQ(std::count(log.calls.begin(), log.calls.end(), "RecordCount"), 0);
}

TEST_F(SqlCommandTest, TotalRecordsEndsOnTheFirstRecordAndLeavesThePointers) {
  Run({"Var n Integer, v String", "SQL a.OPEN, \"x.db\"", "SQL a.t.OPEN, \"items\"", "SQL a.t.LAST", "SQL a.t.NEXT",
       "n = SQL(a.t.TOTALRECORDS)", "v = SQL(a.t.POINTER)", "Write n, \" \", v, \" \", SQLPointer"});
  EXPECT_EQ(run.Written(), (std::vector<std::string>{"2 EOF EOF"}));
  EXPECT_EQ(std::vector<std::string>(log.calls.end() - 3, log.calls.end()),
            (std::vector<std::string>{"MoveLast", "RecordCount", "MoveFirst"}));
}

TEST_F(SqlCommandTest, AFindThatMissesBlocksReadsUntilTheNextMove) {
  Run({"Var v String", "SQL a.OPEN, \"x.db\"", "SQL a.t.OPEN, \"items\"", "SQL a.t.NEXT", "SQL a.t.FIND, \"none\"",
       "SQL a.t.FIND, \"name = 'row0'\"", "v = SQL(a.t.name)", "Write \"[\", v, \"] \", SQLPointer",
       "SQL a.t.NEXT", "v = SQL(a.t.name)", "Write v, \" \", SQLPointer"});
  EXPECT_EQ(run.Written(), (std::vector<std::string>{"[] OK", "row1 OK"}));
}

TEST_F(SqlCommandTest, ClosingTheMainWindowClosesTablesAndConnections) {
  Run({"SQL a.OPEN, \"x.db\"", "SQL a.t.OPEN, \"items\"", "SQL b.OPEN, \"y.db\"", "SQL b.CLOSE"});
  log.calls.clear();
  run.interpreter.OnMainWindowClosing();
  EXPECT_EQ(log.calls, (std::vector<std::string>{"Close connection"}));
}

TEST_F(SqlCommandTest, APathWithoutADotEndsTheRun) {
  EXPECT_EQ(Run({"SQL nothing", "Write \"not reached\""}), 1);
  EXPECT_TRUE(run.Written().empty());
}

}  // namespace
}  // namespace tamrix::testing
