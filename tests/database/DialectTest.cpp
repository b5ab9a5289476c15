#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "database/PostgresDialect.h"
#include "database/SqliteDialect.h"
#include "database/StatementShapes.h"
#include "util/Error.h"

namespace vantrel::test {
namespace {

// The translated text, followed by the parameters with their kinds.
std::string Shown(const EngineStatement& pobjStatement) {
  std::string text = pobjStatement.Text;
  for (const Variant& value : pobjStatement.Parameters) {
    text += value.IsText() ? " |t:" : value.IsDate() ? " |d:" : value.IsBoolean() ? " |b:" : " |";
    text += value.ToText();
  }
  return pobjStatement.IsReusable ? text : text + " (once)";
}

std::string Sqlite(std::string_view pstrSql) { return Shown(SqliteDialect().Translate(pstrSql)); }
std::string Postgres(std::string_view pstrSql) { return Shown(PostgresDialect().Translate(pstrSql)); }

struct Case {
  const char* Statement;
  const char* Sqlite;
  const char* Postgres;
};

TEST(Dialect, StatementsBecomeTheEnginesOwn) {
  const Case cases[] = {
      {"DELETE * FROM Transition WHERE WorkflowId = -5", R"(DELETE FROM "Transition" WHERE "WorkflowId" = ? |-5)",
       R"(DELETE FROM "transition" WHERE "workflowid" = $1 |-5)"},
      {" SELECT *    FROM Place   WHERE WorkflowId = 7;", R"(SELECT * FROM "Place" WHERE "WorkflowId" = ? |7)",
       R"(SELECT * FROM "place" WHERE "workflowid" = $1 |7)"},
      {"select max(Id) as MaxId from Token", R"(select max("Id") as "MaxId" from "Token")", R"(select max("id") as "maxid" from "token")"},
      {"SELECT Max, [Count], COUNT(*) FROM T GROUP BY Max ORDER BY 2 DESC",
       R"(SELECT "Max", "Count", COUNT(*) FROM "T" GROUP BY "Max" ORDER BY 2 DESC)",
       R"(SELECT "max", "count", COUNT(*) FROM "t" GROUP BY "max" ORDER BY 2 DESC)"},
      {"SELECT Order, Group, Left, T.Select FROM [Order] ORDER BY Index, Order",
       R"(SELECT "Order", "Group", "Left", "T"."Select" FROM "Order" ORDER BY "Index", "Order")",
       R"(SELECT "order", "group", "left", "t"."select" FROM "order" ORDER BY "index", "order")"},
      {"INSERT INTO T(a, [Value])VALUES(-1,- 2.5e-3,+3, 2147483648,-2147483648)",
       R"(INSERT INTO "T" ("a", "Value") VALUES (?, ?, ?, ?, ?) |-1 |-0.0025 |3 |2147483648 |-2147483648)",
       R"(INSERT INTO "t" ("a", "value") VALUES ($1, $2, $3, $4, $5) |-1 |-0.0025 |3 |2147483648 |-2147483648)"},
      {"UPDATE T SET a = a-1, b = True, c=#2026-11-23 14:05:09#, d='#x# [y] True -1'",
       R"(UPDATE "T" SET "a" = "a" - ?, "b" = ?, "c" = ?, "d" = ? |1 |b:True |d:2026-11-23 14:05:09 |t:#x# [y] True -1)",
       R"(UPDATE "t" SET "a" = "a" - $1, "b" = $2, "c" = $3, "d" = $4 |1 |b:True |d:2026-11-23 14:05:09 |t:#x# [y] True -1)"},
      {"UPDATE T SET a = '''); DELETE * FROM T; --', b = ''", R"(UPDATE "T" SET "a" = ?, "b" = ? |t:'); DELETE * FROM T; -- |t:)",
       R"(UPDATE "t" SET "a" = $1, "b" = $2 |t:'); DELETE * FROM T; -- |t:)"},
      {"DELETE * FROM T WHERE a = 1 AND T.Id NOT IN (1, -2, 'it''s', #0001-01-01 00:00:00#, False) AND b = 2",
       R"(DELETE FROM "T" WHERE "a" = ? AND "T"."Id" NOT IN (1, - 2, 'it''s', '0001-01-01 00:00:00', 0) AND "b" = ? |1 |2 (once))",
       R"(DELETE FROM "t" WHERE "a" = $1 AND "t"."id" NOT IN (1, - 2, 'it''s', TIMESTAMP '0001-01-01 00:00:00', FALSE) AND "b" = $2 |1 |2 (once))"},
      {"SELECT a FROM T WHERE b IN (SELECT c FROM U WHERE d <> 1) AND e >= .5",
       R"(SELECT "a" FROM "T" WHERE "b" IN (SELECT "c" FROM "U" WHERE "d" <> ?) AND "e" >= ? |1 |0.5)",
       R"(SELECT "a" FROM "t" WHERE "b" IN (SELECT "c" FROM "u" WHERE "d" <> $1) AND "e" >= $2 |1 |0.5)"},
  };
  for (const Case& example : cases) {
    EXPECT_EQ(Sqlite(example.Statement), example.Sqlite);
    EXPECT_EQ(Postgres(example.Statement), example.Postgres);
  }
}

TEST(Dialect, WhatIsNoStatementIsRefused) {
  for (const std::string_view statement : {"",
                                           "  ",
                                           "DROP TABLE Place",
                                           "PRAGMA writable_schema = 1",
                                           "[SELECT] 1",
                                           "SELECT 'a",
                                           "SELECT 'a''",
                                           "SELECT [a",
                                           "SELECT [] FROM T",
                                           "SELECT #2026-01-01",
                                           "SELECT #2026-02-30#",
                                           "SELECT #0000-01-01#",
                                           "SELECT #1/2/2026#",
                                           "SELECT #2026-01-01 24:00:00#",
                                           "SELECT 1; DELETE * FROM T",
                                           "SELECT a FROM T WHERE a IN (1; 2)",
                                           "SELECT a FROM T WHERE a IN (1, 2",
                                           "SELECT \"a\"",
                                           "SELECT $1",
                                           "SELECT ?",
                                           "SELECT a | b",
                                           "SELECT 1e999",
                                           "SELECT 1e",
                                           "SELECT 12ab"}) {
    EXPECT_THROW(SqliteDialect().Translate(statement), Error) << statement;
  }
}

// Every statement comes after each of the others, so that it meets their shapes.
TEST(Dialect, AStatementOfAKnownShapeIsTranslatedAsAnyOther) {
  const std::string_view statements[] = {"SELECT a FROM T WHERE b = 1",
                                         "SELECT a FROM T WHERE b = -7.5",
                                         "SELECT a FROM T WHERE b = - 7",
                                         "SELECT a FROM T WHERE b = 2e3",
                                         "SELECT a FROM T WHERE b = .5",
                                         "SELECT a FROM T WHERE b = 2147483648;",
                                         "SELECT a FROM T WHERE b = 1 -2",
                                         "SELECT a FROM T WHERE b = 1 - -2",
                                         "SELECT a FROM T WHERE b = '1'",
                                         "SELECT a FROM T WHERE b = 'it''s' AND c = '' AND d = 3",
                                         "SELECT a FROM T WHERE b = '' AND c = ''' AND d = 4' AND d = 5",
                                         "SELECT a FROM T WHERE b = True AND c = 1",
                                         "SELECT a FROM T WHERE b = False AND c = 2",
                                         "SELECT a FROM T WHERE b = 1 AND c IN (1, 2)",
                                         "SELECT a FROM T WHERE b = 2 AND c IN (1, 3)",
                                         "SELECT a FROM T WHERE b = 1.5.5",
                                         "SELECT a FROM T WHERE b = 12.5",
                                         "SELECT a FROM T WHERE b = 1 ORDER BY 2",
                                         "SELECT a FROM T WHERE b = 1 ORDER BY 3",
                                         "SELECT X1 FROM T WHERE b = 1",
                                         "SELECT X2 FROM T WHERE b = 1"};
  const SqliteDialect dialect;
  for (const std::string_view first : statements) {
    for (const std::string_view second : statements) {
      StatementShapes shapes;
      shapes.Translate(dialect, first);
      EXPECT_EQ(Shown(shapes.Translate(dialect, second)), Sqlite(second)) << "after " << first;
    }
  }
  StatementShapes shapes;
  for (int i = 0; i < 40; ++i) {
    const std::string text = "SELECT a" + std::to_string(i) + "x FROM T WHERE b = 'x'";
    EXPECT_EQ(Shown(shapes.Translate(dialect, text)), Sqlite(text));
  }
  shapes.Translate(dialect, "SELECT a FROM T WHERE b = 'x'");
  for (const std::string_view bad : {"SELECT a FROM T WHERE b = 'x", "SELECT a FROM T WHERE b = 1 2x", "SELECT a FROM T WHERE b = 1x"}) {
    EXPECT_THROW(shapes.Translate(dialect, bad), Error) << bad;
  }
  EXPECT_THROW(shapes.Translate(dialect, std::string_view("SELECT a FROM T WHERE b = 'x\0y'", 31)), Error);
}

TEST(Dialect, ACommentIsArithmetic) {
  EXPECT_EQ(Sqlite("DELETE * FROM T WHERE a = 1 --x"), R"(DELETE FROM "T" WHERE "a" = ? - - "x" |1)");
  EXPECT_EQ(Sqlite("DELETE * FROM T /* x */"), R"(DELETE FROM "T" / * "x" * /)");
}

TEST(Dialect, NamesOfRowSetsCannotEndTheirQuotes) {
  const std::string name = "a\"; DROP TABLE B; --";
  EXPECT_EQ(SqliteDialect().InsertRow("T", {name}, {Variant(1.0)}).Text, R"(INSERT INTO "T" ("a""; DROP TABLE B; --") VALUES (?))");
  EXPECT_EQ(PostgresDialect().InsertRow("T", {}, {}).Text, R"(INSERT INTO "t" DEFAULT VALUES RETURNING "id")");
  EXPECT_EQ(Shown(PostgresDialect().UpdateRow("T", {"A", "b"}, {Variant("x"), Variant(true)}, 4)),
            R"(UPDATE "t" SET "a" = $1, "b" = $2 WHERE "id" = $3 |t:x |b:True |4)");
}

TEST(Dialect, TheTableOfASource) {
  const std::pair<const char*, const char*> cases[] = {{"Arc", "Arc"},
                                                       {" [Order] ", "Order"},
                                                       {"SELECT * FROM Place WHERE Id = 1", "Place"},
                                                       {"SELECT a FROM [T]", "T"},
                                                       {"SELECT (SELECT b FROM U) FROM T WHERE c IN (SELECT d FROM V)", "T"},
                                                       {"SELECT * FROM A, B", ""},
                                                       {"SELECT * FROM A INNER JOIN B ON A.x = B.x", ""},
                                                       {"SELECT * FROM (SELECT * FROM A)", ""},
                                                       {"SELECT 1", ""},
                                                       {"A B", ""},
                                                       {"'A'", ""}};
  for (const auto& [source, table] : cases) EXPECT_EQ(Dialect::TableOf(source), table) << source;
}

}  // namespace
}  // namespace vantrel::test
