#include "data/database_block.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

#include "core/dispatcher.h"
#include "core/evaluator.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/data_state.h"
#include "data/file_operations.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr std::size_t kStatementColumn = 19;
constexpr std::size_t kLineParts = 21;

// The date and time as the header keeps them; nothing reads them back.
std::string Stamp() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[32];
  std::strftime(text, sizeof text, "%d/%m/%Y %H:%M:%S", &local);
  return text;
}

// The variable type of a field type; null for a word that is no type.
const char* VariableType(std::string_view fieldType) {
  if (fieldType == "String") return "String";
  if (fieldType == "Integer" || fieldType == "AutoInc") return "Integer";
  if (fieldType == "Decimal") return "Decimal";
  return nullptr;
}

std::string SizeChangedMessage(const std::string& name) {
  return "Error (" + name + "): The size of the file fields have changed.\r" +
         "Return to the original structure of the fields, or delete the file\r" +
         "so that the ZR create a new file with a new structure.\r" +
         "Warning! if the file is deleted, the records already\r" + "in the database can not be recovered!";
}

class BlockReader {
 public:
  BlockReader(Interpreter& interpreter, DatabaseSlot& slot) : in_(interpreter), slot_(slot) {}

  void DatabaseLine(const std::vector<std::string>& parts) {
    slot_.name = Text(Trim(parts[0].substr(std::min<std::size_t>(3, parts[0].size()))));
    slot_.path = Text(parts[1]);
    if (!EndsWith(slot_.path, "/") && !EndsWith(slot_.path, "\\")) slot_.path += '/';
    try {
      MakeFolder(slot_.path);
    } catch (const RuntimeFault&) {
      // An existing folder is the usual case; a missing one fails at the open.
    }
    password_ = Text(parts[2]);
  }

  void FieldLine(const std::vector<std::string>& parts) {
    if (slot_.fields.size() >= DatabaseTable::kMaxFields) Throw(kSubscriptOutOfRange);
    RecordField field;
    field.name = Text(parts[0]);
    field.fullName = slot_.name + "." + field.name;
    field.type = Text(parts[1]);
    const std::int16_t size =
        field.type == "String" ? ToInt16(Val(TextOf(Evaluate(in_, parts[2], numeric_)))) : std::int16_t{0};
    field.width = FieldWidth(field.type, size);
    field.start = position_;
    position_ = ToInt16(position_ + field.width);
    slot_.fields.push_back(field);
    // A word that is no type declares the variable as the line before did.
    if (const char* type = VariableType(field.type)) variableType_ = type;
    in_.Variables().DeclareScalar(field.fullName, variableType_);
  }

  std::int16_t RecordLength() const { return ToInt16(position_ - 1); }
  const std::string& Password() const { return password_; }
  bool& Numeric() { return numeric_; }

 private:
  std::string Text(const std::string& part) { return TextOf(EvaluateText(in_, part, numeric_)); }

  Interpreter& in_;
  DatabaseSlot& slot_;
  std::string password_;
  std::string variableType_;
  std::int16_t position_ = 1;
  bool numeric_ = false;
};

// Writes the header back with the time of this preparation, or a new one;
// false when the file's record length isn't the block's. The rewrite holds
// the record commands' lock on the first bytes, so that a count raised
// meanwhile by another program of this run-time is not written back old.
bool PrepareHeader(DataFile& file, bool existed, const DatabaseSlot& slot, const std::string& password) {
  const StartLock lock(file, zrf::kHeadSize);
  std::string header;
  if (existed) {
    header = file.ReadAt(0, zrf::kHeaderSize);
    header.resize(zrf::kHeaderSize, ' ');
    if (Val(StrippedAreaText(header, zrf::kRecordLength)) != slot.recordLength) return false;
  } else {
    header = BuildHeader({slot.name, slot.recordLength, Stamp(), password, slot.fields});
  }
  PutArea(header, zrf::kPrepared, Stamp());
  file.WriteAt(0, header);
  return true;
}

}  // namespace

int ReadDatabaseBlock(Interpreter& interpreter, DataState& state, const std::string& text,
                      std::size_t lineStart) {
  DatabaseTable& table = state.databases;
  DatabaseSlot& slot = table.Slot(table.count);
  slot = DatabaseSlot();
  BlockReader reader(interpreter, slot);
  int endLine = 0;
  for (std::size_t at = lineStart; at < text.size();) {
    std::size_t end = text.find(kCrLf, at);
    if (end == std::string::npos) end = text.size();
    const std::string line = text.substr(at, end - at);
    at = end + kCrLf.size();
    const std::string statement = line.size() > kStatementColumn ? line.substr(kStatementColumn) : std::string();
    if (StartsWith(statement, "EndDB")) {
      endLine = std::atoi(line.substr(2, 5).c_str());
      break;
    }
    const auto parts = SplitArguments(interpreter, statement, kLineParts, false, reader.Numeric());
    // Tested on every line: a field whose name starts with "DB" starts over.
    if (StartsWith(statement, "DB")) {
      reader.DatabaseLine(parts);
    } else {
      reader.FieldLine(parts);
    }
  }
  slot.recordLength = reader.RecordLength();

  const std::string fileName = slot.FileName();
  const bool existed = FileExists(fileName);
  const int number = state.files.FreeNumber();
  DataFile& file = state.files.Open(number, fileName, FileMode::Binary);
  file.MarkInUse();
  if (!PrepareHeader(file, existed, slot, reader.Password())) {
    // The file stays open and the slot is taken again by the next block.
    interpreter.StopBox(SizeChangedMessage(slot.name));
    return endLine;
  }
  state.files.Close(number);
  ++table.count;
  return endLine;
}

}  // namespace tamrix
