// Drawing arcs once where many nodes are drawn.
#pragma once

#include <vector>

#include "model/Forward.h"
#include "util/Ref.h"

namespace vantrel {

/// A node that draws itself draws its arcs, so an arc between two such nodes is drawn twice. While this lives, arcs put their drawing off,
/// and Finish draws each of them once, in the order of their last requests. Arcs of other workflows draw themselves at once. An inner
/// one leaves the drawing to the outer one.
class SingleDrawing {
 public:
  explicit SingleDrawing(Workflow& pobjWorkflow);
  /// Draws what was still put off when something was thrown, and ignores its errors.
  ~SingleDrawing();
  SingleDrawing(const SingleDrawing&) = delete;
  SingleDrawing& operator=(const SingleDrawing&) = delete;

  void Finish();
  /// Drops the arcs that are asked to draw themselves: the caller draws them afterwards.
  void Forget() { mblnForgets = true; }
  /// True when the drawing is put off; the arc must not draw itself now.
  static bool Postpones(Arc& pobjArc);

 private:
  Ref<Workflow> mobjWorkflow;
  bool mblnForgets = false;
  std::vector<Ref<Arc>> mcolWaiting;  // may list an arc several times, or one that is gone
};

}  // namespace vantrel
