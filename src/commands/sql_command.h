// The SQL command: connections, tables and fields of outside databases,
// reached through the database layer that the window layer supplies.
#pragma once

#include <memory>

namespace tamrix {

class DatabaseLayer;
class Interpreter;

// Registers "SQL", its assignment form "x = SQL(...)", and the closing of
// all connections with the main window.
void RegisterSqlCommand(Interpreter& interpreter, std::shared_ptr<DatabaseLayer> layer);

}  // namespace tamrix
