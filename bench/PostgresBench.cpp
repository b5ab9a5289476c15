// Saving and reading a workflow on a PostgreSQL server, beside libpq with one statement a call.
//
// Needs the address of a server in VANTREL_POSTGRES, whose user may create databases; scripts/postgres-server makes one.
#include "database/postgres/Postgres.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <libpq-fe.h>

#include "ChartNet.h"
#include "StatementLog.h"
#include "database/EngineConnection.h"
#include "database/postgres/PostgresSession.h"
#include "persistence/VNTRDB.h"

namespace vantrel::bench {

namespace {

void Check(bool pblnOk, const char* pstrWhat = "") {
  if (pblnOk) return;
  std::fprintf(stderr, "bench_postgres: %s\n", pstrWhat);
  std::exit(1);
}

std::string ServerAddress() {
  const char* const address = std::getenv("VANTREL_POSTGRES");
  Check(address, "VANTREL_POSTGRES names no server");
  return address;
}

/// libpq with one statement of text a call.
class PlainPostgres {
 public:
  explicit PlainPostgres(const std::string& pstrAddress) : mConnection(PQconnectdb(pstrAddress.c_str())) {
    Check(PQstatus(mConnection) == CONNECTION_OK, PQerrorMessage(mConnection));
    PQsetNoticeProcessor(
        mConnection, [](void*, const char*) {}, nullptr);
  }
  ~PlainPostgres() { PQfinish(mConnection); }
  PlainPostgres(const PlainPostgres&) = delete;
  PlainPostgres& operator=(const PlainPostgres&) = delete;

  void Run(const std::string& pstrText) {
    PGresult* const result = PQexec(mConnection, pstrText.c_str());
    const auto status = PQresultStatus(result);
    Check(status == PGRES_COMMAND_OK || status == PGRES_TUPLES_OK, PQresultErrorMessage(result));
    for (int row = 0; row < PQntuples(result); ++row) {
      for (int column = 0; column < PQnfields(result); ++column) benchmark::DoNotOptimize(PQgetvalue(result, row, column));
    }
    PQclear(result);
  }

 private:
  PGconn* mConnection;
};

/// A database with empty tables, deleted with this object.
class EmptyDatabase {
 public:
  EmptyDatabase() : mName("vantrel_bench_" + std::to_string(++sCount)) {
    Remove();
    PlainPostgres(ServerAddress()).Run("CREATE DATABASE " + mName);
    std::ifstream file(VANTREL_SCHEMA_DIR "/postgres.sql");
    CreatePostgres(Address(), {std::istreambuf_iterator<char>(file), {}});
  }
  ~EmptyDatabase() { Remove(); }
  EmptyDatabase(const EmptyDatabase&) = delete;
  EmptyDatabase& operator=(const EmptyDatabase&) = delete;
  std::string Address() const {
    const std::string server = ServerAddress();
    return server.substr(0, server.rfind('/') + 1) + mName;
  }

 private:
  void Remove() const { PlainPostgres(ServerAddress()).Run("DROP DATABASE IF EXISTS " + mName + " WITH (FORCE)"); }
  static inline int sCount = 0;
  std::string mName;
};

void Save(VNTRDB& pobjAccess, const std::shared_ptr<Workflow>& pobjWorkflow) {
  Check(pobjAccess.SaveWorkFlow(pobjWorkflow) == 0, "a save failed");
}

enum class Asked : std::uint8_t { Rows, Everything };

/// The statements of saving a new chart, and those of reading it, as text.
struct Texts {
  explicit Texts(Asked pAsked, std::int32_t plngPlaces) {
    const EmptyDatabase empty;
    const auto log = std::make_shared<StatementLog>();
    auto session = std::make_unique<LoggingSession>(std::make_unique<PostgresSession>(10'000), log);
    session->Open(empty.Address());
    VNTRDB access;
    access.Connection = std::make_shared<EngineConnection>(std::move(session), empty.Address());
    const auto net = MakeChart(plngPlaces);
    Rows = RowsOf(*net);
    Save(access, net);
    for (const auto& logged : std::exchange(*log, {})) {
      if (pAsked == Asked::Everything || logged.IsRow) Saving.push_back(AsText(logged.Statement));
    }
    access.ReadWorkflow(net->RecId);
    for (const auto& logged : *log) Reading.push_back(AsText(logged.Statement));
  }
  std::vector<std::string> Saving, Reading;
  std::int64_t Rows = 0;
};

constexpr std::int32_t kPlaces = 1000;

void SaveWorkflow(benchmark::State& state) {
  std::int64_t rows = 0;
  for (auto _ : state) {
    state.PauseTiming();
    {
      const EmptyDatabase empty;
      VNTRDB access;
      access.Connection = OpenPostgres(empty.Address());
      const auto net = MakeChart(kPlaces);
      rows = RowsOf(*net);
      state.ResumeTiming();
      Save(access, net);
      state.PauseTiming();
      access.Connection = nullptr;
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * rows);
}

void SavePlain(benchmark::State& state, Asked pAsked) {
  const Texts texts(pAsked, kPlaces);
  for (auto _ : state) {
    state.PauseTiming();
    {
      const EmptyDatabase empty;
      PlainPostgres database(empty.Address());
      state.ResumeTiming();
      database.Run("BEGIN");
      for (const auto& text : texts.Saving) database.Run(text);
      database.Run("COMMIT");
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * texts.Rows);
}

void ReadWorkflow(benchmark::State& state) {
  const EmptyDatabase empty;
  VNTRDB access;
  access.Connection = OpenPostgres(empty.Address());
  const auto net = MakeChart(kPlaces);
  Save(access, net);
  for (auto _ : state) Check(RowsOf(*access.ReadWorkflow(net->RecId)) == RowsOf(*net), "not read whole");
  state.SetItemsProcessed(state.iterations() * RowsOf(*net));
  access.Connection = nullptr;
}

void ReadPlain(benchmark::State& state) {
  const EmptyDatabase empty;
  {
    VNTRDB access;
    access.Connection = OpenPostgres(empty.Address());
    Save(access, MakeChart(kPlaces));
  }
  const Texts texts(Asked::Rows, kPlaces);
  PlainPostgres database(empty.Address());
  for (auto _ : state) {
    database.Run("BEGIN");
    for (const auto& text : texts.Reading) database.Run(text);
    database.Run("COMMIT");
  }
  state.SetItemsProcessed(state.iterations() * texts.Rows);
}

BENCHMARK(SaveWorkflow)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SavePlain, RowsAlone, Asked::Rows)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SavePlain, AllStatements, Asked::Everything)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadWorkflow)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ReadPlain)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel::bench
