#include "FrameChart.h"

#include <QApplication>
#include <QWheelEvent>
#include <vector>

#include "chart/ChartSurface.h"
#include "model/DesignerState.h"
#include "qt/ChartView.h"

namespace vantrel::bench {

namespace {

constexpr std::int64_t kColumns = 100;
constexpr int kAcross = 80, kDown = 64;  // pixels between nodes

bool IsPlace(std::int64_t plngNode) { return (plngNode + plngNode / kColumns) % 2 == 0; }
std::string IdOf(std::int64_t plngNode) { return "n" + std::to_string(plngNode); }

// The ends of all arcs, six for five nodes. Neighbours in a row or a column differ in kind, so each arc joins a place and a transition.
template <class Take>
void ForEachArc(std::int64_t plngNodes, Take&& pTake) {
  std::int64_t left = plngNodes * 6 / 5;
  for (std::int64_t i = 0; i + 1 < plngNodes; ++i) {
    if (i % kColumns != kColumns - 1) pTake(i, i + 1), --left;
  }
  for (std::int64_t i = 0; i + kColumns < plngNodes && left > 0; i += 4, --left) pTake(i, i + kColumns);
}

template <class N>
std::shared_ptr<N> Placed(std::shared_ptr<N> pobjNode, std::int64_t plngNumber) {
  pobjNode->Caption("Task " + std::to_string(plngNumber));
  pobjNode->MoveTo(static_cast<float>(plngNumber % kColumns * kAcross) * kTwipsPerPixel,
                   static_cast<float>(plngNumber / kColumns * kDown) * kTwipsPerPixel);
  return pobjNode;
}

}  // namespace

std::string GridPnml(std::int64_t plngNodes, bool pblnPositions) {
  std::string text = "<pnml><net id=\"n\" type=\"http://www.pnml.org/version-2009/grammar/ptnet\"><page id=\"g\">";
  for (std::int64_t i = 0; i < plngNodes; ++i) {
    const std::string kind = IsPlace(i) ? "place" : "transition";
    text += "<" + kind + " id=\"" + IdOf(i) + "\"><name><text>Task " + std::to_string(i) + "</text></name>";
    if (pblnPositions) {
      text += "<graphics><position x=\"" + std::to_string(i % kColumns * kAcross) + "\" y=\"" + std::to_string(i / kColumns * kDown) +
              "\"/></graphics>";
    }
    text += "</" + kind + ">\n";
  }
  ForEachArc(plngNodes, [&](std::int64_t from, std::int64_t to) {
    text += "<arc id=\"a" + IdOf(from) + IdOf(to) + "\" source=\"" + IdOf(from) + "\" target=\"" + IdOf(to) + "\"/>\n";
  });
  return text + "</page></net></pnml>";
}

std::shared_ptr<Workflow> GridNet(std::int64_t plngNodes) {
  auto net = std::make_shared<Workflow>();
  std::vector<std::shared_ptr<Place>> places(static_cast<std::size_t>(plngNodes));
  std::vector<std::shared_ptr<Transition>> transitions(places.size());
  for (std::size_t i = 0; i < places.size(); ++i) {
    const auto number = static_cast<std::int64_t>(i);
    const std::string name = std::to_string(number + 1);
    if (IsPlace(number)) places[i] = Placed(net->NewPlace("Place" + name), number);
    if (!IsPlace(number)) transitions[i] = Placed(net->NewTransition("Transition" + name), number);
  }
  ForEachArc(plngNodes, [&](std::int64_t plngFrom, std::int64_t plngTo) {
    const auto from = static_cast<std::size_t>(plngFrom), to = static_cast<std::size_t>(plngTo);
    places[from] ? net->CreateArc(places[from], transitions[to], vntInArc) : net->CreateArc(places[to], transitions[from], vntOutArc);
  });
  return net;
}

FrameChart::FrameChart() {
  mobjWidget.resize(1280, 960);
  mobjWidget.show();
  mobjWidget.View().viewport()->installEventFilter(this);
  Settle();
}

void FrameChart::Show(const std::shared_ptr<Workflow>& pobjNet) {
  mobjWidget.Control().Workflow(pobjNet);
  Settle();
}

QPointF FrameChart::SomeNode() {
  const QPointF middle = QRectF(mobjWidget.View().viewport()->rect()).center();
  const Rect view = mobjWidget.View().InView();
  QPointF nearest;
  double least = 1e12;
  for (const Element* element : mobjWidget.Control().ChartArea.ElementsIn(view)) {
    if (element->Family() != ctlImageFamily || element->Bounds().Right - element->Bounds().Left < 20 * kTwipsPerPixel) continue;
    const QPointF at = mobjWidget.View().Transform().ToView(element->Bounds()).center();
    const double distance = (at - middle).manhattanLength();
    if (distance < least) nearest = at;
    least = std::min(least, distance);
  }
  return nearest;
}

void FrameChart::Mouse(QEvent::Type pType, const QPointF& pobjAt) {
  QWidget* const viewport = mobjWidget.View().viewport();
  const bool isMove = pType == QEvent::MouseMove, isDown = pType != QEvent::MouseButtonRelease;
  QMouseEvent event(pType, pobjAt, viewport->mapToGlobal(pobjAt), isMove ? Qt::NoButton : Qt::LeftButton,
                    isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(viewport, &event);
}

void FrameChart::Wheel(int pintNotches, Qt::KeyboardModifiers pModifiers) {
  QWidget* const viewport = mobjWidget.View().viewport();
  const QPointF at = QRectF(viewport->rect()).center();
  QWheelEvent event(at, viewport->mapToGlobal(at), QPoint(), QPoint(0, 120 * pintNotches), Qt::NoButton, pModifiers, Qt::NoScrollPhase,
                    false);
  QApplication::sendEvent(viewport, &event);
}

void FrameChart::Settle() { QApplication::processEvents(); }

bool FrameChart::eventFilter(QObject*, QEvent* pobjEvent) {
  if (pobjEvent->type() == QEvent::Paint) ++mlngPaints;
  return false;
}

}  // namespace vantrel::bench
