// Importing and saving nets: the cost of `vantrel import` with a hundred files.
//
// Takes the nets of the folder that VANTREL_NETS names, again and again until there are a hundred.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "ChartNet.h"
#include "database/sqlite/Sqlite.h"
#include "interchange/PnmlImport.h"
#include "persistence/VNTRDB.h"
#include "persistence/WholeSave.h"
#include "util/Error.h"

namespace vantrel::bench {

namespace {

namespace fs = std::filesystem;

/// The files that can be read, in the order of their names.
std::vector<std::string> Nets() {
  const char* const folder = std::getenv("VANTREL_NETS");
  std::set<std::string> files;
  if (folder) {
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".pnml") files.insert(entry.path().string());
    }
  }
  std::vector<std::string> nets;
  for (const auto& file : files) {
    try {
      ImportPnml(file);
      nets.push_back(file);
    } catch (const Error&) {  // not a place/transition net
    }
  }
  return nets;
}

void ImportHundred(benchmark::State& state) {
  const auto nets = Nets();
  if (nets.empty()) {
    state.SkipWithError("VANTREL_NETS names no nets");
    return;
  }
  std::ifstream schemaFile(VANTREL_SCHEMA_DIR "/sqlite.sql");
  const std::string schema{std::istreambuf_iterator<char>(schemaFile), {}};
  const std::string path = (fs::temp_directory_path() / "vantrel-bench-import.db").string();
  std::int64_t rows = 0;
  for (auto _ : state) {
    state.PauseTiming();
    for (const char* tail : {"", "-wal", "-shm"}) fs::remove(path + tail);
    CreateSqlite(path, schema);
    rows = 0;
    state.ResumeTiming();
    VNTRDB access;
    access.Connection = OpenSqlite(path);
    for (std::size_t i = 0; i < 100; ++i) {
      const auto net = ImportPnml(nets[i % nets.size()]);
      SaveWhole(access.Connection, net.Workflow);
      rows += RowsOf(*net.Workflow);
    }
  }
  for (const char* tail : {"", "-wal", "-shm"}) fs::remove(path + tail);
  state.counters["nets/s"] = benchmark::Counter(static_cast<double>(state.iterations()) * 100, benchmark::Counter::kIsRate);
  state.counters["rows"] = static_cast<double>(rows);
}

BENCHMARK(ImportHundred)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel::bench
