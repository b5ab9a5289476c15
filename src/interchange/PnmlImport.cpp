#include "interchange/PnmlImport.h"

#include <utility>

#include "interchange/NetPlacement.h"
#include "interchange/UniqueNames.h"
#include "model/DesignerState.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

std::vector<std::string> NamesOf(const PnmlNet& pobjNet, PnmlKind pKind) {
  std::vector<std::string> names;
  for (const PnmlNode& node : pobjNet.Nodes) {
    if (node.Kind == pKind) names.push_back(node.Name);
  }
  return names;
}

/// Builds one workflow; one object a net.
class WorkflowBuilder {
 public:
  explicit WorkflowBuilder(const PnmlNet& pobjNet)
      : mNet(pobjNet),
        mNumbers(NumberNodes(pobjNet)),
        mPlacement(PlaceNet(pobjNet, mNumbers)),
        mPlaceNames("Place", NamesOf(pobjNet, PnmlKind::Place)),
        mTransitionNames("Transition", NamesOf(pobjNet, PnmlKind::Transition)) {}

  ImportedNet Build();

 private:
  void AddNode(std::size_t plngNumber);
  void AddPlace(const PnmlNode& pobjNode);
  void AddTransition(const PnmlNode& pobjNode);
  void Describe(Node& pobjObject, std::size_t plngNumber) const;
  void AddArc(std::size_t plngNumber);
  void Bend(Arc& pobjArc, const std::vector<LayoutPoint>& pcolBends) const;
  void FindEnds();

  const PnmlNet& mNet;
  NodeNumbers mNumbers;
  NetPlacement mPlacement;
  UniqueNames mPlaceNames, mTransitionNames;
  std::vector<std::shared_ptr<Node>> mObjects;  // in the order of the net's nodes
  ImportedNet mResult;
};

ImportedNet WorkflowBuilder::Build() {
  mResult.Workflow = std::make_shared<Workflow>();
  mResult.Id = mNet.Id;
  mResult.Name = mNet.Name.empty() ? mNet.Id : mNet.Name;
  mResult.Skipped = mNet.Skipped;
  for (std::size_t i = 0; i < mNet.Nodes.size(); ++i) AddNode(i);
  for (std::size_t i = 0; i < mNet.Arcs.size(); ++i) AddArc(i);
  FindEnds();
  return std::move(mResult);
}

void WorkflowBuilder::AddNode(std::size_t plngNumber) {
  const PnmlNode& node = mNet.Nodes[plngNumber];
  if (node.Kind == PnmlKind::Place) {
    AddPlace(node);
  } else {
    AddTransition(node);
  }
  Describe(*mObjects.back(), plngNumber);
}

void WorkflowBuilder::AddPlace(const PnmlNode& pobjNode) {
  Workflow& workflow = *mResult.Workflow;
  const auto place = std::make_shared<Place>();
  place->Key = NextKey(workflow.Places, "Place");
  place->AssignName(mPlaceNames.Next());
  workflow.Places.Add(place, place->Key);
  if (pobjNode.InitialMarking > 0) mResult.Marking.push_back({place, pobjNode.InitialMarking});
  if (pobjNode.Border == PnmlBorder::Start) workflow.StartPlace = place;
  if (pobjNode.Border == PnmlBorder::End) workflow.EndPlace(place);
  mObjects.push_back(place);
}

void WorkflowBuilder::AddTransition(const PnmlNode& pobjNode) {
  Workflow& workflow = *mResult.Workflow;
  const auto transition = std::make_shared<Transition>();
  transition->Key = NextKey(workflow.Transitions, "Transition");
  transition->AssignName(mTransitionNames.Next());
  workflow.Transitions.Add(transition, transition->Key);
  if (pobjNode.Subnet) {
    const ImportedNet inner = WorkflowBuilder(*pobjNode.Subnet).Build();
    mResult.Skipped.insert(mResult.Skipped.end(), inner.Skipped.begin(), inner.Skipped.end());
    transition->Object(inner.Workflow);
    transition->ObjectClassName = inner.Workflow->Class();
    transition->ObjectName = inner.Name;
  }
  mObjects.push_back(transition);
}

void WorkflowBuilder::Describe(Node& pobjObject, std::size_t plngNumber) const {
  const PnmlNode& node = mNet.Nodes[plngNumber];
  pobjObject.Workflow = mResult.Workflow;
  pobjObject.HiddenTag = node.Id;
  pobjObject.Caption(node.Name);
  pobjObject.Left(mPlacement.TopLeft[plngNumber].X);
  pobjObject.Top(mPlacement.TopLeft[plngNumber].Y);
  if (!node.NameOffset || mPlacement.IsLaidOut) return;
  pobjObject.CaptionOffsetLeft(static_cast<float>(node.NameOffset->X) * kFilePixel + kNodeSize / 2);
  pobjObject.CaptionOffsetTop(static_cast<float>(node.NameOffset->Y) * kFilePixel + kNodeSize / 2);
}

void WorkflowBuilder::AddArc(std::size_t plngNumber) {
  const PnmlArc& from = mNet.Arcs[plngNumber];
  const auto& source = mObjects[static_cast<std::size_t>(mNumbers.at(from.Source))];
  const auto& target = mObjects[static_cast<std::size_t>(mNumbers.at(from.Target))];
  auto place = std::dynamic_pointer_cast<Place>(source);
  const bool inward = place != nullptr;
  if (!inward) place = std::dynamic_pointer_cast<Place>(target);
  const auto transition = std::dynamic_pointer_cast<Transition>(inward ? target : source);
  const auto arc = mResult.Workflow->CreateArc(place, transition, inward ? vntInArc : vntOutArc);
  arc->HiddenTag = from.Id;
  arc->Weight(from.Weight);
  Vector* const first = arc->Segments().front();
  first->Start(source->Left() + kNodeSize, source->Top() + kNodeSize / 2);
  first->End(target->Left(), target->Top() + kNodeSize / 2);
  Bend(*arc, mPlacement.Bends[plngNumber]);
}

// Every bend splits the last segment of the chain, which then ends at the target.
void WorkflowBuilder::Bend(Arc& pobjArc, const std::vector<LayoutPoint>& pcolBends) const {
  Workflow& workflow = *mResult.Workflow;
  Vector* last = pobjArc.Segments().front();
  for (const LayoutPoint& bend : pcolBends) {
    const auto behind = std::make_shared<Vector>();
    behind->Key = NextKey(workflow.Vectors, "Vector");
    behind->Arc(&pobjArc);
    behind->Start(bend.X, bend.Y);
    behind->End(last->X2(), last->Y2());
    last->End(bend.X, bend.Y);
    last->OutVector = behind;
    behind->InVector = last;
    workflow.Vectors.Add(behind, behind->Key);

    const auto elbow = std::make_shared<Elbow>();
    elbow->Key = NextKey(workflow.Elbows, "Elbow");
    elbow->InVector(last);
    elbow->OutVector(behind);
    elbow->CentreHandle(bend.X, bend.Y);
    workflow.Elbows.Add(elbow, elbow->Key);
    last = behind.get();
  }
}

void WorkflowBuilder::FindEnds() {
  Workflow& workflow = *mResult.Workflow;
  Ref<Place> source, sink;
  for (const auto& place : workflow.Places) {
    if (place->InArcs.IsEmpty()) {
      ++mResult.SourcePlaces;
      source = place;
    }
    if (place->OutArcs.IsEmpty()) {
      ++mResult.SinkPlaces;
      sink = place;
    }
  }
  if (!workflow.StartPlace && mResult.SourcePlaces == 1) workflow.StartPlace = source;
  if (!workflow.EndPlace() && mResult.SinkPlaces == 1) workflow.EndPlace(sink);
}

}  // namespace

ImportedNet ImportPnml(const std::string& pstrPath, const PnmlOptions& pobjOptions) {
  return BuildWorkflow(PnmlReader(pobjOptions).ReadFile(pstrPath));
}

ImportedNet BuildWorkflow(const PnmlNet& pobjNet) {
  // What is built here is not on any chart yet: a control that shows another workflow must not lend it elements, and the
  // sides of its connectors are those that the drawing is made for.
  const DesignerStateScope scope;
  gobjVantrel = nullptr;
  gintInputPosition = vntLeft;
  gintOutputPosition = vntRight;
  return WorkflowBuilder(pobjNet).Build();
}

}  // namespace vantrel
