// Firings a second through FireNext, beside the leanest array simulator with the same net in the same run.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include "GameNets.h"
#include "model/DesignerState.h"

namespace vantrel::bench {

namespace {

/// Answers every question with the first option.
class FirstOptionHost final : public DesignerHost {
 public:
  bool TakesFirstCase() const override { return true; }
  std::optional<std::string> SelectOption(const std::string&, const std::vector<std::string>& pcolOptions) override {
    return pcolOptions.empty() ? std::string() : pcolOptions.front();
  }
};

double HeapBytes() { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd); }

void Firings(benchmark::State& state, Shape pShape, bool pblnCases) {
  const DesignerStateScope scope;
  FirstOptionHost host;
  gobjVantrel = &host;
  const auto tokens = static_cast<std::int32_t>(state.range(0));
  std::int64_t firings = 0;
  double bytes = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto workflow = MakeWorkflow(pShape);
    workflow->CaseTracking = pblnCases;
    gobjWorkflow = workflow;
    auto workCase = std::make_shared<WorkCase>();
    workCase->Key = workCase->Name = "WorkCase1";
    const double before = HeapBytes();
    workflow->StartPlace->AddToken(workflow->CreateToken(workflow->StartPlace, nullptr, workCase));
    state.ResumeTiming();
    while (workflow->Tokens.Count() < tokens) {
      workflow->FireNext();
      ++firings;
    }
    state.PauseTiming();
    bytes = HeapBytes() - before;
    workflow.reset();
    state.ResumeTiming();
  }
  state.counters["firings/s"] = benchmark::Counter(static_cast<double>(firings), benchmark::Counter::kIsRate);
  state.counters["bytes/token"] = bytes / tokens;
}

void ArrayFirings(benchmark::State& state, Shape pShape) {
  std::int64_t firings = 0;
  for (auto _ : state) {
    state.PauseTiming();
    ArrayNet net = MakeArrayNet(pShape);
    net.Put(0);
    state.ResumeTiming();
    while (net.Created() < state.range(0)) firings += net.FireNext();
  }
  state.counters["firings/s"] = benchmark::Counter(static_cast<double>(firings), benchmark::Counter::kIsRate);
}

// One call that runs through the whole chain.
void AutomaticChain(benchmark::State& state) {
  const auto length = static_cast<std::int32_t>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    auto workflow = MakeChain(length, vntAutomatic);
    gobjWorkflow = workflow;
    const auto token = workflow->CreateToken(workflow->StartPlace);
    state.ResumeTiming();
    workflow->StartPlace->AddToken(token);
    state.PauseTiming();
    workflow.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * length);
}

void Sizes(benchmark::internal::Benchmark* pobjBenchmark) {
  pobjBenchmark->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(ArrayFirings, Ring, Shape::Ring)->Apply(Sizes);
BENCHMARK_CAPTURE(Firings, Ring, Shape::Ring, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Firings, RingWithCases, Shape::Ring, true)->Apply(Sizes);
BENCHMARK_CAPTURE(ArrayFirings, ForkJoin, Shape::ForkJoin)->Apply(Sizes);
BENCHMARK_CAPTURE(Firings, ForkJoin, Shape::ForkJoin, false)->Apply(Sizes);
BENCHMARK_CAPTURE(Firings, ForkJoinWithCases, Shape::ForkJoin, true)->Apply(Sizes);
BENCHMARK(AutomaticChain)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vantrel::bench
