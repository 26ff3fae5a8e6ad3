// The SQL command's tables for one run: ten connections of ten tables each,
// the count of connection OPENs, and the one pointer text that all tables
// share.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "data/database_layer.h"

namespace tamrix {

struct SqlTableSlot {
  std::string name;  // upper case; empty when free
  std::unique_ptr<DbRecordset> recordset;
  std::string pointer;  // "OK", "EOF" or "BOF"
};

struct SqlConnectionSlot {
  std::string name;  // upper case; empty when closed
  std::unique_ptr<DbConnection> connection;
  std::array<SqlTableSlot, 10> tables;
};

struct SqlState {
  explicit SqlState(std::shared_ptr<DatabaseLayer> layer) : databases(std::move(layer)) {}

  std::shared_ptr<DatabaseLayer> databases;
  std::array<SqlConnectionSlot, 11> connections;  // 0 to 9 are used
  std::int16_t connectionCount = 0;               // the next slot; it never goes down
  std::string lastPointer = "0";

  // Closes every open connection and its tables, as the main window closes.
  void CloseAll();
};

}  // namespace tamrix
