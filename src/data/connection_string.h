// Which database a connection string names: an embedded SQLite file, an ODBC
// source, or a PostgreSQL server.
#pragma once

#include <string>
#include <string_view>

namespace tamrix {

enum class DatabaseKind { None, Sqlite, Odbc, PostgreSql };

struct ConnectionTarget {
  DatabaseKind kind = DatabaseKind::None;
  // SQLite: the file, a language path; ODBC: the whole string for the driver
  // manager; PostgreSQL: the database name.
  std::string database;
  std::string host;  // a server name or a socket folder
  int port = -1;     // -1 for the driver's default
  std::string user;
  std::string password;
};

// `programPath` ends in "/" and takes bare file names.
ConnectionTarget ReadConnectionString(std::string_view text, std::string_view programPath);

}  // namespace tamrix
