// A recordset on Qt SQL. A scrollable cursor reads the rows of its query
// once and moves among them; its edits go back to the table as statements
// that find the row by the table's primary key (by all its fields when the
// table has none) and carry their values as bound parameters. A
// forward-only cursor reads one row at a time from the live query and can
// neither go back, nor count, nor edit.
#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <string>
#include <unordered_map>
#include <vector>

#include "data/database_layer.h"

namespace tamrix {

class QtRecordset : public DbRecordset {
 public:
  QtRecordset(QSqlDatabase db, const QString& source, CursorType cursor, LockType lock);

  void MoveFirst() override;
  void MoveLast() override;
  void MoveNext() override;
  void MovePrevious() override;
  void AddNew() override;
  void Update() override;
  void Delete() override;
  void Find(const std::string& criteria) override;
  bool Eof() const override { return eof_; }
  bool Bof() const override { return bof_; }
  long RecordCount() override;
  std::string ReadField(const std::string& name) override;
  void WriteField(const std::string& name, const Value& value) override;
  void Close() override;

 private:
  enum class Edit { None, Changed, Added };

  void LoadRows(QSqlQuery& query);
  bool FetchLive();
  void FindEditTarget(const QString& source);
  // Saves a pending edit before the cursor leaves the row.
  void SaveBeforeMove();
  void SetPosition(long index);
  long NextLive(long from, int step) const;
  bool HasLiveRows() const;
  long RowCount() const { return static_cast<long>(deleted_.size()); }
  QVariant* Cells(long row) { return cells_.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(width_); }
  // The current row, which must be there and not deleted.
  long CurrentRow() const;
  int FieldIndex(const std::string& name) const;
  void RequireEditable() const;
  QVariant Converted(int field, const Value& value) const;
  // Takes back a new row that was never stored; the cursor ends past the end.
  void DropAddedRow();
  void Insert(long row);
  void UpdateRow(long row);
  // " WHERE k1 = ? AND ...", with its values added to `bound`.
  QString KeyCondition(const QVariant* values, QList<QVariant>& bound) const;
  QString FieldName(int field) const;

  QSqlDatabase db_;
  QSqlQuery live_;  // forward-only cursors read from it
  QSqlRecord fields_;
  // Field places by upper-cased name, as programs read fields in loops.
  mutable std::unordered_map<std::string, int> fieldPlaces_;
  QString table_;           // the table that edits go to; empty when none
  QList<int> keyFields_;    // fields that find a row again
  bool forwardOnly_ = false;
  bool readOnly_ = false;
  bool returning_ = false;  // INSERT ... RETURNING * gives the stored row
  int width_ = 0;  // fields per row
  // The rows' values, row after row, and a deleted mark per row.
  std::vector<QVariant> cells_;
  std::vector<char> deleted_;
  long position_ = -1;
  bool bof_ = true;
  bool eof_ = true;
  long liveMoves_ = 0;
  Edit edit_ = Edit::None;
  std::vector<QVariant> original_;  // the changed row as it was read
  std::vector<bool> changed_;
};

}  // namespace tamrix
