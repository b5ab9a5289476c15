// Where the objects of a net lie on the chart, and how its arcs run.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "interchange/PnmlDocument.h"
#include "interchange/layout/LayoutGraph.h"

namespace vantrel {

/// Top-left corners and bend points in twips: the file's where they make a drawing, a layered layout's otherwise.
struct NetPlacement {
  std::vector<LayoutPoint> TopLeft;             ///< of each node
  std::vector<std::vector<LayoutPoint>> Bends;  ///< of each arc, from source to target, none of them on a straight line
  bool IsLaidOut = false;                       ///< the file's positions were not usable
};

/// Numbers of a net's nodes by id.
using NodeNumbers = std::unordered_map<std::string, std::int32_t>;
NodeNumbers NumberNodes(const PnmlNet& pobjNet);

NetPlacement PlaceNet(const PnmlNet& pobjNet, const NodeNumbers& pcolNumbers);

}  // namespace vantrel
