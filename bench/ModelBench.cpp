// What must not depend on the size: look-ups in a collection, drawing one arc.
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "GameNets.h"
#include "chart/ChartSurface.h"
#include "util/Lookup.h"

namespace vantrel::bench {

namespace {

constexpr int kLookups = 1024;

std::unique_ptr<Collection<Token>> FilledCollection(std::int64_t plngSize) {
  auto tokens = std::make_unique<Collection<Token>>();
  for (std::int64_t i = 0; i < plngSize; ++i) {
    auto token = std::make_shared<Token>();
    token->Key = NextKey(*tokens, "Token");
    tokens->Add(token, token->Key);
  }
  return tokens;
}

void MakeKey(benchmark::State& state) {
  const auto tokens = FilledCollection(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(NextKey(*tokens, "Token"));
}

void FindByKey(benchmark::State& state) {
  const auto tokens = FilledCollection(state.range(0));
  std::vector<std::string> keys;
  for (std::int64_t i = 0; i < kLookups; ++i) keys.push_back("Token" + std::to_string(1 + i * 7919 % state.range(0)));
  std::size_t next = 0;
  for (auto _ : state) benchmark::DoNotOptimize(tokens->Find(keys[next++ % kLookups]));
}

// Takes items out of the middle and adds them at the end, so that the order is not that of the numbers.
void RemoveAndAdd(benchmark::State& state) {
  const auto tokens = FilledCollection(state.range(0));
  std::int64_t next = 0;
  for (auto _ : state) {
    const std::string key = "Token" + std::to_string(1 + next++ * 7919 % state.range(0));
    tokens->Add(tokens->Take(key), key);
  }
}

void FirstAndLast(benchmark::State& state) {
  const auto tokens = FilledCollection(state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(tokens->First());
    benchmark::DoNotOptimize(tokens->Last());
  }
}

// An arc in the middle of a chart of that many arcs.
void DrawOneArc(benchmark::State& state) {
  ChartSurface surface;
  const auto workflow = MakeChain(static_cast<std::int32_t>(state.range(0) / 2), vntUser);
  const auto picture = [&](float psngX, float psngY) {
    Ref<Image> image = surface.ctlImage.New();
    image->Resize(120, 120);
    image->MoveTo(psngX, psngY);
    return image;
  };
  float x = 0;
  for (const auto& arc : workflow->Arcs) {
    for (Node* node : {static_cast<Node*>(arc->Place.get()), static_cast<Node*>(arc->Transition.get())}) {
      if (!node->InConnector) node->InConnector = picture(x, 0);
      if (!node->OutConnector) node->OutConnector = picture(x, 0);
    }
    arc->Segments().front()->LineControl = surface.ctlLine.New();
    arc->Visible(true);
    x += 1000;
  }
  const auto arc = workflow->Arcs.Item(workflow->Arcs.Count() / 2);
  float offset = 0;
  for (auto _ : state) {
    arc->Place->OutConnector->Left(offset = 1 - offset);
    arc->Draw();
  }
}

void Sizes(benchmark::internal::Benchmark* pobjBenchmark) { pobjBenchmark->Arg(1'000)->Arg(100'000)->Arg(1'000'000); }

BENCHMARK(MakeKey)->Apply(Sizes);
BENCHMARK(FindByKey)->Apply(Sizes);
BENCHMARK(RemoveAndAdd)->Apply(Sizes);
BENCHMARK(FirstAndLast)->Apply(Sizes);
BENCHMARK(DrawOneArc)->Arg(100)->Arg(10'000)->Arg(100'000);

}  // namespace

}  // namespace vantrel::bench
