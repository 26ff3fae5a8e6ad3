// Recordsets on an SQLite file: deleted rows in the moves, saves that fail,
// tables without a primary key, what only reads, and forward-only cursors.
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "bridges/qt_recordset.h"
#include "core/fault.h"

namespace tamrix {
namespace {

class QtRecordsetTest : public ::testing::Test {
 protected:
  QtRecordsetTest() {
    db_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("recordset-test"));
    db_.setDatabaseName(folder_.filePath(QStringLiteral("test.db")));
    db_.open();
    Sql("CREATE TABLE items (id INTEGER PRIMARY KEY, name TEXT, qty INTEGER)");
    Sql("INSERT INTO items VALUES (1, 'bolt', 5), (2, 'nut', 7), (3, 'gear', 1)");
    Sql("CREATE TABLE loose (name TEXT, qty INTEGER)");
    Sql("INSERT INTO loose VALUES ('a', 1), ('b', 2), (NULL, 3)");
  }
  ~QtRecordsetTest() override {
    db_.close();
    db_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("recordset-test"));
  }

  void Sql(const char* text) { ASSERT_TRUE(QSqlQuery(db_).exec(QString::fromLatin1(text))) << text; }
  QString Scalar(const char* text) {
    QSqlQuery query(db_);
    query.exec(QString::fromLatin1(text));
    return query.next() ? query.value(0).toString() : QStringLiteral("none");
  }
  QtRecordset Open(const char* source, CursorType cursor = CursorType::Dynamic, LockType lock = LockType::Optimistic) {
    return QtRecordset(db_, QString::fromLatin1(source), cursor, lock);
  }
  static long FaultOf(const std::function<void()>& work) {
    try {
      work();
    } catch (const RuntimeFault& fault) {
      return fault.Number();
    }
    return 0;
  }

  QTemporaryDir folder_;
  QSqlDatabase db_;
};

TEST_F(QtRecordsetTest, MovesStepOverDeletedRowsAndTheCountLeavesThemOut) {
  QtRecordset rs = Open("SELECT * FROM items ORDER BY id");
  rs.MoveNext();
  rs.Delete();
  EXPECT_FALSE(rs.Eof());
  EXPECT_EQ(FaultOf([&] { rs.ReadField("name"); }), kNoCurrentRecord);
  rs.MovePrevious();
  EXPECT_EQ(rs.ReadField("name"), "bolt");
  rs.MoveNext();
  EXPECT_EQ(rs.ReadField("name"), "gear");
  EXPECT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(Scalar("SELECT count(*) FROM items"), QStringLiteral("2"));
  rs.MoveNext();
  EXPECT_TRUE(rs.Eof());
  EXPECT_EQ(FaultOf([&] { rs.MoveNext(); }), kNoCurrentRecord);
}

TEST_F(QtRecordsetTest, MovingOffAChangedRowSavesItAndAFailedSaveDropsTheEdit) {
  QtRecordset rs = Open("items");
  rs.WriteField("QTY", std::int32_t{50});  // field names in any case
  rs.MoveNext();
  EXPECT_EQ(Scalar("SELECT qty FROM items WHERE id = 1"), QStringLiteral("50"));
  rs.WriteField("id", std::int32_t{1});  // the key of another row
  EXPECT_EQ(FaultOf([&] { rs.Update(); }), -2147467259);
  EXPECT_EQ(rs.ReadField("id"), "2");
  rs.MoveNext();  // nothing pending any more
  EXPECT_EQ(rs.ReadField("name"), "gear");
}

TEST_F(QtRecordsetTest, AddedRowsComeBackWithTheirGeneratedKey) {
  QtRecordset rs = Open("items");
  rs.AddNew();
  rs.WriteField("name", std::string("washer"));
  rs.Update();
  EXPECT_EQ(rs.ReadField("id"), "4");
  EXPECT_EQ(rs.ReadField("qty"), "");
  EXPECT_EQ(rs.RecordCount(), 4);
  EXPECT_EQ(FaultOf([&] { rs.WriteField("qty", std::string("lots")); }), kTypeMismatch);
  rs.WriteField("qty", std::string(""));
  rs.Update();
  EXPECT_EQ(Scalar("SELECT qty IS NULL FROM items WHERE id = 4"), QStringLiteral("1"));
}

TEST_F(QtRecordsetTest, ATableWithoutAKeyFindsItsRowsByAllTheirFields) {
  QtRecordset rs = Open("loose");
  rs.MoveLast();
  rs.WriteField("qty", std::int32_t{30});  // a row whose name is null
  rs.Update();
  rs.MoveFirst();
  rs.Delete();
  EXPECT_EQ(Scalar("SELECT group_concat(coalesce(name, '-') || qty) FROM loose"), QStringLiteral("b2,-30"));
}

TEST_F(QtRecordsetTest, JoinsGroupsKeylessQueriesAndReadOnlyLocksCantBeEdited) {
  for (const char* source : {"SELECT i.name FROM items i JOIN loose l ON l.qty = i.qty",
                             "SELECT qty, count(*) FROM items GROUP BY qty", "SELECT 1 + 1",
                             "SELECT name FROM items"}) {
    QtRecordset rs = Open(source);
    EXPECT_EQ(FaultOf([&] { rs.AddNew(); }), kCannotUpdate) << source;
  }
  QtRecordset readOnly = Open("items", CursorType::Static, LockType::ReadOnly);
  EXPECT_EQ(FaultOf([&] { readOnly.Delete(); }), kCannotUpdate);
  EXPECT_EQ(FaultOf([&] { Open("items", CursorType::Keyset, LockType::Unspecified); }), kBadArguments);
}

TEST_F(QtRecordsetTest, ForwardOnlyGoesForwardOnly) {
  QtRecordset rs = Open("SELECT * FROM items ORDER BY id", CursorType::ForwardOnly, LockType::ReadOnly);
  rs.MoveFirst();  // still on the first row
  rs.Find("name = 'gear'");
  EXPECT_EQ(rs.ReadField("qty"), "1");
  EXPECT_EQ(FaultOf([&] { rs.MoveFirst(); }), kCannotFetchBackward);
  EXPECT_EQ(FaultOf([&] { rs.MoveLast(); }), kCannotFetchBackward);
  EXPECT_EQ(FaultOf([&] { rs.MovePrevious(); }), kCannotFetchBackward);
  EXPECT_EQ(rs.RecordCount(), -1);
  rs.MoveNext();
  EXPECT_TRUE(rs.Eof());
  EXPECT_FALSE(rs.Bof());
  QtRecordset empty = Open("SELECT * FROM items WHERE id < 0", CursorType::ForwardOnly, LockType::ReadOnly);
  EXPECT_TRUE(empty.Eof());
  EXPECT_TRUE(empty.Bof());
}

TEST_F(QtRecordsetTest, FindStartsAtTheCurrentRowAndEndsAtTheEnd) {
  QtRecordset rs = Open("SELECT * FROM items ORDER BY id");
  rs.Find("qty > 4");
  EXPECT_EQ(rs.ReadField("name"), "bolt");
  rs.MoveNext();
  rs.Find("qty > 4");
  EXPECT_EQ(rs.ReadField("name"), "nut");
  rs.MoveNext();
  rs.Find("qty > 4");
  EXPECT_TRUE(rs.Eof());
  EXPECT_EQ(FaultOf([&] { rs.Find("colour = 'red'"); }), kItemNotFound);
}

}  // namespace
}  // namespace tamrix
