#include "designer/gestures/ConnectorGesture.h"

#include "designer/CommandRules.h"
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"

namespace vantrel {

namespace {

constexpr float kMargin = 100;  // twips on either side of an edge

bool Inside(float psngValue, float psngFrom, float psngTo) { return psngValue > psngFrom && psngValue < psngTo; }
bool NearEdge(float psngValue, float psngEdge) { return Inside(psngValue, psngEdge - kMargin, psngEdge + kMargin); }

}  // namespace

std::int16_t SideAt(const Image& pobjImage, float psngX, float psngY) {
  const Rect box = pobjImage.Bounds();
  const bool isBesideWidth = Inside(psngX, box.Left, box.Right), isBesideHeight = Inside(psngY, box.Top, box.Bottom);
  if (isBesideWidth && NearEdge(psngY, box.Top)) return vntTop;
  if (isBesideHeight && NearEdge(psngX, box.Right)) return vntRight;
  if (isBesideWidth && NearEdge(psngY, box.Bottom)) return vntBottom;
  if (isBesideHeight && NearEdge(psngX, box.Left)) return vntLeft;
  return 0;
}

ConnectorGesture::ConnectorGesture(Vantrel& pobjControl, const std::shared_ptr<Node>& pobjNode, Image& pobjConnector,
                                   const PointerInput& pobjPress)
    : mobjControl(pobjControl),
      mobjNode(pobjNode),
      mobjConnector(&pobjConnector),
      msngX(pobjPress.X - pobjConnector.Left()),
      msngY(pobjPress.Y - pobjConnector.Top()) {}

bool ConnectorGesture::IsShown() const { return mobjNode && IsOnChart(mobjConnector) && IsOnChart(mobjNode->Image); }

void ConnectorGesture::Move(const PointerInput& pobjInput) {
  if (!IsShown()) return;
  if (MayChange(mobjControl)) mobjControl.Dirty(true);
  if (mobjControl.UseMode() != vntDesign || mobjControl.LockControls()) return;
  mblnMoved = true;
  mobjConnector->MoveTo(pobjInput.X - msngX, pobjInput.Y - msngY);
  mobjControl.Tools().Pointer(SideAt(*mobjNode->Image, pobjInput.X, pobjInput.Y) ? vntPointerHand : vntPointerDefault);
}

void ConnectorGesture::Drop(Node& pobjNode, std::int16_t pintSide) const {
  if (pobjNode.InConnector == mobjConnector) {
    pobjNode.InputPosition(pintSide);
  } else {
    pobjNode.OutputPosition(pintSide);
  }
  if (auto* workflow = pobjNode.Workflow.get()) workflow->Dirty(true);
}

void ConnectorGesture::Release(const PointerInput& pobjInput) {
  const auto node = mobjNode.Lock();
  if (mblnMoved && IsShown()) {
    const std::int16_t side = SideAt(*node->Image, pobjInput.X, pobjInput.Y);
    if (side && mobjControl.UseMode() == vntDesign) Drop(*node, side);
  }
  Snap();
  mobjControl.FocusFrame.Visible(false);
  if (mblnMoved) mobjControl.ExtendScrollRange();
}

void ConnectorGesture::Snap() const {
  if (!mblnMoved || !IsShown()) return;
  mobjNode->Draw();
  ShowChartPointer(mobjControl);
}

}  // namespace vantrel
