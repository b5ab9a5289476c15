#include "interchange/PnmlSubprocess.h"

namespace vantrel {

PnmlSubprocessBorder::PnmlSubprocessBorder(const PnmlNet& pobjOuter) {
  for (const PnmlNode& node : pobjOuter.Nodes) {
    if (node.Kind == PnmlKind::Place) mPlaces.insert(node.Id);
  }
  for (const PnmlArc& arc : pobjOuter.Arcs) mArcs.emplace(arc.Source, arc.Target);
}

void PnmlSubprocessBorder::Mark(PnmlNet& pobjSubnet, std::string_view pstrTransition) const {
  std::unordered_set<std::string_view> entered;
  std::unordered_set<std::string_view> left;
  for (const PnmlArc& arc : pobjSubnet.Arcs) {
    left.insert(arc.Source);
    entered.insert(arc.Target);
  }
  for (PnmlNode& node : pobjSubnet.Nodes) {
    if (node.Kind != PnmlKind::Place || !mPlaces.contains(node.Id)) continue;
    node.Border = Kind(node.Id, pstrTransition, entered.contains(node.Id), left.contains(node.Id));
  }
}

PnmlBorder PnmlSubprocessBorder::Kind(std::string_view pstrPlace, std::string_view pstrTransition, bool pblnEntered, bool pblnLeft) const {
  if (pblnEntered && pblnLeft) return PnmlBorder::None;
  if (pblnLeft) return PnmlBorder::Start;
  if (pblnEntered) return PnmlBorder::End;
  if (mArcs.contains({pstrPlace, pstrTransition})) return PnmlBorder::Start;
  return mArcs.contains({pstrTransition, pstrPlace}) ? PnmlBorder::End : PnmlBorder::None;
}

}  // namespace vantrel
