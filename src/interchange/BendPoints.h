#pragma once

#include <vector>

#include "interchange/PlanePoint.h"

namespace vantrel {

/// Drops points of a line that lie within psngTolerance of the rest (Ramer 1972, Douglas and Peucker 1973). Keeps the first and the last
/// point. Simplifies lines of many thousand points piece by piece, so that the time grows with the length alone.
std::vector<PlanePoint> SimplifyLine(const std::vector<PlanePoint>& pcolLine, double psngTolerance);

}  // namespace vantrel
