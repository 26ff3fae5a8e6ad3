// The texts that the SQL layer reads: connection strings and the criteria
// of a search.
#include <gtest/gtest.h>

#include "data/connection_string.h"
#include "data/find_criteria.h"

namespace tamrix {
namespace {

TEST(ConnectionStringTest, FilesOpenAsSqliteAndBareNamesLiveBesideTheProgram) {
  EXPECT_EQ(ReadConnectionString("shop.db", "/app/").database, "/app/shop.db");
  EXPECT_EQ(ReadConnectionString(" data\\Shop.SQLite3 ", "/app/").database, "data/Shop.SQLite3");
  EXPECT_EQ(ReadConnectionString("Data Source=/var/shop.sqlite;Version=3", "/app/").database, "/var/shop.sqlite");
  EXPECT_EQ(ReadConnectionString("data source = shop.db", "/app/").kind, DatabaseKind::Sqlite);
  for (const char* nothing : {"", "shop", "shop.mdb", "Data Source=shop.mdb", "Provider=Jet;Data Source=x"}) {
    EXPECT_EQ(ReadConnectionString(nothing, "/app/").kind, DatabaseKind::None) << nothing;
  }
}

TEST(ConnectionStringTest, DriverAndDsnStringsGoWholeToOdbc) {
  const ConnectionTarget target = ReadConnectionString("Driver={SQLite3};Database=/tmp/a.db", "/app/");
  EXPECT_EQ(target.kind, DatabaseKind::Odbc);
  EXPECT_EQ(target.database, "Driver={SQLite3};Database=/tmp/a.db");
  EXPECT_EQ(ReadConnectionString("DSN=shop;UID=me", "/app/").kind, DatabaseKind::Odbc);
}

TEST(ConnectionStringTest, PostgreSqlKeysAndUrls) {
  ConnectionTarget keys = ReadConnectionString(
      "Provider=PostgreSQL;Host=db.local;Port=6543;Database=shop;User ID=ana;Password=a;b", "/app/");
  EXPECT_EQ(keys.kind, DatabaseKind::PostgreSql);
  EXPECT_EQ(keys.host, "db.local");
  EXPECT_EQ(keys.port, 6543);
  EXPECT_EQ(keys.database, "shop");
  EXPECT_EQ(keys.user, "ana");
  EXPECT_EQ(keys.password, "a");  // a ";" ends a value
  ConnectionTarget url = ReadConnectionString("postgresql://ana:p%40ss@%2Frun%2Fpg:5433/shop?sslmode=disable", "");
  EXPECT_EQ(url.kind, DatabaseKind::PostgreSql);
  EXPECT_EQ(url.user, "ana");
  EXPECT_EQ(url.password, "p@ss");
  EXPECT_EQ(url.host, "/run/pg");
  EXPECT_EQ(url.port, 5433);
  EXPECT_EQ(url.database, "shop");
  ConnectionTarget bare = ReadConnectionString("POSTGRES://server/db", "");
  EXPECT_EQ(bare.host, "server");
  EXPECT_EQ(bare.port, -1);
  EXPECT_EQ(bare.user, "");
  EXPECT_EQ(ReadConnectionString("Provider=PostgreSQL;Port=x", "").port, -1);
}

TEST(FindCriteriaTest, ReadsFieldOperatorAndValue) {
  auto c = ReadFindCriteria("name = 'O''Brien'");
  ASSERT_TRUE(c);
  EXPECT_EQ(c->field, "name");
  EXPECT_EQ(c->op, CriteriaOperator::Equal);
  EXPECT_EQ(c->value, "O'Brien");
  EXPECT_TRUE(c->textual);
  c = ReadFindCriteria("[unit price]>=2.5");
  ASSERT_TRUE(c);
  EXPECT_EQ(c->field, "unit price");
  EXPECT_EQ(c->op, CriteriaOperator::GreaterOrEqual);
  EXPECT_FALSE(c->textual);
  c = ReadFindCriteria("born < #2001-02-03#");
  ASSERT_TRUE(c);
  EXPECT_EQ(c->value, "2001-02-03");
  ASSERT_TRUE(ReadFindCriteria("qty <> 3"));
  EXPECT_EQ(ReadFindCriteria("qty <> 3")->op, CriteriaOperator::NotEqual);
  EXPECT_EQ(ReadFindCriteria("name like 'P*'")->op, CriteriaOperator::Like);
  for (const char* bad : {"", "name", "= 3", "name = ", "name = abc", "name ~ 3", "[name = 3"}) {
    EXPECT_FALSE(ReadFindCriteria(bad)) << bad;
  }
}

TEST(FindCriteriaTest, NumbersCompareAsNumbersTextsWithoutCase) {
  EXPECT_TRUE(MatchesCriteria(*ReadFindCriteria("qty > 9"), "10", false));  // not "10" < "9"
  EXPECT_TRUE(MatchesCriteria(*ReadFindCriteria("qty = 2.50"), "2.5", false));
  EXPECT_TRUE(MatchesCriteria(*ReadFindCriteria("name = 'pen'"), "PEN", false));
  EXPECT_TRUE(MatchesCriteria(*ReadFindCriteria("name < 'b'"), "Apple", false));
  EXPECT_FALSE(MatchesCriteria(*ReadFindCriteria("name <> 'x'"), "", true));  // a null matches nothing
}

TEST(FindCriteriaTest, LikeTakesBothWildcardForms) {
  const auto starts = *ReadFindCriteria("name LIKE 'pa*'");
  EXPECT_TRUE(MatchesCriteria(starts, "Paper", false));
  EXPECT_FALSE(MatchesCriteria(starts, "Spade", false));
  const auto inside = *ReadFindCriteria("name LIKE '%a_e%'");
  EXPECT_TRUE(MatchesCriteria(inside, "Paper", false));
  EXPECT_TRUE(MatchesCriteria(inside, "grape", false));
  EXPECT_FALSE(MatchesCriteria(inside, "Pen", false));
  EXPECT_TRUE(MatchesCriteria(*ReadFindCriteria("code LIKE '?7'"), "07", false));
}

}  // namespace
}  // namespace tamrix
