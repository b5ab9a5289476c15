#pragma once

#include <set>
#include <string>
#include <vector>

#include "designer/ChartObjects.h"
#include "designer/Vantrel.h"
#include "model/VNTRGlobal.h"

namespace vantrel::test {

/// What is true of every control between two calls: the elements on the chart are exactly those of the workflow, every chain of segments
/// is whole and ends at its connectors, and nothing refers to an object that is gone.
class Invariants {
 public:
  explicit Invariants(const Vantrel& pobjControl) : mControl(pobjControl), mWorkflow(pobjControl.Workflow().get()) {
    if (mWorkflow) CheckWorkflow();
    CheckSurface();
    CheckSelection();
    if (mWorkflow && mControl.Comfort.ChosenIsSeen) CheckLooks();
  }

  /// A line for each fault; empty when there is none.
  const std::string& Faults() const { return mFaults; }

 private:
  void Expect(bool pblnHolds, const std::string& pstrFault) {
    if (!pblnHolds) mFaults += pstrFault + "\n";
  }

  void Own(const Element* pobjElement, const std::string& pstrKey, const char* pstrWhat) {
    Expect(pobjElement && pobjElement->Surface() == &mControl.ChartArea, pstrKey + " lacks its " + pstrWhat);
    if (!pobjElement) return;
    Expect(pobjElement->Tag() == pstrKey, pstrKey + ": " + pstrWhat + " is tagged " + pobjElement->Tag());
    Expect(mOwned.insert(pobjElement).second, pstrKey + " shares its " + pstrWhat);
  }

  void CheckWorkflow() {
    for (const auto& place : mWorkflow->Places) {
      CheckNode(*place);
      Own(place->CountLabel.get(), place->Key, "count");
    }
    for (const auto& transition : mWorkflow->Transitions) CheckNode(*transition);
    for (const auto& arc : mWorkflow->Arcs) CheckArc(*arc);
    for (const auto& note : mWorkflow->Notations) Own(note->TextControl.get(), note->Key, "text");
    for (const auto& vector : mWorkflow->Vectors) Expect(IsOfAnArc(vector->Arc()), vector->Key + " belongs to no arc");
    for (const auto& elbow : mWorkflow->Elbows) {
      Expect(elbow->InVector() && IsOfAnArc(elbow->InVector()->Arc()), elbow->Key + " belongs to no arc");
    }
    for (const auto& transition : mWorkflow->FiringStack) Expect(IsPartOf(*transition, *mWorkflow), transition->Key + " waits to fire");
    for (const auto* end : {&mWorkflow->StartPlace, &mWorkflow->EndPlace()}) {
      Expect(!*end || IsPartOf(**end, *mWorkflow), "the start or end place is gone");
    }
  }

  bool IsOfAnArc(const Ref<Arc>& pobjArc) const { return pobjArc && IsPartOf(*pobjArc, *mWorkflow); }

  void CheckNode(const Node& pobjNode) {
    Own(pobjNode.Image.get(), pobjNode.Key, "image");
    Own(pobjNode.InConnector.get(), pobjNode.Key, "input");
    Own(pobjNode.OutConnector.get(), pobjNode.Key, "output");
    Own(pobjNode.CaptionLabel.get(), pobjNode.Key, "caption");
    for (const auto* arcs : {&pobjNode.InArcs, &pobjNode.OutArcs}) {
      for (const auto& arc : *arcs) Expect(IsPartOf(*arc, *mWorkflow), pobjNode.Key + " lists " + arc->Key + ", which is gone");
    }
  }

  void CheckArc(const Arc& pobjArc) {
    Own(pobjArc.CaptionLabel.get(), pobjArc.Key, "guard");
    Own(pobjArc.WeightLabel.get(), pobjArc.Key, "weight");
    Expect(pobjArc.Place && pobjArc.Transition && IsPartOf(*pobjArc.Place, *mWorkflow) && IsPartOf(*pobjArc.Transition, *mWorkflow),
           pobjArc.Key + " lacks an end");
    if (!mFaults.empty()) return;
    const bool inward = pobjArc.ArcDirection == vntInArc;
    const Node& source = inward ? static_cast<const Node&>(*pobjArc.Place) : *pobjArc.Transition;
    const Node& target = inward ? static_cast<const Node&>(*pobjArc.Transition) : *pobjArc.Place;
    Expect(source.OutArcs.Find(pobjArc.Key).get() == &pobjArc && target.InArcs.Find(pobjArc.Key).get() == &pobjArc,
           pobjArc.Key + " is not listed at its ends");
    const auto chain = CheckChain(pobjArc);
    // In run mode places do not redraw.
    if (!mFaults.empty() || mControl.UseMode() == vntRun) return;
    const Vector& first = *chain.front();
    const Vector& last = *chain.back();
    Expect(first.X1() == OutputConnectorX(source) && first.Y1() == OutputConnectorY(source), pobjArc.Key + " does not begin at its source");
    Expect(last.X2() == InputConnectorX(target) && last.Y2() == InputConnectorY(target), pobjArc.Key + " does not end at its target");
  }

  std::vector<const Vector*> CheckChain(const Arc& pobjArc) {
    const auto segments = pobjArc.Segments();
    std::vector<const Vector*> chain;
    for (const Vector* segment : segments) {
      Own(segment->LineControl.get(), segment->Key, "line");
      if (!segment->InVector && chain.empty()) chain.push_back(segment);
    }
    while (!chain.empty() && chain.back()->OutVector && chain.size() <= segments.size()) {
      const Vector& before = *chain.back();
      const Vector& behind = *before.OutVector;
      Expect(behind.InVector == &before, behind.Key + " is not linked back");
      Expect(behind.X1() == before.X2() && behind.Y1() == before.Y2(), behind.Key + " does not begin where " + before.Key + " ends");
      chain.push_back(&behind);
    }
    Expect(!chain.empty() && chain.size() == segments.size(), pobjArc.Key + " has a broken chain");
    CheckBendPoints(pobjArc, segments.size());
    return chain;
  }

  void CheckBendPoints(const Arc& pobjArc, std::size_t plngSegments) {
    const auto bendPoints = pobjArc.BendPoints();
    Expect(bendPoints.size() + 1 == plngSegments, pobjArc.Key + " has too few or too many bend points");
    for (const Elbow* elbow : bendPoints) {
      Own(elbow->Handle.get(), elbow->Key, "handle");
      Expect(elbow->InVector() && elbow->OutVector() && elbow->InVector()->OutVector == elbow->OutVector(), elbow->Key + " joins nothing");
    }
  }

  template <class E>
  void CheckFamily(const ElementFamily<E>& pobjFamily) {
    for (std::int32_t index = 1; index <= pobjFamily.UpperBound(); ++index) {
      const auto element = pobjFamily.At(index);
      if (element) Expect(mOwned.contains(element.get()), "an element tagged \"" + element->Tag() + "\" was left behind");
    }
  }

  void CheckSurface() {
    const auto& surface = mControl.ChartArea;
    CheckFamily(surface.ctlImage);
    CheckFamily(surface.ctlLabel);
    CheckFamily(surface.lblCount);
    CheckFamily(surface.ctlLine);
    CheckFamily(surface.ctlHandle);
  }

  void CheckSelection() {
    for (const auto& object : *mControl.Selection()) {
      Expect(mWorkflow && IsPartOf(*object, *mWorkflow), KeyOf(*object) + " is selected but gone");
    }
    const Element* current = mControl.CurrentControl().get();
    Expect(!current || mOwned.contains(current), "the current element shows nothing");
    const Element* framed = mControl.FocusFrame.Visible() ? mControl.FocusFrame.SelectedControl().get() : nullptr;
    Expect(!framed || mOwned.contains(framed), "the focus frame is round nothing");
    Expect(mControl.FocusFrame.Visible() == (framed != nullptr), "the focus frame shows without an element");
  }

  /// With Comfort::All: Delete, Copy and the arrow keys would take exactly what looks chosen.
  void CheckLooks() {
    std::set<const ModelObject*> taken;
    for (const auto& object : *mControl.Selection()) {
      const auto* vector = dynamic_cast<const Vector*>(object.get());
      taken.insert(vector ? static_cast<const ModelObject*>(vector->Arc().get()) : object.get());
      Expect(!dynamic_cast<const Elbow*>(object.get()), KeyOf(*object) + " is chosen, which nothing shows");
    }
    const Element* current = mControl.CurrentControl().get();
    const auto object = current ? mControl.GetVNTRObject(current->Tag()) : nullptr;
    Expect(!object || taken.contains(object.get()) || (current->Family() == ctlLineFamily && IsSelected(*object)),
           "the current element's object is not chosen");
    const auto expectSeen = [&](const auto& each, bool pblnLooks) {
      const bool isTaken = taken.contains(&each);
      Expect(pblnLooks == isTaken, each.Key + (isTaken ? " is chosen and does not look it" : " looks chosen and is not"));
    };
    for (const auto& place : mWorkflow->Places) expectSeen(*place, place->Image->BorderStyle() != 0 || IsFramed(place->Key));
    for (const auto& transition : mWorkflow->Transitions)
      expectSeen(*transition, transition->Image->BorderStyle() != 0 || IsFramed(transition->Key));
    for (const auto& note : mWorkflow->Notations) expectSeen(*note, note->TextControl->Marked() || IsFramed(note->Key));
    for (const auto& arc : mWorkflow->Arcs) {
      const auto segments = arc->Segments();
      const bool looks = segments.front()->LineWidth() > 1;
      for (const Vector* segment : segments) Expect((segment->LineWidth() > 1) == looks, arc->Key + " looks chosen in part");
      for (const Elbow* bendPoint : arc->BendPoints())
        Expect(bendPoint->Visible() == looks, bendPoint->Key + " looks another way than its arc");
      expectSeen(*arc, looks || IsFramed(arc->Key));
    }
  }

  bool IsFramed(const std::string& pstrKey) const {
    return mControl.FocusFrame.Visible() && mControl.FocusFrame.SelectedControl()->Tag() == pstrKey;
  }

  const Vantrel& mControl;
  const Workflow* mWorkflow;
  std::set<const Element*> mOwned;
  std::string mFaults;
};

}  // namespace vantrel::test
