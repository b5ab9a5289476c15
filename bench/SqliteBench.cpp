// Saving and reading a workflow in SQLite, beside SQLite's own interface with the same rows and the same statements.
//
// Every save uses a new file with the tables of data/schema/sqlite.sql. Opening the file is not measured, committing is.
#include "database/sqlite/Sqlite.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "ChartNet.h"
#include "StatementLog.h"
#include "database/EngineConnection.h"
#include "database/sqlite/SqliteSession.h"
#include "persistence/VNTRDB.h"

namespace vantrel::bench {

namespace {

std::string SchemaText() {
  std::ifstream file(VANTREL_SCHEMA_DIR "/sqlite.sql");
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A database file with empty tables, deleted with this object.
class EmptyDatabase {
 public:
  EmptyDatabase() : mPath((std::filesystem::temp_directory_path() / ("vantrel-bench-" + std::to_string(++sCount) + ".db")).string()) {
    Remove();
    CreateSqlite(mPath, SchemaText());
  }
  ~EmptyDatabase() { Remove(); }
  EmptyDatabase(const EmptyDatabase&) = delete;
  EmptyDatabase& operator=(const EmptyDatabase&) = delete;
  const std::string& Path() const { return mPath; }

 private:
  void Remove() const {
    for (const char* tail : {"", "-wal", "-shm"}) std::filesystem::remove(mPath + tail);
  }
  static inline int sCount = 0;
  std::string mPath;
};

void Check(bool pblnOk, const char* pstrWhat = "") {
  if (pblnOk) return;
  std::fprintf(stderr, "bench_sqlite: %s\n", pstrWhat);
  std::exit(1);
}

/// SQLite's own interface, with the settings of the adapter.
class PlainSqlite {
 public:
  explicit PlainSqlite(const std::string& pstrPath) {
    Check(sqlite3_open_v2(pstrPath.c_str(), &mDatabase, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK);
    Execute("PRAGMA journal_mode = WAL");
    Execute("PRAGMA synchronous = FULL");
    Execute("PRAGMA foreign_keys = ON");
  }
  ~PlainSqlite() {
    for (const auto& [text, statement] : mPrepared) sqlite3_finalize(statement);
    sqlite3_close(mDatabase);
  }
  PlainSqlite(const PlainSqlite&) = delete;
  PlainSqlite& operator=(const PlainSqlite&) = delete;

  void Execute(const char* pstrText) { Check(sqlite3_exec(mDatabase, pstrText, nullptr, nullptr, nullptr) == SQLITE_OK); }

  /// Prepares once for each shape and fetches the columns of rows.
  void RunPrepared(const EngineStatement& pobjStatement) {
    auto& statement = mPrepared[pobjStatement.Text];
    if (!statement) statement = Prepare(pobjStatement.Text);
    for (std::size_t i = 0; i < pobjStatement.Parameters.size(); ++i) Bind(statement, static_cast<int>(i + 1), pobjStatement.Parameters[i]);
    Step(statement);
    sqlite3_reset(statement);
  }
  void RunText(const std::string& pstrText) {
    sqlite3_stmt* const statement = Prepare(pstrText);
    Step(statement);
    sqlite3_finalize(statement);
  }

 private:
  sqlite3_stmt* Prepare(const std::string& pstrText) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(mDatabase, pstrText.c_str(), static_cast<int>(pstrText.size()), &statement, nullptr);
    Check(statement != nullptr, sqlite3_errmsg(mDatabase));
    return statement;
  }
  static void Bind(sqlite3_stmt* pobjStatement, int plngNumber, const Variant& pvarValue) {
    if (pvarValue.IsNull() || pvarValue.IsEmpty()) {
      sqlite3_bind_null(pobjStatement, plngNumber);
    } else if (pvarValue.IsText() || pvarValue.IsDate()) {
      const std::string text = pvarValue.ToText();
      sqlite3_bind_text(pobjStatement, plngNumber, text.c_str(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    } else if (const double number = pvarValue.ToDouble(); number == std::floor(number) && std::abs(number) < 1e15) {
      sqlite3_bind_int64(pobjStatement, plngNumber, static_cast<std::int64_t>(number));
    } else {
      sqlite3_bind_double(pobjStatement, plngNumber, number);
    }
  }
  static void Step(sqlite3_stmt* pobjStatement) {
    int result = sqlite3_step(pobjStatement);
    for (; result == SQLITE_ROW; result = sqlite3_step(pobjStatement)) Fetch(pobjStatement);
    Check(result == SQLITE_DONE, sqlite3_errmsg(sqlite3_db_handle(pobjStatement)));
  }
  static void Fetch(sqlite3_stmt* pobjStatement) {
    for (int i = 0; i < sqlite3_column_count(pobjStatement); ++i) {
      switch (sqlite3_column_type(pobjStatement, i)) {
        case SQLITE_TEXT:
          benchmark::DoNotOptimize(sqlite3_column_text(pobjStatement, i));
          break;
        case SQLITE_FLOAT:
          benchmark::DoNotOptimize(sqlite3_column_double(pobjStatement, i));
          break;
        default:
          benchmark::DoNotOptimize(sqlite3_column_int64(pobjStatement, i));
      }
    }
  }

  sqlite3* mDatabase = nullptr;
  std::map<std::string, sqlite3_stmt*> mPrepared;
};

enum class How : std::uint8_t { Prepared, Text };

void Replay(PlainSqlite& pobjDatabase, const StatementLog& pcolLog, How pHow, const std::vector<std::string>& pcolTexts, bool pblnReading) {
  pobjDatabase.Execute(pblnReading ? "BEGIN" : "BEGIN IMMEDIATE");
  if (pHow == How::Text) {
    for (const auto& text : pcolTexts) pobjDatabase.RunText(text);
  } else {
    for (const auto& logged : pcolLog) {
      if (pblnReading ? logged.IsQuery : logged.IsRow) pobjDatabase.RunPrepared(logged.Statement);
    }
  }
  pobjDatabase.Execute("COMMIT");
}

/// A database of the system whose statements are recorded.
struct LoggedDatabase {
  explicit LoggedDatabase(const std::string& pstrPath) {
    auto session = std::make_unique<LoggingSession>(std::make_unique<SqliteSession>(SqliteOptions{}), Log);
    session->Open(pstrPath);
    Access.Connection = std::make_shared<EngineConnection>(std::move(session), pstrPath);
  }
  std::shared_ptr<StatementLog> Log = std::make_shared<StatementLog>();
  VNTRDB Access;
};

std::vector<std::string> TextsOf(const StatementLog& pcolLog) {
  std::vector<std::string> texts;
  texts.reserve(pcolLog.size());
  for (const auto& logged : pcolLog) texts.push_back(AsText(logged.Statement));
  return texts;
}

void Save(VNTRDB& pobjAccess, const std::shared_ptr<Workflow>& pobjWorkflow) { Check(pobjAccess.SaveWorkFlow(pobjWorkflow) == 0); }

/// Changes something in the row of every place, transition and arc.
void ChangeRows(const Workflow& pobjWorkflow) {
  for (const auto& place : pobjWorkflow.Places) place->Description += "x";
  for (const auto& transition : pobjWorkflow.Transitions) transition->Description += "x";
  for (const auto& arc : pobjWorkflow.Arcs) arc->Description += "x";
}

constexpr std::int32_t kPlaces = 1000;

enum class What : std::uint8_t { New, Unchanged, Changed };

/// Saves a new chart, or one that is stored already.
void SaveWorkflow(benchmark::State& state, What pWhat) {
  std::int64_t rows = 0;
  for (auto _ : state) {
    state.PauseTiming();
    {
      const EmptyDatabase file;
      VNTRDB access;
      access.Connection = OpenSqlite(file.Path());
      const auto net = MakeChart(static_cast<std::int32_t>(state.range(0)));
      rows = RowsOf(*net);
      if (pWhat != What::New) Save(access, net);
      if (pWhat == What::Changed) ChangeRows(*net);
      state.ResumeTiming();
      Save(access, net);
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

/// The statements of the first save of a chart, and those of the second.
struct SaveLogs {
  explicit SaveLogs(std::int32_t plngPlaces) {
    const EmptyDatabase file;
    LoggedDatabase database(file.Path());
    const auto net = MakeChart(plngPlaces);
    Rows = RowsOf(*net);
    Save(database.Access, net);
    First = std::exchange(*database.Log, {});
    ChangeRows(*net);  // rows that are the same are not written
    Save(database.Access, net);
    Second = std::exchange(*database.Log, {});
  }
  StatementLog First, Second;
  std::int64_t Rows = 0;
};

void SavePlain(benchmark::State& state, bool pblnAgain, How pHow) {
  const SaveLogs logs(static_cast<std::int32_t>(state.range(0)));
  const StatementLog& measured = pblnAgain ? logs.Second : logs.First;
  const auto texts = TextsOf(measured);
  for (auto _ : state) {
    state.PauseTiming();
    {
      const EmptyDatabase file;
      PlainSqlite database(file.Path());
      if (pblnAgain) {
        Replay(database, logs.First, How::Prepared, {}, false);
        // The rows that the save deletes before it writes them again.
        for (const auto& text : texts) {
          if (pHow == How::Prepared && text.starts_with("DELETE")) database.RunText(text);
        }
      }
      state.ResumeTiming();
      Replay(database, measured, pHow, texts, false);
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * logs.Rows);
}

void ReadWorkflow(benchmark::State& state) {
  const EmptyDatabase file;
  VNTRDB access;
  access.Connection = OpenSqlite(file.Path());
  const auto net = MakeChart(static_cast<std::int32_t>(state.range(0)));
  Save(access, net);
  const std::int32_t id = net->RecId;
  for (auto _ : state) {
    auto read = access.ReadWorkflow(id);
    state.PauseTiming();
    Check(RowsOf(*read) == RowsOf(*net));
    read.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * RowsOf(*net));
}

void ReadPlain(benchmark::State& state, How pHow) {
  const EmptyDatabase file;
  LoggedDatabase database(file.Path());
  const auto net = MakeChart(static_cast<std::int32_t>(state.range(0)));
  Save(database.Access, net);
  database.Log->clear();
  database.Access.ReadWorkflow(net->RecId);
  const StatementLog log = std::exchange(*database.Log, {});
  const auto texts = TextsOf(log);
  PlainSqlite plain(file.Path());
  for (auto _ : state) Replay(plain, log, pHow, texts, true);
  state.SetItemsProcessed(state.iterations() * RowsOf(*net));
}

BENCHMARK_CAPTURE(SaveWorkflow, New, What::New)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SavePlain, New_Prepared, false, How::Prepared)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SavePlain, New_Text, false, How::Text)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SaveWorkflow, Again, What::Unchanged)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SaveWorkflow, Again_Changed, What::Changed)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SavePlain, Again_Prepared, true, How::Prepared)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SavePlain, Again_Text, true, How::Text)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadWorkflow)->Arg(kPlaces / 10)->Arg(kPlaces)->Arg(kPlaces * 10)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadPlain, Prepared, How::Prepared)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadPlain, Text, How::Text)->Arg(kPlaces)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel::bench
