// SQL conn.OPEN / CLOSE / EXECUTE, and SQL conn.table.<method or field>.
// The path is the first argument, read as written; everything after the
// path is read runs under the command's handler, which answers a failure
// with "SQL Error <number>: <description>" both in a box and as the result.
#include "commands/sql_command.h"

#include <array>

#include "commands/command_arguments.h"
#include "core/dispatcher.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/text.h"
#include "data/sql_state.h"

namespace tamrix {
namespace {

constexpr std::size_t kSqlParts = 10;

struct SqlPath {
  std::string connection;  // upper case
  std::string second;      // the table, or a connection method
  std::string third;       // behind the second "."; empty for a connection method
  bool forTable = false;
};

// A path without "." fails before the handler is in force.
SqlPath ReadPath(const std::string& text) {
  const std::size_t first = text.find('.');
  if (first == std::string::npos) Throw(kSubscriptOutOfRange);
  SqlPath path;
  path.connection = Upper(text.substr(0, first));
  const std::size_t second = text.find('.', first + 1);
  path.second = text.substr(first + 1, second == std::string::npos ? std::string::npos : second - first - 1);
  if (second != std::string::npos) {
    path.third = text.substr(second + 1);
    path.forTable = true;
  }
  return path;
}

// A word of the command as written, with or without quotes.
std::string WordOf(const std::string& raw) { return Upper(StripQuotes(raw)); }

int CursorNumber(const std::string& word) {
  static constexpr std::array<std::string_view, 4> kWords = {"FORWARDONLY", "KEYSET", "DYNAMIC", "STATIC"};
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    if (word == kWords[i]) return static_cast<int>(i);
  }
  return 0;
}

int LockNumber(const std::string& word) {
  static constexpr std::array<std::string_view, 4> kWords = {"READONLY", "PESSIMISTIC", "OPTIMISTIC",
                                                              "BATCHOPTIMISTIC"};
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    if (word == kWords[i]) return static_cast<int>(i) + 1;
  }
  return 0;
}

class SqlCommand {
 public:
  SqlCommand(Interpreter& in, SqlState& state, CommandArguments& args, SqlPath path)
      : in_(in), state_(state), args_(args), path_(std::move(path)) {}

  Value Run() {
    if (!path_.forTable) {
      const std::string method = Upper(path_.second);
      if (method == "OPEN") OpenConnection();
      if (method == "CLOSE") CloseConnection();
      if (method == "EXECUTE") Execute();
      return std::string();
    }
    const std::string word = Upper(path_.third);
    if (word == "OPEN") return OpenTable();
    SqlTableSlot* table = FindTable();
    if (table == nullptr) return std::string();
    if (word == "CLOSE") return CloseTable(*table);
    if (word == "FIND") return Find(*table);
    if (word == "TOTALRECORDS") return TotalRecords(*table);
    if (word == "POINTER") return table->pointer;
    if (Move(*table, word)) return std::string();
    if (!args_.Raw(1).empty()) return WriteField(*table);
    return ReadField(*table);
  }

 private:
  int FindConnection() const {
    for (int i = 0; i < 10; ++i) {
      if (state_.connections[static_cast<std::size_t>(i)].name == path_.connection) return i;
    }
    return -1;
  }

  void OpenConnection() {
    if (state_.connectionCount >= 10) {
      in_.StopBox("Can't open more than 10 database files!");
      return;
    }
    SqlConnectionSlot& slot = state_.connections[static_cast<std::size_t>(state_.connectionCount)];
    slot.name = path_.connection;
    if (!slot.connection) slot.connection = state_.databases->MakeConnection();
    slot.connection->Open(args_.Text(1), in_.Launch().programPath);
    const std::string location = WordOf(args_.Raw(2));
    if (location.empty() || location == "USECLIENT") slot.connection->SetCursorLocation(CursorLocation::Client);
    if (location == "USESERVER") slot.connection->SetCursorLocation(CursorLocation::Server);
    ++state_.connectionCount;
  }

  void CloseConnection() {
    const int found = FindConnection();
    if (found < 0) return;
    SqlConnectionSlot& slot = state_.connections[static_cast<std::size_t>(found)];
    slot.name.clear();
    // Its tables can no longer be reached by name; their queries go first.
    for (SqlTableSlot& table : slot.tables) {
      table.name.clear();
      table.recordset.reset();
    }
    slot.connection->Close();
  }

  void Execute() {
    const int found = FindConnection();
    if (found < 0) {
      in_.StopBox("Name of the database not found!");
      return;
    }
    const std::string command = TextOf(args_.Number(1));
    state_.connections[static_cast<std::size_t>(found)].connection->Execute(command);
  }

  Value OpenTable() {
    if (!args_.Raw(2).empty() && args_.Raw(3).empty()) {
      CommandErrorBox(in_, kCarriageReturn, "Error: If you inform the cursor type, you must also inform the lock type!");
      return std::string();
    }
    const int found = FindConnection();
    if (found < 0) {
      in_.StopBox("Name of the database not found!");
      return std::string();
    }
    SqlConnectionSlot& connection = state_.connections[static_cast<std::size_t>(found)];
    SqlTableSlot* table = nullptr;
    for (SqlTableSlot& slot : connection.tables) {
      if (slot.name.empty()) {
        table = &slot;
        break;
      }
    }
    if (table == nullptr) {
      in_.StopBox(
          "Can't open more than 10 tables at the same time to the same database!"
          "Use the 'Close' method to close tables and free up space!");
      return std::string();
    }
    table->name = Upper(path_.second);
    const bool wordsGiven = !args_.Raw(2).empty();
    const auto cursor = static_cast<CursorType>(wordsGiven ? CursorNumber(WordOf(args_.Raw(2))) : 2);
    const auto lock = static_cast<LockType>(wordsGiven ? LockNumber(WordOf(args_.Raw(3))) : 3);
    const std::string source = args_.Text(1);
    if (table->recordset) table->recordset->Close();
    table->recordset = connection.connection->OpenRecordset(source, cursor, lock);
    SetTablePointer(*table, table->recordset->Eof() ? "EOF" : "OK");
    return std::string();
  }

  SqlTableSlot* FindTable() {
    const int found = FindConnection();
    if (found < 0) {
      in_.StopBox("Nome do banco de dados n\xE3o encontrado: " + path_.connection);
      return nullptr;
    }
    const std::string name = Upper(path_.second);
    for (SqlTableSlot& slot : state_.connections[static_cast<std::size_t>(found)].tables) {
      if (slot.name == name) return &slot;
    }
    in_.StopBox("Nome da tabela n\xE3o encontrada: " + name);
    return nullptr;
  }

  void SetTablePointer(SqlTableSlot& table, const std::string& text) {
    table.pointer = text;
    in_.Variables().SetVariable("SQLPointer", text, false);
  }

  Value CloseTable(SqlTableSlot& table) {
    table.name.clear();
    std::unique_ptr<DbRecordset> recordset = std::move(table.recordset);
    if (recordset) recordset->Close();
    return std::string();
  }

  // The moves and edits, each followed by the pointer tests; false for a
  // word that is none of them.
  bool Move(SqlTableSlot& table, const std::string& word) {
    using Action = void (*)(DbRecordset&, Interpreter&);
    struct MoveWord {
      std::string_view word, shortWord;
      Action action;
    };
    static constexpr MoveWord kMoves[] = {
        {"MOVEFIRST", "FIRST", [](DbRecordset& rs, Interpreter&) { rs.MoveFirst(); }},
        {"MOVELAST", "LAST", [](DbRecordset& rs, Interpreter&) { rs.MoveLast(); }},
        {"MOVENEXT", "NEXT", [](DbRecordset& rs, Interpreter&) { rs.MoveNext(); }},
        {"MOVEPREVIOUS", "PREVIOUS", [](DbRecordset& rs, Interpreter&) { rs.MovePrevious(); }},
        // A recordset needs no edit state: events run, and the pointer is set.
        {"EDIT", "EDIT", [](DbRecordset&, Interpreter& in) { in.Screen().PumpEvents(); }},
        {"ADD", "ADD", [](DbRecordset& rs, Interpreter&) { rs.AddNew(); }},
        {"UPDATE", "UPDATE", [](DbRecordset& rs, Interpreter&) { rs.Update(); }},
        {"DELETE", "DELETE", [](DbRecordset& rs, Interpreter&) { rs.Delete(); }},
    };
    const MoveWord* move = nullptr;
    for (const MoveWord& candidate : kMoves) {
      if (word == candidate.word || word == candidate.shortWord) move = &candidate;
    }
    if (move == nullptr) return false;
    DbRecordset& rs = Recordset(table);
    move->action(rs, in_);
    state_.lastPointer.clear();
    SetTablePointer(table, "OK");
    if (rs.Eof()) {
      state_.lastPointer = "EOF";
      SetTablePointer(table, "EOF");
    }
    if (rs.Bof()) {
      state_.lastPointer = "BOF";
      SetTablePointer(table, "BOF");
    }
    return true;
  }

  Value Find(SqlTableSlot& table) {
    DbRecordset& rs = Recordset(table);
    try {
      rs.MoveFirst();
    } catch (const RuntimeFault&) {
      // An empty table: the search below finds nothing.
    }
    rs.Find(TextOf(args_.Number(1)));
    if (rs.Eof()) {
      state_.lastPointer = "EOF";
      SetTablePointer(table, "EOF");
    } else {
      SetTablePointer(table, "OK");
    }
    return std::string();
  }

  Value TotalRecords(SqlTableSlot& table) {
    DbRecordset& rs = Recordset(table);
    rs.MoveLast();
    if (rs.Eof()) return std::int32_t{0};
    const long count = rs.RecordCount();
    rs.MoveFirst();
    return static_cast<std::int32_t>(count);
  }

  Value ReadField(SqlTableSlot& table) {
    if (!state_.lastPointer.empty()) return std::string();
    try {
      return Quoted(Recordset(table).ReadField(path_.third));
    } catch (const RuntimeFault&) {
      return Quoted(std::string());
    }
  }

  Value WriteField(SqlTableSlot& table) {
    const std::size_t valuePart = args_.Raw(1) == "=" ? 2 : 1;
    Recordset(table).WriteField(path_.third, args_.Number(valuePart));
    return std::string();
  }

  static DbRecordset& Recordset(SqlTableSlot& table) {
    // A table whose OPEN failed keeps its name and has no open recordset.
    if (!table.recordset) ThrowDatabaseFault(kObjectClosed);
    return *table.recordset;
  }

  Interpreter& in_;
  SqlState& state_;
  CommandArguments& args_;
  SqlPath path_;
};

Value RunSql(CommandCall& call, SqlState& state) {
  CommandArguments args(call, kSqlParts, true);
  SqlPath path = ReadPath(args.Raw(0));
  try {
    return SqlCommand(call.interpreter, state, args, std::move(path)).Run();
  } catch (const RuntimeFault& fault) {
    const std::string text = "SQL Error " + std::to_string(fault.Number()) + ": " + fault.Description();
    CommandErrorBox(call.interpreter, kCarriageReturn, text);
    return Quoted(text);
  }
}

// "x = SQL(path, ...)": the text inside the brackets is the command's.
Value RunSqlAssignment(Interpreter& in, const std::string& expr) {
  const std::size_t open = expr.find('(');
  const std::size_t close = expr.rfind(')');
  std::string arguments = close > open ? expr.substr(open + 1, close - open - 1) : expr.substr(open + 1);
  Value result = in.Commands().RunCommand(in, "SQL", arguments);
  if (IsText(result)) return StripQuotes(std::get<std::string>(result));
  return result;
}

}  // namespace

void RegisterSqlCommand(Interpreter& interpreter, std::shared_ptr<DatabaseLayer> layer) {
  auto state = std::make_shared<SqlState>(std::move(layer));
  interpreter.Commands().Register("SQL", GuardForm::None,
                                  [state](CommandCall& call) { return RunSql(call, *state); });
  interpreter.SqlAssignment() = [](Interpreter& in, const std::string& expr) { return RunSqlAssignment(in, expr); };
  interpreter.AddShutdownHook([state] { state->CloseAll(); });
}

}  // namespace tamrix
