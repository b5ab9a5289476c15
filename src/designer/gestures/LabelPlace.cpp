#include "designer/gestures/LabelPlace.h"

#include <algorithm>
#include <cmath>

#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"

namespace vantrel {

namespace {

std::int32_t Whole(float psngTwips) { return static_cast<std::int32_t>(std::lround(std::clamp(psngTwips, -1e9F, 1e9F))); }

void StorePlace(Arc& pobjArc, const Label& pobjLabel) {
  const auto segments = pobjArc.Segments();
  if (segments.empty()) return;
  const Vector& first = *segments.front();
  // Read both before storing either: a setter redraws, which moves the label.
  const float x = pobjLabel.Left() + pobjLabel.Width() / 2 - (first.X1() + first.X2()) / 2;
  const float y = pobjLabel.Top() + pobjLabel.Height() / 2 - (first.Y1() + first.Y2()) / 2;
  if (pobjArc.CaptionLabel == &pobjLabel) {
    pobjArc.CaptionOffsetX(x);
    pobjArc.CaptionOffsetY(y);
  } else {
    pobjArc.WeightOffsetX(x);
    pobjArc.WeightOffsetY(y);
  }
  pobjArc.Draw();
}

void StorePlace(Notation& pobjNote, const Label& pobjLabel) {
  const std::int32_t left = Whole(pobjLabel.Left());
  pobjNote.Top(Whole(pobjLabel.Top()));
  pobjNote.Left(left);
  pobjNote.Dirty = true;
  pobjNote.Draw();
}

void StorePlace(Node& pobjNode, const Label& pobjLabel) {
  pobjNode.CaptionOffsetTop(pobjLabel.Top() - pobjNode.Top());
  pobjNode.CaptionOffsetLeft(pobjLabel.Left() - pobjNode.Left());
}

void StoreSize(Arc& pobjArc, const Label& pobjLabel, float psngHeight, float psngWidth) {
  if (pobjArc.WeightLabel == &pobjLabel) {
    pobjArc.WeightHeight(psngHeight);
    pobjArc.WeightWidth(psngWidth);
  } else {
    pobjArc.CaptionHeight(psngHeight);
    pobjArc.CaptionWidth(psngWidth);
  }
}

void StoreSize(Notation& pobjNote, const Label&, float psngHeight, float psngWidth) {
  const std::int32_t height = Whole(psngHeight), width = Whole(psngWidth);
  pobjNote.Height(height);
  pobjNote.Width(width);
}

void StoreSize(Node& pobjNode, const Label&, float psngHeight, float psngWidth) {
  pobjNode.CaptionHeight = psngHeight;
  pobjNode.CaptionWidth = psngWidth;
}

template <class Store>
void WithObject(Vantrel& pobjControl, const Label& pobjLabel, Store&& pStore) {
  const auto object = ObjectOf(pobjControl, pobjLabel);
  if (auto* arc = dynamic_cast<Arc*>(object.get())) return pStore(*arc);
  if (auto* note = dynamic_cast<Notation*>(object.get())) return pStore(*note);
  if (auto* node = dynamic_cast<Node*>(object.get())) return pStore(*node);
}

}  // namespace

void StoreLabelPlace(Vantrel& pobjControl, Label& pobjLabel) {
  const auto workflow = pobjControl.Workflow();
  WithObject(pobjControl, pobjLabel, [&](auto& object) { StorePlace(object, pobjLabel); });
  if (workflow) workflow->Dirty(true);
  pobjControl.FocusFrame.FrameControl();
}

void StoreLabelSize(Vantrel& pobjControl, Label& pobjLabel, float psngHeight, float psngWidth) {
  WithObject(pobjControl, pobjLabel, [&](auto& object) { StoreSize(object, pobjLabel, psngHeight, psngWidth); });
  StoreLabelPlace(pobjControl, pobjLabel);
}

}  // namespace vantrel
