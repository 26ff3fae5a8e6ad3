// The database layer on Qt SQL: SQLite files, ODBC sources and PostgreSQL
// servers, chosen by the connection string.
#pragma once

#include <QString>
#include <memory>

#include "data/database_layer.h"

class QSqlError;

namespace tamrix {

class QtDatabaseLayer : public DatabaseLayer {
 public:
  std::unique_ptr<DbConnection> MakeConnection() override;
};

// Texts between the language (Windows-1252) and Qt.
QString SqlText(const std::string& cp1252);
std::string LanguageText(const QString& text);

// A failure of the database, with its own message.
[[noreturn]] void ThrowSqlError(const QSqlError& error);

}  // namespace tamrix
