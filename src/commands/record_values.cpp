#include "commands/record_values.h"

#include "core/dispatcher.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "data/database_table.h"
#include "data/scrambled_value.h"

namespace tamrix {

std::string RecordFromVariables(Interpreter& interpreter, const DatabaseSlot& slot, std::string_view command,
                                const std::function<std::int32_t()>& autoIncValue) {
  VariableStore& variables = interpreter.Variables();
  std::string record(static_cast<std::size_t>(std::max<std::int16_t>(slot.recordLength, 0)), ' ');
  for (const RecordField& field : slot.fields) {
    std::string bytes;
    if (field.type == "String") {
      bytes = TextOf(variables.GetVariable(field.fullName));
      if (static_cast<long>(bytes.size()) > field.width - static_cast<long>(kScrambleOverhead)) {
        CommandErrorBox(interpreter, kCarriageReturn, std::string(command) + ": The size of the field '" + field.fullName +
                                        "'\ris smaller than the data size allocated to the field!");
        continue;
      }
    } else if (field.type == "Integer") {
      bytes = IntegerBytes(ToInt32(NumberOf(variables.GetVariable(field.fullName))));
    } else if (field.type == "Decimal") {
      bytes = DecimalBytes(NumberOf(variables.GetVariable(field.fullName)));
    } else if (field.type == "AutoInc") {
      bytes = IntegerBytes(autoIncValue());
    } else {
      continue;  // a word that is no type has no value
    }
    PutField(record, field, ScrambleValue(bytes));
  }
  return record;
}

std::string VariablesFromRecord(Interpreter& interpreter, const DatabaseSlot& slot, std::string_view record) {
  VariableStore& variables = interpreter.Variables();
  std::string row;
  for (const RecordField& field : slot.fields) {
    const std::string value = UnscrambleValue(FieldBytes(record, field));
    if (field.type == "String") {
      variables.SetVariable(field.fullName, value, false);
    } else if (field.type == "Integer" || field.type == "AutoInc") {
      variables.SetVariable(field.fullName, IntegerFromBytes(value), false);
    } else if (field.type == "Decimal") {
      variables.SetVariable(field.fullName, DecimalFromBytes(value), false);
    }
    std::string column = TextOf(variables.GetVariable(field.fullName));
    column.resize(static_cast<std::size_t>(std::max<std::int16_t>(field.width, 0)), ' ');
    row += column;
  }
  return row;
}

void BlankVariables(Interpreter& interpreter, const DatabaseSlot& slot) {
  for (const RecordField& field : slot.fields) {
    const Value blank = field.type == "String" ? Value(std::string()) : Value(std::int32_t{0});
    interpreter.Variables().SetVariable(field.fullName, blank, false);
  }
}

}  // namespace tamrix
