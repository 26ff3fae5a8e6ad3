#include "bridges/qt_recordset.h"

#include <QDate>
#include <QDateTime>
#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlIndex>
#include <QTime>
#include <algorithm>

#include "bridges/qt_database.h"
#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/find_criteria.h"

namespace tamrix {
namespace {

bool IsIntegralType(int id) {
  switch (id) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong: return true;
    default: return false;
  }
}

bool IsNumericType(int id) { return IsIntegralType(id) || id == QMetaType::Double || id == QMetaType::Float; }

// A database value as the language reads it: numbers in the regional form,
// dates as year-month-day, a null as the empty text.
std::string LanguageValue(const QVariant& value) {
  if (!value.isValid() || value.isNull()) return std::string();
  switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float: return NumberText(value.toDouble());
    case QMetaType::Bool: return value.toBool() ? "True" : "False";
    case QMetaType::QByteArray: return value.toByteArray().toStdString();
    case QMetaType::QDate: return value.toDate().toString(Qt::ISODate).toStdString();
    case QMetaType::QDateTime: return value.toDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")).toStdString();
    case QMetaType::QTime: return value.toTime().toString(QStringLiteral("hh:mm:ss")).toStdString();
    default: return LanguageText(value.toString());
  }
}

// The table of a one-table SELECT, or empty: joins, groups and unions
// give rows that no single statement can change.
QString TableOfSelect(const QString& sql) {
  static const QRegularExpression kSelect(
      QStringLiteral(R"(^\s*SELECT\s.+?\sFROM\s+("[^"]+"|[\w.]+)\s*(?:;?\s*$|WHERE\s|ORDER\s))"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression kUnion(QStringLiteral(R"(\b(UNION|JOIN|GROUP\s+BY)\b)"),
                                         QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = kSelect.match(sql);
  if (!match.hasMatch() || kUnion.match(sql).hasMatch()) return QString();
  return match.captured(1);
}

// Runs one of our own statements with its values bound, never spliced in;
// a statement that touches no row means the row is gone.
void ExecuteOnRow(const QSqlDatabase& db, const QString& sql, const QList<QVariant>& bound) {
  QSqlQuery query(db);
  if (!query.prepare(sql)) ThrowSqlError(query.lastError());
  for (const QVariant& value : bound) query.addBindValue(value);
  if (!query.exec()) ThrowSqlError(query.lastError());
  if (query.numRowsAffected() == 0) ThrowDatabaseFault(kRowNotFound);
}

}  // namespace

QtRecordset::QtRecordset(QSqlDatabase db, const QString& source, CursorType cursor, LockType lock)
    : db_(std::move(db)), live_(db_), forwardOnly_(cursor == CursorType::ForwardOnly) {
  if (lock == LockType::Unspecified) ThrowDatabaseFault(kBadArguments);
  readOnly_ = forwardOnly_ || lock == LockType::ReadOnly;
  const QString text = source.trimmed();
  static const QRegularExpression kBlank(QStringLiteral(R"(\s)"));
  const bool bareName = !text.contains(kBlank);
  table_ = bareName ? text : TableOfSelect(text);
  returning_ = db_.driverName() == QLatin1String("QSQLITE") || db_.driverName() == QLatin1String("QPSQL");
  live_.setForwardOnly(true);
  if (!live_.exec(bareName ? QStringLiteral("SELECT * FROM ") + text : text)) ThrowSqlError(live_.lastError());
  if (!live_.isSelect()) ThrowDatabaseFault(kObjectClosed);
  fields_ = live_.record();
  width_ = fields_.count();
  if (forwardOnly_) {
    FetchLive();
    return;
  }
  LoadRows(live_);
  live_.finish();
  if (HasLiveRows()) SetPosition(0);
  if (!readOnly_ && !table_.isEmpty()) {
    // A key that the query leaves out can't find its rows: no edits then.
    const QSqlIndex primary = db_.primaryIndex(table_);
    for (int i = 0; i < primary.count(); ++i) {
      const int field = fields_.indexOf(primary.fieldName(i));
      if (field < 0) {
        keyFields_.clear();
        break;
      }
      keyFields_.append(field);
    }
    if (primary.isEmpty()) {
      for (int i = 0; i < width_; ++i) keyFields_.append(i);
    }
  }
}

void QtRecordset::LoadRows(QSqlQuery& query) {
  while (query.next()) {
    for (int i = 0; i < width_; ++i) cells_.push_back(query.value(i));
    deleted_.push_back(0);
  }
  if (query.lastError().isValid()) ThrowSqlError(query.lastError());
}

bool QtRecordset::FetchLive() {
  if (live_.next()) {
    cells_.clear();
    for (int i = 0; i < width_; ++i) cells_.push_back(live_.value(i));
    deleted_.assign(1, 0);
    SetPosition(0);
    return true;
  }
  if (live_.lastError().isValid()) ThrowSqlError(live_.lastError());
  cells_.clear();
  deleted_.clear();
  position_ = 0;
  eof_ = true;
  bof_ = liveMoves_ == 0;
  return false;
}

void QtRecordset::SetPosition(long index) {
  position_ = index;
  bof_ = false;
  eof_ = false;
}

long QtRecordset::NextLive(long from, int step) const {
  long i = from + step;
  while (i >= 0 && i < RowCount() && deleted_[static_cast<std::size_t>(i)]) i += step;
  return i;
}

bool QtRecordset::HasLiveRows() const { return NextLive(-1, 1) < RowCount(); }

void QtRecordset::SaveBeforeMove() {
  if (edit_ != Edit::None) Update();
}

void QtRecordset::MoveFirst() {
  if (forwardOnly_) {
    if (liveMoves_ > 0) ThrowDatabaseFault(kCannotFetchBackward);
    if (eof_) ThrowDatabaseFault(kNoCurrentRecord);
    return;
  }
  SaveBeforeMove();
  const long first = NextLive(-1, 1);
  if (first >= RowCount()) ThrowDatabaseFault(kNoCurrentRecord);
  SetPosition(first);
}

void QtRecordset::MoveLast() {
  if (forwardOnly_) ThrowDatabaseFault(kCannotFetchBackward);
  SaveBeforeMove();
  const long last = NextLive(RowCount(), -1);
  if (last < 0) ThrowDatabaseFault(kNoCurrentRecord);
  SetPosition(last);
}

void QtRecordset::MoveNext() {
  if (eof_) ThrowDatabaseFault(kNoCurrentRecord);
  if (forwardOnly_) {
    ++liveMoves_;
    FetchLive();
    return;
  }
  SaveBeforeMove();
  const long next = NextLive(position_, 1);
  if (next >= RowCount()) {
    position_ = RowCount();
    eof_ = true;
    bof_ = false;
  } else {
    SetPosition(next);
  }
}

void QtRecordset::MovePrevious() {
  if (forwardOnly_) ThrowDatabaseFault(kCannotFetchBackward);
  if (bof_) ThrowDatabaseFault(kNoCurrentRecord);
  SaveBeforeMove();
  const long previous = NextLive(position_, -1);
  if (previous < 0) {
    position_ = -1;
    bof_ = true;
    eof_ = false;
  } else {
    SetPosition(previous);
  }
}

void QtRecordset::AddNew() {
  RequireEditable();
  SaveBeforeMove();
  cells_.resize(cells_.size() + static_cast<std::size_t>(width_));
  deleted_.push_back(0);
  SetPosition(RowCount() - 1);
  edit_ = Edit::Added;
  changed_.assign(static_cast<std::size_t>(fields_.count()), false);
}

void QtRecordset::Update() {
  if (edit_ == Edit::None) return;
  const long row = position_;
  const Edit edit = edit_;
  // A save that fails drops the edit, so that the next move is not refused
  // for the same reason.
  edit_ = Edit::None;
  try {
    if (edit == Edit::Added) {
      Insert(row);
    } else {
      UpdateRow(row);
    }
  } catch (const RuntimeFault&) {
    if (edit == Edit::Added) {
      DropAddedRow();
    } else {
      std::copy(original_.begin(), original_.end(), Cells(row));
    }
    throw;
  }
}

void QtRecordset::Insert(long row) {
  QVariant* values = Cells(row);
  QStringList names;
  QStringList marks;
  for (int i = 0; i < fields_.count(); ++i) {
    if (!changed_[static_cast<std::size_t>(i)]) continue;
    names << FieldName(i);
    marks << QStringLiteral("?");
  }
  QString sql = QStringLiteral("INSERT INTO ") + table_;
  sql += names.isEmpty() ? QStringLiteral(" DEFAULT VALUES")
                         : QStringLiteral(" (%1) VALUES (%2)").arg(names.join(QStringLiteral(", ")),
                                                                    marks.join(QStringLiteral(", ")));
  if (returning_) sql += QStringLiteral(" RETURNING *");
  QSqlQuery query(db_);
  if (!query.prepare(sql)) ThrowSqlError(query.lastError());
  for (int i = 0; i < fields_.count(); ++i) {
    if (changed_[static_cast<std::size_t>(i)]) query.addBindValue(values[i]);
  }
  if (!query.exec()) ThrowSqlError(query.lastError());
  // The stored row, with its defaults and generated keys.
  if (returning_ && query.next()) {
    const QSqlRecord stored = query.record();
    for (int i = 0; i < fields_.count(); ++i) {
      const int j = stored.indexOf(fields_.fieldName(i));
      if (j >= 0) values[i] = query.value(j);
    }
  }
}

void QtRecordset::UpdateRow(long row) {
  const QVariant* values = Cells(row);
  QStringList sets;
  QList<QVariant> bound;
  for (int i = 0; i < fields_.count(); ++i) {
    if (!changed_[static_cast<std::size_t>(i)]) continue;
    sets << FieldName(i) + QStringLiteral(" = ?");
    bound << values[i];
  }
  if (sets.isEmpty()) return;
  const QString sql = QStringLiteral("UPDATE ") + table_ + QStringLiteral(" SET ") + sets.join(QStringLiteral(", ")) +
                      KeyCondition(original_.data(), bound);
  ExecuteOnRow(db_, sql, bound);
}

void QtRecordset::Delete() {
  RequireEditable();
  if (edit_ == Edit::Added) {
    // The new record was never stored: it is simply dropped.
    edit_ = Edit::None;
    DropAddedRow();
    return;
  }
  const long row = CurrentRow();
  if (edit_ == Edit::Changed) {
    std::copy(original_.begin(), original_.end(), Cells(row));
    edit_ = Edit::None;
  }
  QList<QVariant> bound;
  ExecuteOnRow(db_, QStringLiteral("DELETE FROM ") + table_ + KeyCondition(Cells(row), bound), bound);
  deleted_[static_cast<std::size_t>(row)] = 1;
}

void QtRecordset::DropAddedRow() {
  cells_.resize(cells_.size() - static_cast<std::size_t>(width_));
  deleted_.pop_back();
  position_ = RowCount();
  eof_ = true;
  bof_ = false;
}

void QtRecordset::Find(const std::string& criteria) {
  const std::optional<FindCriteria> wanted = ReadFindCriteria(criteria);
  if (!wanted) ThrowDatabaseFault(kBadArguments);
  const int field = FieldIndex(wanted->field);
  const auto matches = [&](long row) {
    const QVariant& value = Cells(row)[field];
    const bool isNull = !value.isValid() || value.isNull();
    return MatchesCriteria(*wanted, isNull ? std::string() : LanguageText(value.toString()), isNull);
  };
  if (eof_) return;
  if (forwardOnly_) {
    while (!eof_ && !matches(0)) MoveNext();
    return;
  }
  SaveBeforeMove();
  const long size = RowCount();
  for (long i = position_ < 0 ? NextLive(-1, 1) : position_; i < size; i = NextLive(i, 1)) {
    if (!deleted_[static_cast<std::size_t>(i)] && matches(i)) {
      SetPosition(i);
      return;
    }
  }
  position_ = size;
  eof_ = true;
  bof_ = false;
}

long QtRecordset::RecordCount() {
  if (forwardOnly_) return -1;
  return static_cast<long>(std::count(deleted_.begin(), deleted_.end(), 0));
}

long QtRecordset::CurrentRow() const {
  if (eof_ || bof_ || position_ < 0 || position_ >= RowCount() || deleted_[static_cast<std::size_t>(position_)]) {
    ThrowDatabaseFault(kNoCurrentRecord);
  }
  return position_;
}

int QtRecordset::FieldIndex(const std::string& name) const {
  const std::string key = Upper(Trim(name));
  auto place = fieldPlaces_.find(key);
  if (place == fieldPlaces_.end()) place = fieldPlaces_.emplace(key, fields_.indexOf(SqlText(Trim(name)))).first;
  if (place->second < 0) ThrowDatabaseFault(kItemNotFound);
  return place->second;
}

std::string QtRecordset::ReadField(const std::string& name) {
  const int field = FieldIndex(name);
  return LanguageValue(Cells(CurrentRow())[field]);
}

void QtRecordset::WriteField(const std::string& name, const Value& value) {
  RequireEditable();
  const int field = FieldIndex(name);
  const long row = CurrentRow();
  QVariant converted = Converted(field, value);
  if (edit_ == Edit::None) {
    edit_ = Edit::Changed;
    original_.assign(Cells(row), Cells(row) + width_);
    changed_.assign(static_cast<std::size_t>(width_), false);
  }
  Cells(row)[field] = std::move(converted);
  changed_[static_cast<std::size_t>(field)] = true;
}

void QtRecordset::RequireEditable() const {
  if (readOnly_ || table_.isEmpty() || keyFields_.isEmpty()) ThrowDatabaseFault(kCannotUpdate);
}

// A language value in the field's type: a text that is no number can't go
// into a numeric field, and an empty one makes it null.
QVariant QtRecordset::Converted(int field, const Value& value) const {
  const int type = fields_.field(field).metaType().id();
  if (!IsNumericType(type)) return SqlText(TextOf(value));
  double number = 0;
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (Trim(*text).empty()) return QVariant();
    const std::optional<double> read = ParseRegionalNumber(*text);
    if (!read) Throw(kTypeMismatch);
    number = *read;
  } else {
    number = NumberOf(value);
  }
  if (IsIntegralType(type) && number == static_cast<double>(static_cast<qlonglong>(number))) {
    return QVariant(static_cast<qlonglong>(number));
  }
  return QVariant(number);
}

QString QtRecordset::KeyCondition(const QVariant* values, QList<QVariant>& bound) const {
  QStringList parts;
  for (int field : keyFields_) {
    if (!values[field].isValid() || values[field].isNull()) {
      parts << FieldName(field) + QStringLiteral(" IS NULL");
    } else {
      parts << FieldName(field) + QStringLiteral(" = ?");
      bound << values[field];
    }
  }
  return QStringLiteral(" WHERE ") + parts.join(QStringLiteral(" AND "));
}

QString QtRecordset::FieldName(int field) const {
  return db_.driver()->escapeIdentifier(fields_.fieldName(field), QSqlDriver::FieldName);
}

void QtRecordset::Close() {
  live_.finish();
  cells_.clear();
  deleted_.clear();
  edit_ = Edit::None;
  bof_ = true;
  eof_ = true;
}

}  // namespace tamrix
