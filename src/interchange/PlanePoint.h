#pragma once

namespace vantrel {

/// A point of a drawing; y grows downwards. Who uses it says the unit.
struct PlanePoint {
  double X = 0;
  double Y = 0;
};

}  // namespace vantrel
