// The record commands: OpenDB, CloseDB, AddRecord, UpdateRecord,
// DeleteRecord, ReadRecord, OrderDB, FindDB, TotalRecordsDB, CompactDB.
// OpenDB, AddRecord, UpdateRecord and ReadRecord have no guard: a failure of
// the system in them ends the program.
#include "commands/command_arguments.h"
#include "commands/data_families.h"
#include "commands/record_values.h"
#include "core/dispatcher.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/compaction.h"
#include "data/data_state.h"
#include "data/paths.h"
#include "data/record_file.h"
#include "data/scrambled_value.h"

namespace tamrix {
namespace {

constexpr std::size_t kOrderParts = 21;
constexpr const char* kRebuilding = "InsereCamposBox";

// The slot of the database, or -1 after the box that says so.
int FindDatabase(Interpreter& in, DataState& state, const std::string& name) {
  const int slot = state.databases.Find(name);
  if (slot < 0) in.StopBox("Error: Database descriptor '" + name + "' not found!");
  return slot;
}

DataFile& FileOf(DataState& state, const DatabaseSlot& db) { return state.files.At(db.fileNumber); }

std::string WaitForLock(CommandCall& call, DataState& state, const DatabaseSlot& db, bool take) {
  Interpreter& in = call.interpreter;
  return tamrix::WaitForLock(state.files, db.fileNumber, take, [&in] { in.Screen().PumpEvents(); });
}

// Positions pass through the order list while a key order is in force,
// except while OrderDB reads the records.
bool Indexed(DataState& state, int slot) {
  const bool indexed = state.databases.Order(slot).mode == "Indice";
  return indexed && state.orderRebuildFlag.empty();
}

// An order entry from a record: each key field's bytes, then the place.
void AddOrderEntry(Interpreter& in, DataState& state, int slot, const std::string& record, std::int32_t place) {
  const DatabaseSlot& db = state.databases.Slot(slot);
  DatabaseOrder& order = state.databases.Order(slot);
  std::string entry;
  for (const std::string& key : order.keyFields) {
    if (key.empty()) break;
    const int field = FindField(db, key);
    if (field < 0) {
      in.StopBox(in.State().errorPosition + "\rIndex field not found in database: " + key);
      return;
    }
    entry += FieldBytes(record, db.fields[static_cast<std::size_t>(field)]);
  }
  order.list.Insert(entry + PlaceText(place));
}

// Takes out the entry at `index`, which must name a place, and adds one for
// the record.
void ReplaceOrderEntry(Interpreter& in, DataState& state, int slot, std::int32_t index, const std::string& record,
                       std::int32_t place) {
  OrderList& list = state.databases.Order(slot).list;
  PlaceOf(list.At(index));
  list.RemoveAt(index);
  AddOrderEntry(in, state, slot, record, place);
}

std::int32_t PositionArgument(CommandArguments& args) { return ToInt32(NumberOf(args.Number(1))); }

Value OpenDB(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 2);
  const std::string name = args.Text(0);
  const int slot = FindDatabase(in, state, name);
  if (slot < 0) return std::string();
  DatabaseSlot& db = state.databases.Slot(slot);
  const std::string fileName = db.path + name + ".Zrf";
  if (!FileExists(fileName)) {
    CommandErrorBox(in, kCarriageReturn, "Error in function OpenDB - File not found: " + fileName);
    return std::string();
  }
  const int number = state.files.FreeNumber();
  db.fileNumber = static_cast<std::int16_t>(number);
  DataFile& file = state.files.Open(number, fileName, FileMode::Binary);
  file.MarkInUse();
  std::string header = file.ReadAt(0, zrf::kHeaderSize);
  header.resize(zrf::kHeaderSize, ' ');
  const std::string password = args.Text(1);
  if (StrippedAreaText(header, zrf::kPassword) != password) {
    CommandErrorBox(in, kCarriageReturn, "Error connecting do database '" + db.name + "': Invalid password!");
    state.files.Close(number);
  }
  return std::string();
}

Value CloseDB(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  const int slot = FindDatabase(call.interpreter, state, args.Text(0));
  state.files.Close(state.databases.Slot(slot).fileNumber);
  return std::string();
}

Value AddRecord(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 1);
  const int slot = FindDatabase(in, state, args.Text(0));
  if (slot < 0) return std::string();
  const DatabaseSlot& db = state.databases.Slot(slot);
  const std::string record =
      RecordFromVariables(in, db, "AddRecord", [&] { return ReadRecordCount(FileOf(state, db)); });
  std::string head = WaitForLock(call, state, db, true);
  const std::int32_t count = CountOfHead(head);
  PutCount(head, count + 1);
  head[0] = zrf::kFree;
  WriteHead(FileOf(state, db), head);
  if (Indexed(state, slot)) AddOrderEntry(in, state, slot, record, count);
  WriteRecordAt(FileOf(state, db), db.recordLength, count, record);
  return std::string();
}

Value UpdateRecord(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 2);
  const std::int32_t position = PositionArgument(args);
  const int slot = FindDatabase(in, state, args.Text(0));
  const DatabaseSlot& db = state.databases.Slot(slot);
  const std::string record = RecordFromVariables(in, db, "UpdateRecord", [position] { return position; });
  const std::int32_t count = CountOfHead(WaitForLock(call, state, db, false));
  if (position < 0 || position > count) {
    CommandErrorBox(in, kCarriageReturn, "Can't update record: invalid position!");
    return std::string();
  }
  std::int32_t place = position;
  if (Indexed(state, slot)) {
    place = PlaceOf(state.databases.Order(slot).list.At(position));
    // The entry taken out is the one at the record count, not at the
    // position: it is empty, and naming no place it stops the command.
    ReplaceOrderEntry(in, state, slot, count, record, place);
  }
  WriteRecordAt(FileOf(state, db), db.recordLength, place, record);
  return std::string();
}

Value DeleteRecord(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 2);
  const std::int32_t position = PositionArgument(args);
  const int slot = FindDatabase(in, state, args.Text(0));
  const DatabaseSlot& db = state.databases.Slot(slot);
  std::string record(static_cast<std::size_t>(std::max<std::int16_t>(db.recordLength, 0)), ' ');
  if (!db.fields.empty()) PutField(record, db.fields[0], ScrambleValue(zrf::kDeletedMark));
  const std::int32_t count = CountOfHead(WaitForLock(call, state, db, false));
  if (position < 0 || position > count) {
    CommandErrorBox(in, kCarriageReturn, "Can't delete record: invalid position!");
    return std::string();
  }
  std::int32_t place = position;
  if (Indexed(state, slot)) {
    place = PlaceOf(state.databases.Order(slot).list.At(position));
    ReplaceOrderEntry(in, state, slot, position, record, place);
  }
  WriteRecordAt(FileOf(state, db), db.recordLength, place, record);
  return std::string();
}

Value ReadRecord(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, 2);
  const int slot = FindDatabase(in, state, args.Text(0));
  const DatabaseSlot& db = state.databases.Slot(slot);
  std::string head = WaitForLock(call, state, db, true);
  const std::int32_t count = CountOfHead(head);
  head[0] = zrf::kFree;
  WriteHead(FileOf(state, db), head);
  const std::int32_t position = PositionArgument(args);
  if (position < 0 || position >= count) {
    CommandErrorBox(in, kCarriageReturn, "Can't read record: invalid position!");
    return std::string();
  }
  std::int32_t place = position;
  if (Indexed(state, slot)) {
    std::string entry;
    try {
      entry = state.databases.Order(slot).list.At(position);
      place = PlaceOf(entry);
    } catch (const RuntimeFault&) {
      const std::string number = entry.size() > 6 ? entry.substr(entry.size() - 6) : entry;
      CommandErrorBox(in, kCarriageReturn, "Invalid position:" + number +
                             "\rPositions range from 0 to the total records in the file minus 1.");
      return std::string();
    }
  }
  const std::string record = ReadRecordAt(FileOf(state, db), db.recordLength, place);
  if (IsDeletedRecord(record)) {
    BlankVariables(in, db);
    return std::string();
  }
  return Quoted(VariablesFromRecord(in, db, record));
}

Value OrderDB(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kOrderParts);
  const int slot = FindDatabase(in, state, args.Text(0));
  if (slot < 0) return std::string();
  const DatabaseSlot& db = state.databases.Slot(slot);
  DatabaseOrder& order = state.databases.Order(slot);
  order.list.Clear();
  if (Upper(args.Text(1)) == "SEQUENTIAL") {
    order.mode = "Sequencial";
    return std::string();
  }
  order.mode = "Indice";
  std::size_t keys = 0;
  for (std::size_t i = 1; i < args.Count() && !args.Raw(i).empty(); ++i) KeyField(order, keys++) = args.Text(i);
  KeyField(order, keys) = std::string();

  std::vector<const RecordField*> keyFields;
  for (std::size_t k = 0; k < keys; ++k) {
    const int field = FindField(db, order.keyFields[k]);
    if (field < 0) {
      in.StopBox(in.State().errorPosition + "\rIndex field not found in database: " + order.keyFields[k]);
      return std::string();
    }
    keyFields.push_back(&db.fields[static_cast<std::size_t>(field)]);
  }

  // Every record is read as ReadRecord reads it; the row's opening quote
  // shifts each key one character to the left, as the search expects.
  std::vector<std::string> entries;
  const std::int32_t count = ReadRecordCount(FileOf(state, db));
  try {
    for (std::int32_t i = 0; i < count; ++i) {
      std::string readArguments = db.name + ", " + std::to_string(i);
      CommandCall read{in, readArguments, call.word};
      state.orderRebuildFlag = kRebuilding;
      const std::string row = TextOf(ReadRecord(read, state));
      state.orderRebuildFlag.clear();
      std::string entry;
      for (const RecordField* field : keyFields) {
        const auto start = static_cast<std::size_t>(std::max(field->start - 1, 0));
        if (start < row.size()) entry += row.substr(start, static_cast<std::size_t>(field->width));
      }
      entries.push_back(entry + PlaceText(i));
    }
  } catch (const RuntimeFault&) {
    order.list.InsertAll(std::move(entries));
    throw;
  }
  order.list.InsertAll(std::move(entries));
  return std::string();
}

Value FindDB(CommandCall& call, DataState& state) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kOrderParts);
  const int slot = FindDatabase(in, state, args.Text(0));
  const std::string modeWord = Upper(args.Text(1));
  const SearchMode mode = modeWord == "FIRST" ? SearchMode::First
                          : modeWord == "LAST" ? SearchMode::Last
                          : modeWord == "NEXT" ? SearchMode::Next
                                               : SearchMode::Any;
  const DatabaseSlot& db = state.databases.Slot(slot);
  DatabaseOrder& order = state.databases.Order(slot);
  std::string key;
  for (std::size_t i = 2; i < args.Count() && !args.Raw(i).empty(); ++i) {
    std::string value = args.Text(i);
    const std::string& keyField = KeyField(order, i - 2);
    if (keyField.empty()) {
      CommandErrorBox(in, kCarriageReturn, "Error in command FindDB!\rMake sure you set the order of the database with the command OrderDB!");
      return 0;
    }
    // The width of a key field that the database lacks is read at field -1.
    const int field = FindField(db, keyField);
    if (field < 0) Throw(kSubscriptOutOfRange);
    const auto width = static_cast<std::size_t>(std::max<std::int16_t>(db.fields[static_cast<std::size_t>(field)].width, 0));
    if (value.size() < width) value.resize(width, ' ');
    key += value;
  }
  return SearchOrder(order.list, key, ReadRecordCount(FileOf(state, db)), mode);
}

Value TotalRecordsDB(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  const int slot = FindDatabase(call.interpreter, state, args.Text(0));
  if (slot < 0) return 0;
  return ReadRecordCount(FileOf(state, state.databases.Slot(slot)));
}

Value CompactDB(CommandCall& call, DataState& state) {
  CommandArguments args(call, 1);
  const std::string name = args.Text(0);
  CompactDatabase(call.interpreter, state, name, FindDatabase(call.interpreter, state, name));
  return Quoted("");
}

}  // namespace

void RegisterRecordCommands(Dispatcher& dispatcher, const std::shared_ptr<DataState>& state) {
  RegisterDataHandler(dispatcher, "OpenDB", state, OpenDB, Guard::None);
  RegisterDataHandler(dispatcher, "AddRecord", state, AddRecord, Guard::None);
  RegisterDataHandler(dispatcher, "UpdateRecord", state, UpdateRecord, Guard::None);
  RegisterDataHandler(dispatcher, "ReadRecord", state, ReadRecord, Guard::None);
  RegisterDataHandler(dispatcher, "CloseDB", state, CloseDB);
  RegisterDataHandler(dispatcher, "DeleteRecord", state, DeleteRecord);
  RegisterDataHandler(dispatcher, "OrderDB", state, OrderDB);
  RegisterDataHandler(dispatcher, "FindDB", state, FindDB);
  RegisterDataHandler(dispatcher, "TotalRecordsDB", state, TotalRecordsDB);
  RegisterDataHandler(dispatcher, "CompactDB", state, CompactDB);
}

}  // namespace tamrix
