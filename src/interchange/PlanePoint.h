#pragma once

namespace vantrel {

/// A point of a drawing; y grows downwards. Its users say which unit.
struct PlanePoint {
  double X = 0;
  double Y = 0;
};

}  // namespace vantrel
