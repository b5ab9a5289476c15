#include "designer/gestures/ElementUnder.h"

#include "designer/Vantrel.h"

namespace vantrel {

namespace {

bool CatchesPointer(const Element& pobjElement) {
  switch (pobjElement.Family()) {
    case ctlImageFamily:
    case ctlLabelFamily:
    case ctlHandleFamily:
      return true;
    default:
      return false;
  }
}

}  // namespace

Element* ElementUnder(const Vantrel& pobjControl, float psngX, float psngY) {
  const auto elements = pobjControl.ChartArea.ElementsIn({psngX, psngY, psngX, psngY});
  for (auto element = elements.rbegin(); element != elements.rend(); ++element) {
    if (CatchesPointer(**element) && (*element)->Covers(psngX, psngY, 0)) return *element;
  }
  return nullptr;
}

std::shared_ptr<ModelObject> ObjectOf(const Vantrel& pobjControl, const Element& pobjElement) {
  if (!pobjControl.Workflow()) return nullptr;
  try {
    return pobjControl.GetVNTRObject(pobjElement.Tag());
  } catch (const Error&) {
    return nullptr;
  }
}

}  // namespace vantrel
