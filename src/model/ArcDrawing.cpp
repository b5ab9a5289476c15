// How an arc draws itself: connectors, end points, segments, bend points, texts and places of the labels, in this order.
#include <algorithm>
#include <functional>
#include <optional>
#include <span>

#include "model/Arc.h"
#include "model/SingleDrawing.h"
#include "model/VNTRGlobal.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

struct ArcEnd {
  float X = 0, Y = 0;
};

struct Ends {
  Node& Source;
  Node& Target;
};

// Connectors are visible exactly while the place is.
void ShowConnectors(const Ends& pobjEnds, const Place& pobjPlace) {
  if (auto* connector = pobjEnds.Target.InConnector.get()) connector->Visible(pobjPlace.Visible());
  if (auto* connector = pobjEnds.Source.OutConnector.get()) connector->Visible(pobjPlace.Visible());
}

std::optional<ArcEnd> OutputPoint(const Node& pobjNode) {
  if (!pobjNode.OutConnector) return std::nullopt;
  return ArcEnd{OutputConnectorX(pobjNode), OutputConnectorY(pobjNode)};
}

std::optional<ArcEnd> InputPoint(const Node& pobjNode) {
  if (!pobjNode.InConnector) return std::nullopt;
  return ArcEnd{InputConnectorX(pobjNode), InputConnectorY(pobjNode)};
}

// A joint takes the point of that of its two segments that comes later in the workflow; usually both have the same.
void DrawSegments(std::span<Vector* const> pcolSegments, std::optional<ArcEnd> pStart, std::optional<ArcEnd> pEnd) {
  for (Vector* segment : pcolSegments) {
    ArcEnd from{segment->X1(), segment->Y1()}, to{segment->X2(), segment->Y2()};
    if (const Vector* before = segment->InVector.get()) {
      from = {before->X2(), before->Y2()};
    } else if (pStart) {
      from = *pStart;
    }
    if (const Vector* behind = segment->OutVector.get()) {
      to = {behind->X1(), behind->Y1()};
    } else if (pEnd) {
      to = *pEnd;
    }
    segment->Place(from.X, from.Y, to.X, to.Y);
  }
}

void DrawBendPoints(const Arc& pobjArc) {
  const auto elbows = pobjArc.Elbows();
  for (const auto& elbow : *elbows) {
    if (elbow->InVector()) elbow->CentreHandle(elbow->InVector()->X2(), elbow->InVector()->Y2());
    elbow->Visible(pobjArc.Selected());
  }
}

void CentreLabel(const Ref<Label>& pobjLabel, float psngX, float psngY) {
  if (Label* label = pobjLabel.get()) label->MoveTo(psngX - label->Width() / 2, psngY - label->Height() / 2);
}

void PlaceLabels(const Arc& pobjArc, const Vector& pobjFirst) {
  const float x = (pobjFirst.X1() + pobjFirst.X2()) / 2;
  const float y = (pobjFirst.Y1() + pobjFirst.Y2()) / 2;
  CentreLabel(pobjArc.CaptionLabel, x + pobjArc.CaptionOffsetX(), y + pobjArc.CaptionOffsetY());
  CentreLabel(pobjArc.WeightLabel, x + pobjArc.WeightOffsetX(), y + pobjArc.WeightOffsetY());
}

void ShowLabels(const Arc& pobjArc, const Workflow& pobjWorkflow) {
  if (Label* label = pobjArc.CaptionLabel.get()) {
    if (pobjArc.Guard().empty() || !pobjWorkflow.ShowGuards) {
      label->Visible(false);
    } else {
      label->Caption("[" + pobjArc.Guard() + "]");
      label->Visible(true);
      FitLabel(*label, *pobjWorkflow.Designer().Host);
    }
  }
  if (Label* label = pobjArc.WeightLabel.get()) label->Visible(pobjWorkflow.ShowWeights && !pobjArc.Weight().empty());
}

}  // namespace

void Arc::Draw() {
  if (!mblnVisible || SingleDrawing::Postpones(*this)) return;
  std::optional<ArcEnd> start, end;
  const bool hasDirection = ArcDirection == vntInArc || ArcDirection == vntOutArc;
  if (hasDirection && Place && Transition) {
    const bool inward = ArcDirection == vntInArc;
    const Ends ends{inward ? static_cast<Node&>(*Place) : *Transition, inward ? static_cast<Node&>(*Transition) : *Place};
    ShowConnectors(ends, *Place);
    start = OutputPoint(ends.Source);
    end = InputPoint(ends.Target);
  }
  const bool isStraight = mcolSegments.size() == 1 && Workflow && Workflow->Has(*mcolSegments.front());
  const auto several = isStraight ? std::vector<Vector*>() : Segments();
  const std::span<Vector* const> segments(isStraight ? mcolSegments : several);
  DrawSegments(segments, start, end);
  const bool isBent =
      std::any_of(mcolSegments.begin(), mcolSegments.end(), [](const Vector* segment) { return !segment->Elbows().empty(); });
  if (isBent) DrawBendPoints(*this);
  if (Workflow) ShowLabels(*this, *Workflow);  // fits them, so they are placed afterwards
  if (!segments.empty()) PlaceLabels(*this, *segments.front());
}

}  // namespace vantrel
