#include "designer/ChartFitting.h"

#include <algorithm>

#include "designer/ChartObjects.h"
#include "model/SingleDrawing.h"

namespace vantrel {

namespace {

template <class T>
void MoveEach(const Collection<T>& pcolObjects, float psngX, float psngY) {
  for (typename Collection<T>::Cursor cursor(pcolObjects); T* object = cursor.Next();) {
    MoveTo(*object, static_cast<float>(object->Left()) + psngX, static_cast<float>(object->Top()) + psngY);
  }
}

void Widen(ScrollBar& pobjBar, float psngMin, float psngMax) {
  if (psngMin < pobjBar.Min()) pobjBar.Min(psngMin);
  if (psngMax > pobjBar.Max()) pobjBar.Max(psngMax);
}

}  // namespace

// Elements right of and below the origin do not narrow it.
Rect ChartFitting::Extent() const { return Rect().United(mobjControl.ChartArea.BoxBounds().value_or(Rect())); }

// Bend points first: the arcs draw themselves when their ends move.
void ChartFitting::MoveAll(float psngX, float psngY) {
  Workflow& workflow = *mobjControl.Workflow();
  SingleDrawing arcsOnce(workflow);
  MoveEach(workflow.Elbows, psngX, psngY);
  MoveEach(workflow.Transitions, psngX, psngY);
  MoveEach(workflow.Places, psngX, psngY);
  MoveEach(workflow.Notations, psngX, psngY);
  arcsOnce.Finish();
}

void ChartFitting::Fit() {
  const Rect extent = Extent();
  const float x = -extent.Left, y = -extent.Top;
  if (mobjControl.Workflow() && (x > 0 || y > 0)) MoveAll(x, y);
  Widen(mobjControl.HScroll, mobjControl.HScroll.Min(), extent.Right + x);
  Widen(mobjControl.VScroll, mobjControl.VScroll.Min(), extent.Bottom + y);
}

void ChartFitting::ExtendScrollRange() {
  const Rect extent = Extent();
  Widen(mobjControl.HScroll, extent.Left, extent.Right);
  Widen(mobjControl.VScroll, extent.Top, extent.Bottom);
}

}  // namespace vantrel
