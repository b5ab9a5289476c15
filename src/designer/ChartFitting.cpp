#include "designer/ChartFitting.h"

#include <algorithm>

#include "model/SingleDrawing.h"

namespace vantrel {

namespace {

template <class T>
void MoveEach(const Collection<T>& pcolObjects, float psngX, float psngY) {
  for (typename Collection<T>::Cursor cursor(pcolObjects); T* object = cursor.Next();) {
    if (const auto box = object->Bounds()) object->MoveTo(box->Left + psngX, box->Top + psngY);
  }
}

void Widen(ScrollBar& pobjBar, float psngMin, float psngMax) {
  if (psngMin < pobjBar.Min()) pobjBar.Min(psngMin);
  if (psngMax > pobjBar.Max()) pobjBar.Max(psngMax);
}

// Elements right of and below the origin does not narrow it.
Rect Extent(const Vantrel& pobjControl) { return Rect().United(pobjControl.ChartArea.BoxBounds().value_or(Rect())); }

// Bend points first: the arcs draw themselves when their ends move.
void MoveAll(Workflow& pobjWorkflow, float psngX, float psngY) {
  SingleDrawing arcsOnce(pobjWorkflow);
  MoveEach(pobjWorkflow.Elbows, psngX, psngY);
  MoveEach(pobjWorkflow.Transitions, psngX, psngY);
  MoveEach(pobjWorkflow.Places, psngX, psngY);
  MoveEach(pobjWorkflow.Notations, psngX, psngY);
  arcsOnce.Finish();
}

}  // namespace

void FitChart(Vantrel& pobjControl) {
  const Rect extent = Extent(pobjControl);
  const float x = -extent.Left, y = -extent.Top;
  if (pobjControl.Workflow() && (x > 0 || y > 0)) MoveAll(*pobjControl.Workflow(), x, y);
  Widen(pobjControl.HScroll, pobjControl.HScroll.Min(), extent.Right + x);
  Widen(pobjControl.VScroll, pobjControl.VScroll.Min(), extent.Bottom + y);
}

void ExtendScrollRange(Vantrel& pobjControl) {
  const Rect extent = Extent(pobjControl);
  Widen(pobjControl.HScroll, extent.Left, extent.Right);
  Widen(pobjControl.VScroll, extent.Top, extent.Bottom);
}

}  // namespace vantrel
