#include "interchange/NetPlacement.h"

#include <algorithm>

#include "interchange/BendPoints.h"
#include "interchange/PnmlPixels.h"
#include "interchange/layout/LayeredLayout.h"
#include "interchange/layout/LayoutJudge.h"

namespace vantrel {

namespace {

constexpr float kSpot = 8;       // pixels: nodes of a drawing do not share so little room
constexpr double kStraight = 1;  // pixels that a line may be off
constexpr float kMargin = 300;   // twips left of and above a drawing of ours
constexpr float kConnector = 8 * kFilePixel;
constexpr float kCaptionHeight = 200;
constexpr float kCharacter = 95;     // twips, a wide average of the chart's usual face
constexpr float kCountHeight = 300;  // the token count under a place

std::ptrdiff_t Characters(const std::string& pstrText) {
  return std::count_if(pstrText.begin(), pstrText.end(), [](char byte) { return (byte & 0xC0) != 0x80; });  // UTF-8
}

LayoutSize RoomFor(const PnmlNode& pobjNode) {
  const float caption = kCharacter * static_cast<float>(Characters(pobjNode.Name));
  return {kConnector + std::max(kNodeSize + kConnector, caption), kCaptionHeight + kNodeSize + kCountHeight};
}

// The only place without input arcs.
std::optional<std::int32_t> StartOf(const PnmlNet& pobjNet, const std::vector<LayoutEdge>& pcolEdges) {
  std::vector<bool> entered(pobjNet.Nodes.size());
  for (const LayoutEdge& edge : pcolEdges) entered[static_cast<std::size_t>(edge.To)] = true;
  std::optional<std::int32_t> start;
  for (std::size_t i = 0; i < pobjNet.Nodes.size(); ++i) {
    if (entered[i] || pobjNet.Nodes[i].Kind != PnmlKind::Place) continue;
    if (start) return std::nullopt;
    start = static_cast<std::int32_t>(i);
  }
  return start;
}

NetPlacement LayOut(const PnmlNet& pobjNet, const NodeNumbers& pcolNumbers) {
  LayoutGraph graph;
  for (const PnmlNode& node : pobjNet.Nodes) graph.Nodes.push_back(RoomFor(node));
  for (const PnmlArc& arc : pobjNet.Arcs) graph.Edges.push_back({pcolNumbers.at(arc.Source), pcolNumbers.at(arc.Target)});
  graph.Start = StartOf(pobjNet, graph.Edges);
  LayoutResult drawing = ArrangeInLayers(graph);
  // The picture is inside the node's room, right of its connector and under its caption. Bend points are points of the drawing.
  for (auto& point : drawing.TopLeft) {
    point.X += kMargin + kConnector;
    point.Y += kMargin + kCaptionHeight;
  }
  for (auto& bends : drawing.Bends) {
    for (auto& point : bends) {
      point.X += kMargin;
      point.Y += kMargin;
    }
  }
  return {std::move(drawing.TopLeft), std::move(drawing.Bends), true};
}

// A net that this system wrote has no needless ones.
std::vector<LayoutPoint> NeededBends(const PnmlArc& pobjArc, const PnmlPoint& pobjFrom, const PnmlPoint& pobjTo, bool pblnOwn) {
  if (pobjArc.Bends.empty()) return {};
  std::vector<PlanePoint> line = {pobjFrom};
  line.insert(line.end(), pobjArc.Bends.begin(), pobjArc.Bends.end());
  line.push_back(pobjTo);
  if (!pblnOwn) line = SimplifyLine(line, kStraight);
  std::vector<LayoutPoint> bends;
  for (std::size_t i = 1; i + 1 < line.size(); ++i) {
    bends.push_back({TwipsOfPixels(line[i].X, kOfPoint), TwipsOfPixels(line[i].Y, kOfPoint)});
  }
  return bends;
}

NetPlacement Keep(const PnmlNet& pobjNet, const NodeNumbers& pcolNumbers) {
  NetPlacement placement;
  for (const PnmlNode& node : pobjNet.Nodes) {
    placement.TopLeft.push_back({TwipsOfPixels(node.Position->X, kOfCentre), TwipsOfPixels(node.Position->Y, kOfCentre)});
  }
  const auto positionOf = [&](const std::string& id) { return *pobjNet.Nodes[static_cast<std::size_t>(pcolNumbers.at(id))].Position; };
  for (const PnmlArc& arc : pobjNet.Arcs) {
    placement.Bends.push_back(NeededBends(arc, positionOf(arc.Source), positionOf(arc.Target), pobjNet.Section != nullptr));
  }
  return placement;
}

}  // namespace

NodeNumbers NumberNodes(const PnmlNet& pobjNet) {
  NodeNumbers numbers;
  numbers.reserve(pobjNet.Nodes.size());
  for (const PnmlNode& node : pobjNet.Nodes) numbers.emplace(node.Id, static_cast<std::int32_t>(numbers.size()));
  return numbers;
}

NetPlacement PlaceNet(const PnmlNet& pobjNet, const NodeNumbers& pcolNumbers) {
  const auto isPlaced = [](const PnmlNode& node) { return node.Position.has_value(); };
  if (pobjNet.Section && std::all_of(pobjNet.Nodes.begin(), pobjNet.Nodes.end(), isPlaced)) return Keep(pobjNet, pcolNumbers);
  std::vector<std::optional<LayoutPoint>> positions;
  for (const PnmlNode& node : pobjNet.Nodes) {
    positions.push_back(node.Position
                            ? std::optional<LayoutPoint>({static_cast<float>(node.Position->X), static_cast<float>(node.Position->Y)})
                            : std::nullopt);
  }
  return NeedsLayout(positions, kSpot) ? LayOut(pobjNet, pcolNumbers) : Keep(pobjNet, pcolNumbers);
}

}  // namespace vantrel
