// Drawing arcs once where many nodes are drawn.
#pragma once

#include <vector>

#include "model/Forward.h"
#include "util/Ref.h"

namespace vantrel {

/// Every node that is drawn draws its arcs: with both ends that is twice. While this lives, arcs that are asked to draw themselves
/// wait, and Finish draws each of them once, in the order in which they were asked last. Arcs of other workflows draw
/// themselves at once. One inside another leaves it to the outer.
class SingleDrawing {
 public:
  explicit SingleDrawing(Workflow& pobjWorkflow);
  /// Draws what still waits because something was thrown, and swallows its errors.
  ~SingleDrawing();
  SingleDrawing(const SingleDrawing&) = delete;
  SingleDrawing& operator=(const SingleDrawing&) = delete;

  void Finish();
  /// True: the arc waits, and must not draw itself now.
  static bool Postpones(Arc& pobjArc);

 private:
  Ref<Workflow> mobjWorkflow;
  std::vector<Ref<Arc>> mcolWaiting;  // an arc may stand in it several times, or be gone meanwhile
};

}  // namespace vantrel
