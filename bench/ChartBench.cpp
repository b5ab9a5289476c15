// The chart view beside the same picture made of QGraphicsScene items, in windows of the same size: 10,000 nodes (picture, caption, two
// connectors) and 12,000 lines. Rows come in pairs, and the figure is the ratio within a pair. See docs/performance.md.
#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPixmap>
#include <QStyleOptionGraphicsItem>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "chart/ChartSurface.h"
#include "qt/ChartPainter.h"
#include "qt/ChartView.h"
#include "qt/Conversions.h"
#include "qt/Pictures.h"
#include "qt/VantrelWidget.h"

namespace vantrel::bench {
namespace {

constexpr int kNodes = 10000, kColumns = 100, kLines = 12000;
constexpr int kMoved = 2 * kColumns + 3;    // a node in view, and the line that begins at it
constexpr double kAcross = 80, kDown = 64;  // chart pixels between nodes
constexpr QSize kWindow(1280, 960);

enum Scope { kEverything, kPart };

QPointF PlaceOf(int plngNode) { return {plngNode % kColumns * kAcross, plngNode / kColumns * kDown}; }
std::string CaptionOf(int plngNode) { return "Task " + std::to_string(plngNode); }
const char* PictureOf(int plngNode) { return plngNode % 2 == 0 ? "Place" : "Transition"; }
int TargetOf(int plngLine) { return (plngLine + (plngLine < kNodes ? 1 : kColumns)) % kNodes; }
QLineF LineOf(int plngLine) { return {PlaceOf(plngLine % kNodes) + QPointF(40, 16), PlaceOf(TargetOf(plngLine)) + QPointF(-8, 16)}; }

double BytesInUse() { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd); }

// The chart of this project.
class OwnChart {
 public:
  explicit OwnChart(Scope pScope) {
    mobjWidget.resize(kWindow);
    mobjWidget.show();
    for (int i = 0; i < kNodes; ++i) AddNode(i);
    for (int i = 0; i < kLines; ++i) AddLine(i);
    if (pScope == kEverything) mobjWidget.View().FitToWindow();
    QApplication::processEvents();  // a window that was never shown paints nothing
  }
  void Repaint() { mobjWidget.View().viewport()->repaint(); }
  void MoveOne(double pdblBy) {
    const auto shift = static_cast<float>(pdblBy * kTwipsPerPixel);
    for (Element* element : mcolParts) {
      auto& box = static_cast<BoxElement&>(*element);
      box.MoveTo(box.Left() + shift, box.Top());
    }
    auto& line = *mobjWidget.Control().ChartArea.ctlLine.At(kMoved + 1);
    line.Place(line.X1() + shift, line.Y1(), line.X2(), line.Y2());
    QApplication::processEvents();
  }

 private:
  Image& AddImage(const char* pstrKey, QPointF pobjAt) {
    const auto image = mobjWidget.Control().ChartArea.ctlImage.New();
    image->Picture(mobjPictures.Find(pstrKey));
    image->MoveTo(static_cast<float>(pobjAt.x()) * kTwipsPerPixel, static_cast<float>(pobjAt.y()) * kTwipsPerPixel);
    image->Visible(true);
    return *image;
  }
  void AddNode(int plngNode) {
    const QPointF at = PlaceOf(plngNode);
    std::vector<Element*> parts = {&AddImage(PictureOf(plngNode), at), &AddImage("InputLeft", at + QPointF(-8, 12)),
                                   &AddImage("OutputHorizontal", at + QPointF(32, 12))};
    const auto label = mobjWidget.Control().ChartArea.ctlLabel.New();
    label->Caption(CaptionOf(plngNode));
    label->AutoSize(true);
    label->MoveTo(static_cast<float>(at.x()) * kTwipsPerPixel, static_cast<float>(at.y() + 34) * kTwipsPerPixel);
    label->Visible(true);
    parts.push_back(label.get());
    if (plngNode == kMoved) mcolParts = parts;
  }
  void AddLine(int plngLine) {
    const auto line = mobjWidget.Control().ChartArea.ctlLine.New();
    const QLineF way = LineOf(plngLine);
    line->Place(static_cast<float>(way.x1()) * kTwipsPerPixel, static_cast<float>(way.y1()) * kTwipsPerPixel,
                static_cast<float>(way.x2()) * kTwipsPerPixel, static_cast<float>(way.y2()) * kTwipsPerPixel);
    line->Visible(true);
  }

  ImageList mobjPictures = ImageList::VantrelImages();
  VantrelWidget mobjWidget;
  std::vector<Element*> mcolParts;
};

// A caption that is not painted when it is too small to read, as in the chart.
class Caption final : public QGraphicsSimpleTextItem {
 public:
  using QGraphicsSimpleTextItem::QGraphicsSimpleTextItem;
  void paint(QPainter* pobjPainter, const QStyleOptionGraphicsItem* pobjOption, QWidget* pobjWidget) override {
    const double zoom = QStyleOptionGraphicsItem::levelOfDetailFromTransform(pobjPainter->worldTransform());
    if (zoom * PixelSize(Font()) >= ChartPainter::kLegible) QGraphicsSimpleTextItem::paint(pobjPainter, pobjOption, pobjWidget);
  }
};

// The peer. Its pictures are pixels of one size, which makes it faster.
class SceneChart {
 public:
  explicit SceneChart(Scope pScope) : mobjView(&mobjScene) {
    for (int i = 0; i < kNodes; ++i) AddNode(i);
    for (int i = 0; i < kLines; ++i) {
      QGraphicsLineItem* const line = mobjScene.addLine(LineOf(i), QPen(Qt::black, 1));
      if (i == kMoved) mobjLine = line;
    }
    mobjView.resize(kWindow);
    mobjView.setRenderHint(QPainter::Antialiasing);
    mobjView.show();
    if (pScope == kEverything) mobjView.fitInView(mobjScene.sceneRect(), Qt::KeepAspectRatio);
    if (pScope == kPart) mobjView.centerOn(600, 440);
    QApplication::processEvents();
  }
  void Repaint() { mobjView.viewport()->repaint(); }
  void MoveOne(double pdblBy) {
    mobjNode->moveBy(pdblBy, 0);
    const QLineF way = mobjLine->line();
    mobjLine->setLine(QLineF(way.p1() + QPointF(pdblBy, 0), way.p2()));
    QApplication::processEvents();
  }

 private:
  QGraphicsPixmapItem* NewImage(const char* pstrKey, QPointF pobjAt, QGraphicsItem* pobjParent) {
    const auto picture = mobjList.Find(pstrKey);
    const int side = static_cast<int>(picture->Width / kTwipsPerPixel);
    auto* const item = new QGraphicsPixmapItem(mobjPictures.Pixmap(picture, {side, side}), pobjParent);
    item->setPos(pobjAt);
    return item;
  }
  void AddNode(int plngNode) {
    auto* const node = NewImage(PictureOf(plngNode), PlaceOf(plngNode), nullptr);
    NewImage("InputLeft", {-8, 12}, node);
    NewImage("OutputHorizontal", {32, 12}, node);
    auto* const caption = new Caption(ToQString(CaptionOf(plngNode)), node);
    caption->setFont(mobjFont);
    caption->setPos(0, 34);
    mobjScene.addItem(node);
    if (plngNode == kMoved) mobjNode = node;
  }

  ImageList mobjList = ImageList::VantrelImages();
  Pictures mobjPictures;
  QFont mobjFont = ToQFont(Font());
  QGraphicsScene mobjScene;
  QGraphicsView mobjView;
  QGraphicsItem* mobjNode = nullptr;
  QGraphicsLineItem* mobjLine = nullptr;
};

template <class Chart>
void Build(benchmark::State& pobjState) {
  double bytes = 0;
  for (auto _ : pobjState) {
    const double before = BytesInUse();
    auto chart = std::make_unique<Chart>(kPart);
    bytes = BytesInUse() - before;
    pobjState.PauseTiming();
    chart.reset();
    pobjState.ResumeTiming();
  }
  pobjState.counters["bytes/node"] = bytes / kNodes;
}

template <class Chart, Scope pScope>
void Repaint(benchmark::State& pobjState) {
  Chart chart(pScope);
  for (int i = 0; i < 3; ++i) chart.Repaint();
  for (auto _ : pobjState) chart.Repaint();
}

template <class Chart>
void MoveOne(benchmark::State& pobjState) {
  Chart chart(kPart);
  chart.Repaint();
  QApplication::processEvents();
  double by = 7;
  for (auto _ : pobjState) chart.MoveOne(by = -by);
}

BENCHMARK_TEMPLATE(Build, OwnChart)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Build, SceneChart)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Repaint, OwnChart, kEverything)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Repaint, SceneChart, kEverything)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Repaint, OwnChart, kPart)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(Repaint, SceneChart, kPart)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(MoveOne, OwnChart)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(MoveOne, SceneChart)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vantrel::bench

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
