// Reading nets into workflows, with positions in the file and without (then a layout is made), and writing them.
#include <string>

#include <benchmark/benchmark.h>

#include "interchange/PnmlExport.h"
#include "interchange/PnmlImport.h"

namespace vantrel::bench {

namespace {

/// Blocks of a fork, two branches and a join, one after the other.
std::string MakePnml(std::int64_t plngNodes, bool pblnGraphics) {
  std::string nodes, arcs;
  int arcCount = 0;
  const auto node = [&](const char* kind, const std::string& id, int x, int y) {
    nodes += std::string("<") + kind + " id=\"" + id + "\"><name><text>" + id + "</text></name>";
    if (pblnGraphics) {
      nodes += "<graphics><position x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\"/></graphics>";
    }
    nodes += std::string("</") + kind + ">";
  };
  const auto arc = [&](const std::string& from, const std::string& to) {
    arcs += "<arc id=\"a" + std::to_string(++arcCount) + "\" source=\"" + from + "\" target=\"" + to +
            "\"><inscription><text>1</text></inscription></arc>";
  };
  node("place", "p0", 0, 100);
  for (std::int64_t i = 0; i * 7 < plngNodes; ++i) {
    const std::string n = std::to_string(i);
    const int x = static_cast<int>(i % 100) * 400, y = static_cast<int>(i / 100) * 300;
    node("transition", "fork" + n, x + 60, y + 100);
    node("transition", "join" + n, x + 300, y + 100);
    for (const char* branch : {"a", "b"}) {
      const int branchY = y + (*branch == 'a' ? 50 : 150);
      node("place", branch + n, x + 120, branchY);
      node("place", "done" + (branch + n), x + 240, branchY);
      arc("fork" + n, branch + n);
      const std::string work = "work" + (branch + n);
      node("transition", work, x + 180, branchY);
      arc(branch + n, work);
      arc(work, "done" + (branch + n));
      arc("done" + (branch + n), "join" + n);
    }
    arc("p" + n, "fork" + n);
    node("place", "p" + std::to_string(i + 1), x + 360, y + 100);
    arc("join" + n, "p" + std::to_string(i + 1));
  }
  return "<pnml><net id=\"n\" type=\"http://www.pnml.org/version-2009/grammar/ptnet\"><page id=\"g\">" + nodes + arcs +
         "</page></net></pnml>";
}

void ReadNet(benchmark::State& state, bool pblnGraphics) {
  const std::string text = MakePnml(state.range(0), pblnGraphics);
  for (auto _ : state) {
    const auto net = BuildWorkflow(PnmlReader().ReadBytes(text, "net"));
    benchmark::DoNotOptimize(net.Workflow->Arcs.Count());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void WriteNet(benchmark::State& state) {
  const auto net = BuildWorkflow(PnmlReader().ReadBytes(MakePnml(state.range(0), true), "net"));
  std::size_t written = 0;
  for (auto _ : state) written += ToPnml(*net.Workflow).size();
  state.SetBytesProcessed(static_cast<std::int64_t>(written));
}

BENCHMARK_CAPTURE(ReadNet, WithPositions, true)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReadNet, WithoutPositions, false)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteNet)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vantrel::bench
