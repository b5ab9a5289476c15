#include "qt/ObjectTour.h"

#include <algorithm>
#include <vector>

#include "designer/Vantrel.h"
#include "model/Arc.h"
#include "model/Node.h"
#include "model/Notation.h"
#include "model/Place.h"
#include "model/Transition.h"
#include "model/Vector.h"

namespace vantrel {

namespace {

std::vector<Ref<Element>> Stations(const Workflow& pobjWorkflow) {
  std::vector<Ref<Element>> stations;
  const auto add = [&stations](Element* pobjElement) {
    if (pobjElement && pobjElement->Visible()) stations.emplace_back(pobjElement);
  };
  for (const auto& place : pobjWorkflow.Places) add(place->Image.get());
  for (const auto& transition : pobjWorkflow.Transitions) add(transition->Image.get());
  for (const auto& note : pobjWorkflow.Notations) add(note->TextControl.get());
  return stations;
}

}  // namespace

Ref<Element> NextOnTour(const Vantrel& pobjControl, bool pblnForward) {
  const auto& workflow = pobjControl.Workflow();
  if (!workflow) return nullptr;
  const auto stations = Stations(*workflow);
  if (stations.empty()) return nullptr;
  const Element* const current = pobjControl.CurrentControl().get();
  const auto at = std::find_if(stations.begin(), stations.end(),
                               [current](const Ref<Element>& station) { return current && station->Tag() == current->Tag(); });
  if (at == stations.end()) return pblnForward ? stations.front() : stations.back();
  if (pblnForward) return at + 1 == stations.end() ? nullptr : *(at + 1);
  return at == stations.begin() ? nullptr : *(at - 1);
}

Ref<Element> TextOnTour(const Vantrel& pobjControl) {
  const Element* const current = pobjControl.CurrentControl().get();
  if (!current || current->Tag().empty()) return nullptr;
  if (current->Family() == ctlLabelFamily) return pobjControl.CurrentControl();
  const auto object = pobjControl.GetVNTRObject(current->Tag());
  if (const auto* const node = dynamic_cast<const Node*>(object.get())) return node->CaptionLabel.get();
  if (const auto* const note = dynamic_cast<const Notation*>(object.get())) return note->TextControl.get();
  const auto* const segment = dynamic_cast<const Vector*>(object.get());
  const auto arc = segment ? segment->Arc() : nullptr;
  if (!arc) return nullptr;
  for (Label* const label : {arc->WeightLabel.get(), arc->CaptionLabel.get()}) {
    if (label && label->Visible()) return label;
  }
  return nullptr;
}

std::string TipOf(const Vantrel& pobjControl, const Element& pobjElement) {
  std::shared_ptr<ModelObject> object;
  try {
    object = pobjControl.GetVNTRObject(pobjElement.Tag());
  } catch (const Error&) {
    return {};
  }
  if (!object) return {};
  std::string tip = object->NameText();
  const auto* const node = dynamic_cast<const Node*>(object.get());
  if (node && !node->Description.empty()) tip += "\n" + node->Description;
  return tip;
}

}  // namespace vantrel
