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

Ref<Element> ElementOf(const ModelObject& pobjObject) {
  if (const auto* node = dynamic_cast<const Node*>(&pobjObject)) return node->Image.get();
  if (const auto* note = dynamic_cast<const Notation*>(&pobjObject)) return note->TextControl.get();
  if (const auto* segment = dynamic_cast<const Vector*>(&pobjObject)) return segment->LineControl.get();
  const auto* arc = dynamic_cast<const Arc*>(&pobjObject);
  const auto segments = arc ? arc->Segments() : std::vector<Vector*>();
  return segments.empty() ? nullptr : segments.front()->LineControl.get();
}

}  // namespace vantrel
