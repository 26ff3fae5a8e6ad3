#include "bridges/qt_database.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <atomic>

#include "bridges/qt_recordset.h"
#include "core/codepage.h"
#include "data/connection_string.h"
#include "data/paths.h"

namespace tamrix {
namespace {

// Connection attempts give up after this many seconds.
constexpr int kConnectTimeoutSeconds = 10;

class QtConnection : public DbConnection {
 public:
  QtConnection() {
    static std::atomic<int> serial = 0;
    name_ = QStringLiteral("tamrix-sql-%1").arg(++serial);
  }
  ~QtConnection() override {
    Close();
    if (QSqlDatabase::contains(name_)) QSqlDatabase::removeDatabase(name_);
  }

  void Open(const std::string& connectionString, const std::string& programPath) override {
    const ConnectionTarget target = ReadConnectionString(connectionString, programPath);
    if (QSqlDatabase::contains(name_)) QSqlDatabase::removeDatabase(name_);
    QSqlDatabase db = QSqlDatabase::addDatabase(DriverName(target.kind), name_);
    if (target.kind == DatabaseKind::None) {
      ThrowProviderError("The connection string names no database: " + connectionString);
    }
    if (!db.isValid()) ThrowProviderError("The database driver " + LanguageText(db.driverName()) + " is not installed");
    Configure(db, target);
    if (!db.open()) ThrowSqlError(db.lastError());
  }

  void Close() override {
    if (QSqlDatabase::contains(name_)) QSqlDatabase::database(name_, false).close();
  }

  void Execute(const std::string& command) override {
    QSqlDatabase db = OpenDatabase();
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(SqlText(command))) ThrowSqlError(query.lastError());
  }

  // Both locations give the same recordsets: a scrollable one is read whole
  // at its OPEN, a forward-only one row by row from the server.
  void SetCursorLocation(CursorLocation) override {}

  std::unique_ptr<DbRecordset> OpenRecordset(const std::string& source, CursorType cursor, LockType lock) override {
    return std::make_unique<QtRecordset>(OpenDatabase(), SqlText(source), cursor, lock);
  }

 private:
  static QString DriverName(DatabaseKind kind) {
    switch (kind) {
      case DatabaseKind::Sqlite: return QStringLiteral("QSQLITE");
      case DatabaseKind::Odbc: return QStringLiteral("QODBC");
      case DatabaseKind::PostgreSql: return QStringLiteral("QPSQL");
      case DatabaseKind::None: break;
    }
    return QString();
  }

  static void Configure(QSqlDatabase& db, const ConnectionTarget& target) {
    const QString seconds = QString::number(kConnectTimeoutSeconds);
    switch (target.kind) {
      case DatabaseKind::Sqlite:
        db.setDatabaseName(QString::fromStdString(OsPath(target.database).string()));
        // Another program writing the file makes this one wait, not fail.
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(kConnectTimeoutSeconds * 1000));
        break;
      case DatabaseKind::Odbc:
        db.setDatabaseName(SqlText(target.database));
        db.setConnectOptions(QStringLiteral("SQL_ATTR_LOGIN_TIMEOUT=%1;SQL_ATTR_CONNECTION_TIMEOUT=%1").arg(seconds));
        break;
      case DatabaseKind::PostgreSql:
        db.setDatabaseName(SqlText(target.database));
        db.setHostName(SqlText(target.host));
        if (target.port > 0) db.setPort(target.port);
        db.setUserName(SqlText(target.user));
        db.setPassword(SqlText(target.password));
        db.setConnectOptions(QStringLiteral("connect_timeout=%1").arg(seconds));
        break;
      case DatabaseKind::None: break;
    }
  }

  QSqlDatabase OpenDatabase() const {
    QSqlDatabase db = QSqlDatabase::contains(name_) ? QSqlDatabase::database(name_, false) : QSqlDatabase();
    if (!db.isOpen()) ThrowDatabaseFault(kObjectClosed);
    return db;
  }

  QString name_;
};

}  // namespace

std::unique_ptr<DbConnection> QtDatabaseLayer::MakeConnection() { return std::make_unique<QtConnection>(); }

QString SqlText(const std::string& cp1252) { return QString::fromStdString(Cp1252ToUtf8(cp1252)); }

std::string LanguageText(const QString& text) { return Utf8ToCp1252Lossy(text.toStdString()); }

void ThrowSqlError(const QSqlError& error) {
  QString text = error.databaseText().trimmed();
  if (text.isEmpty()) text = error.driverText().trimmed();
  if (text.isEmpty()) text = error.text().trimmed();
  ThrowProviderError(LanguageText(text));
}

}  // namespace tamrix
