#include "interchange/PnmlGeometry.h"

#include <cmath>

#include "interchange/PnmlNumbers.h"

namespace vantrel {

namespace {

double ReadCoordinate(const PnmlXml& pobjXml, const pugi::xml_node& pobjPoint, const char* pstrAttribute) {
  const pugi::xml_attribute attribute = pobjPoint.attribute(pstrAttribute);
  if (!attribute) pobjXml.Fail("a position without " + std::string(pstrAttribute), pobjPoint);
  const std::optional<double> number = ParseCoordinate(attribute.value());
  if (!number) {
    pobjXml.Fail("the coordinate " + std::string(pstrAttribute) + '=' + QuotedForMessage(attribute.value()) +
                     " is not a number that a drawing can hold",
                 pobjPoint);
  }
  return *number;
}

PnmlPoint ReadPoint(const PnmlXml& pobjXml, const pugi::xml_node& pobjPoint) {
  return {ReadCoordinate(pobjXml, pobjPoint, "x"), ReadCoordinate(pobjXml, pobjPoint, "y")};
}

/// The point of `graphics/pstrElement`. Some editors write the element without numbers.
std::optional<PnmlPoint> ReadGraphicsPoint(const PnmlXml& pobjXml, const pugi::xml_node& pobjOwner, std::string_view pstrElement) {
  const pugi::xml_node point = ChildNamed(ChildNamed(pobjOwner, "graphics"), pstrElement);
  if (!point.attribute("x") && !point.attribute("y")) return std::nullopt;
  return ReadPoint(pobjXml, point);
}

std::vector<PnmlPoint> ReadPoints(const PnmlXml& pobjXml, const pugi::xml_node& pobjOwner, std::string_view pstrElement) {
  std::vector<PnmlPoint> points;
  for (const pugi::xml_node& child : pobjOwner.children()) {
    if (LocalName(child) == pstrElement) points.push_back(ReadPoint(pobjXml, child));
  }
  return points;
}

}  // namespace

std::optional<PnmlPoint> ReadPosition(const PnmlXml& pobjXml, const pugi::xml_node& pobjNode) {
  return ReadGraphicsPoint(pobjXml, pobjNode, "position");
}

std::optional<PnmlPoint> ReadNameOffset(const PnmlXml& pobjXml, const pugi::xml_node& pobjNode) {
  return ReadGraphicsPoint(pobjXml, ChildNamed(pobjNode, "name"), "offset");
}

std::vector<PnmlPoint> ReadBends(const PnmlXml& pobjXml, const pugi::xml_node& pobjArc) {
  std::vector<PnmlPoint> path = ReadPoints(pobjXml, pobjArc, "arcpath");
  if (path.empty()) return ReadPoints(pobjXml, ChildNamed(pobjArc, "graphics"), "position");
  if (path.size() <= 2) return {};
  return {path.begin() + 1, path.end() - 1};
}

void RelateNameOffsets(PnmlNet& pobjNet) {
  double asOffsets = 0;
  double asPlaces = 0;
  for (const PnmlNode& node : pobjNet.Nodes) {
    if (!node.Position || !node.NameOffset) continue;
    asOffsets += std::hypot(node.NameOffset->X, node.NameOffset->Y);
    asPlaces += std::hypot(node.NameOffset->X - node.Position->X, node.NameOffset->Y - node.Position->Y);
  }
  if (asOffsets <= asPlaces) return;
  for (PnmlNode& node : pobjNet.Nodes) {
    if (!node.Position || !node.NameOffset) continue;
    node.NameOffset = PnmlPoint{node.NameOffset->X - node.Position->X, node.NameOffset->Y - node.Position->Y};
  }
}

}  // namespace vantrel
