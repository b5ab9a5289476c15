#pragma once

#include <vector>

#include "interchange/PlanePoint.h"

namespace vantrel {

/// The points of a line that are needed so that no dropped one lies further than psngTolerance from it: Ramer 1972, Douglas and Peucker
/// 1973. The first and the last point stay. Lines of many thousand points are taken piecewise, so the time grows with the length alone.
std::vector<PlanePoint> SimplifyLine(const std::vector<PlanePoint>& pcolLine, double psngTolerance);

}  // namespace vantrel
