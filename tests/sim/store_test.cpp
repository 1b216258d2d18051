// The tables: the SQL store's record numbers, the CSV reader, and the seeding that refuses
// a wrong CSV before anything is written.
#include <unistd.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "document/state.h"
#include "sim/sql_store.h"
#include "sim/tables.h"
#include "tests/sim/sim_app.h"

namespace kq::sim {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Names(SqlStore& s, const std::vector<SqlColumn>& cols) {
  std::vector<std::string> out;
  for (int64_t n = 1; n <= s.Count("T"); ++n) {
    std::vector<Value> v;
    EXPECT_TRUE(s.Read("T", cols, n, v));
    out.push_back(v[1].s);
  }
  return out;
}

TEST(SimSqlStore, RecordNumbersStayWithoutGaps) {
  std::string error;
  auto s = SqlStore::Open("", error);
  ASSERT_TRUE(s);
  const std::vector<SqlColumn> cols{{"ID", VType::Long}, {"NAME", VType::String}};
  ASSERT_TRUE(s->Create("T", cols));
  for (int i = 1; i <= 3; ++i) {
    s->InsertAt("T", cols, i, {Value::OfLong(i), Value::OfString(std::string(1, 'a' + i - 1))});
  }
  ASSERT_TRUE(s->InsertAt("T", cols, 2, {Value::OfLong(9), Value::OfString("x")}));
  EXPECT_EQ(Names(*s, cols), (std::vector<std::string>{"a", "x", "b", "c"}));
  ASSERT_TRUE(s->Delete("T", 1));
  EXPECT_EQ(Names(*s, cols), (std::vector<std::string>{"x", "b", "c"}));
  ASSERT_TRUE(s->Update("T", cols, 3, {Value::OfLong(3), Value::OfString("z")}));
  EXPECT_EQ(Names(*s, cols), (std::vector<std::string>{"x", "b", "z"}));
  EXPECT_EQ(s->Select("T", cols, {{0, 5, Value::OfLong(3)}}), (std::vector<int64_t>{1, 3}));
  EXPECT_EQ(s->Select("T", cols, {{0, 5, Value::OfLong(3)}, {1, 1, Value::OfString("z")}}),
            (std::vector<int64_t>{1}));
  ASSERT_TRUE(s->Empty("T"));
  EXPECT_EQ(s->Count("T"), 0);
}

TEST(SimSqlStore, ANameWithAQuoteIsOneIdentifier) {
  std::string error;
  auto s = SqlStore::Open("", error);
  const std::vector<SqlColumn> cols{{"A\"B", VType::Double}};
  ASSERT_TRUE(s->Create("T\"1", cols));
  ASSERT_TRUE(s->InsertAt("T\"1", cols, 1, {Value::OfDouble(2.5)}));
  EXPECT_EQ(s->Count("T\"1"), 1);
  EXPECT_EQ(s->ExistingColumns("T\"1"), (std::vector<std::string>{"A\"B"}));
}

TEST(SimCsv, QuotesCommasAndBrokenQuotes) {
  std::vector<std::vector<std::string>> rows;
  int bad = 0;
  ASSERT_TRUE(ParseCsv("A,B\r\n\"x, y\",\"say \"\"hi\"\"\"\n\n1,\n", rows, bad));
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[1], (std::vector<std::string>{"x, y", "say \"hi\""}));
  EXPECT_EQ(rows[2], (std::vector<std::string>{"1", ""}));
  rows.clear();
  EXPECT_FALSE(ParseCsv("A\n1\n\"open\n", rows, bad));
  EXPECT_EQ(bad, 3);
}

class SimTablesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    app.Long("ID").String("NAME").Double("AMT");
    app.Table("CUST", {"ID", "NAME", "AMT"});
    // One folder per test and process: ctest runs the tests of this fixture side by side.
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    dir = fs::temp_directory_path() /
          ("kq-tables-" + std::string(test->name()) + "-" + std::to_string(::getpid()));
    fs::remove_all(dir);
    fs::create_directories(dir);
  }
  void TearDown() override { fs::remove_all(dir); }
  void Csv(const std::string& text) { std::ofstream(dir / "CUST.csv") << text; }
  bool Open(const std::string& db, std::string& error) {
    return tables.Open(PrgHdr, db, dir.string(), error);
  }
  test::DocFixture fx;
  test::App app{fx};
  Tables tables;
  fs::path dir;
};

TEST_F(SimTablesTest, SeedsFromTheCsvAndKeepsTheDatabaseFile) {
  Csv("ID,NAME,AMT\n1,Ann,10.5\n2,\"B, o\",3\n");
  std::string error;
  const fs::path db = dir / "run.db";
  ASSERT_TRUE(Open(db.string(), error)) << error;
  TableState* t = tables.Find("CUST\0           ");
  ASSERT_NE(t, nullptr);
  EXPECT_EQ(tables.Store().Count("CUST"), 2);
  std::vector<Value> v;
  ASSERT_TRUE(tables.Store().Read("CUST", t->columns, 2, v));
  EXPECT_EQ(v[1].s, "B, o");
  EXPECT_EQ(v[2].d, 3.0);
  EXPECT_TRUE(fs::exists(db));
}

TEST_F(SimTablesTest, AWrongCsvIsRefusedAndNothingIsWritten) {
  const fs::path db = dir / "run.db";
  struct Case {
    const char* csv;
    const char* says;
  } cases[] = {
      {"ID,NAME\n1,Ann\n", "line 1"},
      {"ID,NAME,AMOUNT\n1,Ann,2\n", "expected 'AMT'"},
      {"ID,NAME,AMT\n1.5,Ann,2\n", "line 2: '1.5' is not a whole number for ID"},
      {"ID,NAME,AMT\n1,Ann,2\n2,Bob,x\n", "line 3: 'x' is not a number for AMT"},
      {"ID,NAME,AMT\n1,Ann\n", "line 2: 2 fields"},
      {"ID,NAME,AMT\n1,\"Ann,2\n", "not closed"},
      // A fault names the line it stands on, after blank lines and quoted line breaks.
      {"ID,NAME,AMT\n\n1,\"two\nlines\",2\n2,Bob,x\n", "line 5: 'x' is not a number for AMT"},
      {"\nID,NAME\n", "line 2: the header must name the columns ID,NAME,AMT"},
      {"ID,NAME,AMT\n1,\"a\nb\",2,\"open\n", "line 3: a quoted field is not closed"},
  };
  for (const Case& c : cases) {
    Csv(c.csv);
    std::string error;
    EXPECT_FALSE(Open(db.string(), error)) << c.csv;
    EXPECT_NE(error.find(c.says), std::string::npos) << error;
    EXPECT_NE(error.find("CUST.csv"), std::string::npos) << error;
    EXPECT_FALSE(fs::exists(db)) << c.csv;
  }
}

TEST_F(SimTablesTest, AByteOrderMarkAndQuotesInsideATextAreRead) {
  // An inch mark inside a field is a character: the rows after it are not swallowed.
  Csv("\xEF\xBB\xBFID,NAME,AMT\n1,\"5\"\" disk\",2\n3,5\" disk,4\n4,x,5\n");
  std::string error;
  ASSERT_TRUE(Open("", error)) << error;
  TableState* t = tables.Find("CUST\0           ");
  ASSERT_NE(t, nullptr);
  ASSERT_EQ(tables.Store().Count("CUST"), 3);
  for (int64_t n : {1, 2}) {
    std::vector<Value> v;
    ASSERT_TRUE(tables.Store().Read("CUST", t->columns, n, v));
    EXPECT_EQ(v[1].s, "5\" disk");
  }
}

TEST_F(SimTablesTest, ADatabaseFileWithOtherColumnsIsRefused) {
  const fs::path db = dir / "old.db";
  {
    std::string error;
    auto s = SqlStore::Open(db.string(), error);
    ASSERT_TRUE(s->Create("CUST", {{"ID", VType::Long}}));
  }
  fs::remove(dir / "CUST.csv");
  std::string error;
  EXPECT_FALSE(Open(db.string(), error));
  EXPECT_NE(error.find("other columns"), std::string::npos) << error;
  std::ofstream(dir / "notdb.db") << "plain text, no database";
  EXPECT_FALSE(Open((dir / "notdb.db").string(), error));
}

}  // namespace
}  // namespace kq::sim
