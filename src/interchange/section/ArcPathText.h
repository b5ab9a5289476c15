// The exact path of an arc, where PNML with its bend points alone does not say it.
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

/// Where the path of an arc begins and ends that nobody has drawn yet, for nodes of the usual size with connectors left and right.
PathSegment UsualRun(const Node& pobjSource, const Node& pobjTarget);

/// True when the arc begins and ends like that, its segments meet, and every bend point is exact in pixels.
bool IsUsualPath(const Arc& pobjArc);

/// The segments of the chain (ChainOf), four numbers each, with blanks between.
std::string ArcPathText(const Arc& pobjArc);
/// Nothing for a text that is no such list.
std::optional<std::vector<PathSegment>> ReadArcPath(std::string_view pstrText);

}  // namespace vantrel
