// The exact path of an arc, for paths that PNML's bend points cannot express.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Arc.h"

namespace vantrel {

/// A segment's ends, twips.
struct PathSegment {
  float X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
};

/// Where the path of an arc begins and ends before it is drawn, for nodes of the usual size with connectors left and right.
PathSegment UsualRun(const Node& pobjSource, const Node& pobjTarget);

/// True when the arc begins and ends like that, its segments meet, and every bend point is exact in pixels.
bool IsUsualPath(const Arc& pobjArc);

/// The segments of the chain (ChainOf), four numbers each, with blanks between.
std::string ArcPathText(const Arc& pobjArc);
/// Empty for a text that is not such a list.
std::optional<std::vector<PathSegment>> ReadArcPath(std::string_view pstrText);

}  // namespace vantrel
