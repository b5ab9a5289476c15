// What users wait for: a chart from its assignment to the first painting, and single frames. A frame is an event with the painting that
// follows. `nodes` and `arcs` are the size of the chart, `view` the nodes in view, `worst` the longest frame in milliseconds,
// `paints` the paintings a frame: with another number than one the figure is invalid.
#include <algorithm>
#include <chrono>

#include <benchmark/benchmark.h>

#include "FrameChart.h"
#include "chart/ChartSurface.h"
#include "interchange/PnmlImport.h"
#include "qt/ChartView.h"

namespace vantrel::bench {
namespace {

enum Source { kGenerated, kPositions, kLayout };
enum Scope { kPart, kEverything };

std::shared_ptr<Workflow> NetOf(Source pSource, std::int64_t plngNodes) {
  if (pSource == kGenerated) return GridNet(plngNodes);
  return BuildWorkflow(PnmlReader().ReadBytes(GridPnml(plngNodes, pSource == kPositions), "net")).Workflow;
}

void CountObjects(benchmark::State& pobjState, const Workflow& pobjNet) {
  pobjState.counters["nodes"] = pobjNet.Places.Count() + pobjNet.Transitions.Count();
  pobjState.counters["arcs"] = pobjNet.Arcs.Count();
}

template <Source pSource>
void FirstPaint(benchmark::State& pobjState) {
  std::int64_t paints = 0;
  for (auto _ : pobjState) {
    pobjState.PauseTiming();
    {
      FrameChart chart;
      const auto net = NetOf(pSource, pobjState.range(0));
      CountObjects(pobjState, *net);
      const auto before = chart.Paints();
      pobjState.ResumeTiming();
      chart.Show(net);
      pobjState.PauseTiming();
      paints += chart.Paints() - before;
    }
    pobjState.ResumeTiming();
  }
  pobjState.counters["paints"] = benchmark::Counter(static_cast<double>(paints), benchmark::Counter::kAvgIterations);
}

int NodesInView(FrameChart& pobjChart) {
  const auto elements = pobjChart.Widget().Control().ChartArea.ElementsIn(pobjChart.Widget().View().InView());
  return static_cast<int>(std::count_if(elements.begin(), elements.end(), [](const Element* element) {
    return element->Family() == ctlImageFamily && element->Bounds().Right - element->Bounds().Left > 20 * kTwipsPerPixel;
  }));
}

// Presses the button as pPress does, then measures pFrame, called with the number of the frame.
template <class Press, class Frame>
void Frames(benchmark::State& pobjState, Scope pScope, Press&& pPress, Frame&& pFrame) {
  FrameChart chart;
  const auto net = GridNet(pobjState.range(0));
  chart.Show(net);
  if (pScope == kEverything) chart.Widget().View().FitToWindow();
  FrameChart::Settle();
  CountObjects(pobjState, *net);
  pobjState.counters["view"] = NodesInView(chart);
  const QPointF from = pPress(chart);
  FrameChart::Settle();
  for (int i = 0; i < 3; ++i) pFrame(chart, from, i), FrameChart::Settle();
  const auto before = chart.Paints();
  double worst = 0;
  int number = 0;
  for (auto _ : pobjState) {
    const auto began = std::chrono::steady_clock::now();
    pFrame(chart, from, ++number);
    FrameChart::Settle();
    worst = std::max(worst, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - began).count());
  }
  pobjState.counters["worst"] = worst;
  pobjState.counters["paints"] = benchmark::Counter(static_cast<double>(chart.Paints() - before), benchmark::Counter::kAvgIterations);
  chart.Mouse(QEvent::MouseButtonRelease, from);
}

QPointF PressNode(FrameChart& pobjChart) {
  const QPointF at = pobjChart.SomeNode();
  pobjChart.Mouse(QEvent::MouseButtonPress, at);
  return at;
}

QPointF PressAmongAll(FrameChart& pobjChart) {
  pobjChart.Widget().Control().SelectAll();
  pobjChart.Widget().Control().MultiSelectOn = true;  // as after a rubber band
  return PressNode(pobjChart);
}

// A point beside captions and arcs; where everything is in view, one in the margin, as far from the origin a press hits distant arcs.
QPointF PressChart(FrameChart& pobjChart) {
  const double zoom = pobjChart.Widget().View().Transform().Zoom;
  const QPointF at = zoom < 1 ? QPointF(6, 6) : pobjChart.SomeNode() + QPointF(40, 24) * zoom;
  pobjChart.Mouse(QEvent::MouseButtonPress, at);
  return at;
}

QPointF PressNothing(FrameChart&) { return {}; }

void MoveAbout(FrameChart& pobjChart, const QPointF& pobjFrom, int plngFrame) {
  pobjChart.Mouse(QEvent::MouseMove, pobjFrom + QPointF(3 + plngFrame % 40, 3 + plngFrame % 30));
}

void SpanBand(FrameChart& pobjChart, const QPointF&, int plngFrame) {
  const QSizeF size = pobjChart.Widget().View().viewport()->size();
  pobjChart.Mouse(QEvent::MouseMove, {size.width() - 20 - plngFrame % 40, size.height() - 20 - plngFrame % 30});
}

void ScrollOn(FrameChart& pobjChart, const QPointF&, int plngFrame) { pobjChart.Wheel(plngFrame / 20 % 2 == 0 ? -1 : 1, Qt::NoModifier); }
void ZoomOn(FrameChart& pobjChart, const QPointF&, int plngFrame) { pobjChart.Wheel(plngFrame / 2 % 2 == 0 ? -1 : 1, Qt::ControlModifier); }
void ResizeOn(FrameChart& pobjChart, const QPointF&, int plngFrame) { pobjChart.Widget().resize(1280 - plngFrame % 7, 960); }
void PaintAll(FrameChart& pobjChart, const QPointF&, int) { pobjChart.Widget().View().viewport()->update(); }
void RefreshAll(FrameChart& pobjChart, const QPointF& pobjAt, int plngFrame) {
  pobjChart.Widget().Control().Refresh();
  PaintAll(pobjChart, pobjAt, plngFrame);
}

void DragNode(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressNode, MoveAbout); }
void DragAll(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressAmongAll, MoveAbout); }
void RubberBand(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressChart, SpanBand); }
void Scroll(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressNothing, ScrollOn); }
void Zoom(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressNothing, ZoomOn); }
void Resize(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressNothing, ResizeOn); }
void Paint(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressNothing, PaintAll); }
void Refresh(benchmark::State& pobjState, Scope pScope) { Frames(pobjState, pScope, PressNothing, RefreshAll); }

void Sizes(benchmark::internal::Benchmark* pobjRow) { pobjRow->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond); }

BENCHMARK_TEMPLATE(FirstPaint, kGenerated)->Apply(Sizes);
BENCHMARK_TEMPLATE(FirstPaint, kPositions)->Apply(Sizes);
BENCHMARK_TEMPLATE(FirstPaint, kLayout)->Apply(Sizes);
BENCHMARK_CAPTURE(DragNode, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(DragNode, everything, kEverything)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(RubberBand, everything, kEverything)->Apply(Sizes);
BENCHMARK_CAPTURE(Scroll, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(Scroll, everything, kEverything)->Apply(Sizes);
BENCHMARK_CAPTURE(Zoom, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(Zoom, everything, kEverything)->Apply(Sizes);
BENCHMARK_CAPTURE(Paint, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(Paint, everything, kEverything)->Apply(Sizes);
BENCHMARK_CAPTURE(Resize, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(Refresh, part, kPart)->Apply(Sizes);
BENCHMARK_CAPTURE(DragAll, part, kPart)->Apply(Sizes);

}  // namespace
}  // namespace vantrel::bench
