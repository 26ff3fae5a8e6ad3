#include "data/sql_state.h"

namespace tamrix {

void SqlState::CloseAll() {
  for (SqlConnectionSlot& slot : connections) {
    for (SqlTableSlot& table : slot.tables) table.recordset.reset();
    if (!slot.name.empty() && slot.connection) slot.connection->Close();
    slot.connection.reset();
    slot.name.clear();
  }
}

}  // namespace tamrix
