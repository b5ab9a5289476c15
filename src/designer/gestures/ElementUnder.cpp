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
  const auto* object = dynamic_cast<const ChartObject*>(&pobjObject);
  if (!object) return nullptr;
  switch (object->Kind()) {
    case ChartKind::Place:
    case ChartKind::Transition:
      return static_cast<const Node&>(*object).Image.get();
    case ChartKind::Notation:
      return static_cast<const Notation&>(*object).TextControl.get();
    case ChartKind::Vector:
      return static_cast<const Vector&>(*object).LineControl.get();
    case ChartKind::Arc: {
      const auto segments = static_cast<const Arc&>(*object).Segments();
      return segments.empty() ? nullptr : segments.front()->LineControl.get();
    }
    default:
      return nullptr;
  }
}

}  // namespace vantrel
