// What the SQL command needs of a database: connections that open, close and
// run statements, and recordsets that move, count, find and edit their rows.
// The core defines it; the Qt layer implements it on Qt SQL. Every failure is
// thrown as a RuntimeFault with the layer's number and description.
#pragma once

#include <memory>
#include <string>

#include "core/value.h"

namespace tamrix {

// Numbers and descriptions of the layer's own failures.
enum DatabaseFault : long {
  kNoCurrentRecord = 3021,
  kItemNotFound = 3265,
  kBadArguments = 3001,
  kCannotUpdate = 3251,
  kIllegalOperation = 3219,
  kObjectClosed = 3704,
  kCannotFetchBackward = -2147217884,
  kRowNotFound = -2147217864,  // an edit whose row is gone or changed
  kProviderError = -2147467259,  // the database's own message
};

std::string DatabaseFaultDescription(long number);
[[noreturn]] void ThrowDatabaseFault(long number);
[[noreturn]] void ThrowProviderError(const std::string& description);

enum class CursorLocation { Server = 2, Client = 3 };

// Cursor and lock types by their numbers in the language's words.
enum class CursorType { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
enum class LockType { Unspecified = 0, ReadOnly = 1, Pessimistic = 2, Optimistic = 3, BatchOptimistic = 4 };

class DbRecordset {
 public:
  virtual ~DbRecordset() = default;
  virtual void MoveFirst() = 0;
  virtual void MoveLast() = 0;
  virtual void MoveNext() = 0;
  virtual void MovePrevious() = 0;
  virtual void AddNew() = 0;
  // Saves the added or changed current record.
  virtual void Update() = 0;
  // Deletes the current record; the position stays on it until a move.
  virtual void Delete() = 0;
  // Searches forward from the current record, which is included.
  virtual void Find(const std::string& criteria) = 0;
  virtual bool Eof() const = 0;
  virtual bool Bof() const = 0;
  virtual long RecordCount() = 0;
  // The current record's field as text; a null reads as the empty text.
  virtual std::string ReadField(const std::string& name) = 0;
  virtual void WriteField(const std::string& name, const Value& value) = 0;
  virtual void Close() = 0;
};

class DbConnection {
 public:
  virtual ~DbConnection() = default;
  // `programPath` is the folder that takes bare file names.
  virtual void Open(const std::string& connectionString, const std::string& programPath) = 0;
  virtual void Close() = 0;
  virtual void Execute(const std::string& command) = 0;
  virtual void SetCursorLocation(CursorLocation location) = 0;
  // `source` is SQL text or a bare table name.
  virtual std::unique_ptr<DbRecordset> OpenRecordset(const std::string& source, CursorType cursor,
                                                     LockType lock) = 0;
};

class DatabaseLayer {
 public:
  virtual ~DatabaseLayer() = default;
  virtual std::unique_ptr<DbConnection> MakeConnection() = 0;
};

}  // namespace tamrix
