#include "interchange/PnmlImport.h"

#include <utility>

#include "interchange/EmbeddedNets.h"
#include "interchange/NetPlacement.h"
#include "interchange/PnmlPixels.h"
#include "interchange/UniqueNames.h"
#include "interchange/section/ArcPathText.h"
#include "interchange/section/VantrelSectionReader.h"

namespace vantrel {

namespace {

/// What the builders of one file share.
struct Assembly {
  const PnmlXml* Source = nullptr;  // not null if any element has a section
  EmbeddedNets Embedded;
};

GivenName NameOf(const PnmlNode& pobjNode, const Assembly& pobjAssembly) {
  if (!HasSectionValue(pobjNode.Section, "name")) return {pobjNode.Name};
  return {SectionText(*pobjAssembly.Source, pobjNode.Section, "name"), true};
}

std::vector<GivenName> NamesOf(const PnmlNet& pobjNet, PnmlKind pKind, const Assembly& pobjAssembly) {
  std::vector<GivenName> names;
  for (const PnmlNode& node : pobjNet.Nodes) {
    if (node.Kind == pKind) names.push_back(NameOf(node, pobjAssembly));
  }
  return names;
}

/// Builds one workflow. Make one for each net.
class WorkflowBuilder {
 public:
  WorkflowBuilder(const PnmlNet& pobjNet, Assembly& pobjAssembly)
      : mNet(pobjNet),
        mAssembly(pobjAssembly),
        mNumbers(NumberNodes(pobjNet)),
        mPlacement(PlaceNet(pobjNet, mNumbers)),
        mPlaceNames("Place", NamesOf(pobjNet, PnmlKind::Place, pobjAssembly)),
        mTransitionNames("Transition", NamesOf(pobjNet, PnmlKind::Transition, pobjAssembly)) {}

  LoadedNet Build();

 private:
  void AddNode(std::size_t plngNumber);
  void AddPlace(const PnmlNode& pobjNode);
  void AddTransition(const PnmlNode& pobjNode);
  /// Of the object added last.
  void Describe(Node& pobjObject, const PnmlNode& pobjNode) const;
  void AddArc(std::size_t plngNumber);
  void FindEnds();
  std::shared_ptr<Place> PlaceOfSection(const char* pstrSetting) const;

  const PnmlNet& mNet;
  Assembly& mAssembly;
  NodeNumbers mNumbers;
  NetPlacement mPlacement;
  UniqueNames mPlaceNames, mTransitionNames;
  std::vector<std::shared_ptr<Node>> mObjects;  // in the order of the net's nodes
  LoadedNet mResult;
};

LoadedNet WorkflowBuilder::Build() {
  mResult.Workflow = std::make_shared<Workflow>();
  mResult.Id = mNet.Id;
  mResult.Name = mNet.Name.empty() ? mNet.Id : mNet.Name;
  mResult.Skipped = mNet.Skipped;
  for (std::size_t i = 0; i < mNet.Nodes.size(); ++i) AddNode(i);
  for (std::size_t i = 0; i < mNet.Arcs.size(); ++i) AddArc(i);
  FindEnds();
  if (mNet.Section) ReadSection(*mAssembly.Source, mNet.Section, *mResult.Workflow);
  return std::move(mResult);
}

void WorkflowBuilder::AddNode(std::size_t plngNumber) {
  const PnmlNode& node = mNet.Nodes[plngNumber];
  if (node.Kind == PnmlKind::Place) {
    AddPlace(node);
  } else {
    AddTransition(node);
  }
}

void WorkflowBuilder::AddPlace(const PnmlNode& pobjNode) {
  Workflow& workflow = *mResult.Workflow;
  const std::string name = mPlaceNames.Next();
  const auto place = workflow.NewPlace(name);
  place->AssignName(name);  // a section may say that it is empty
  if (pobjNode.InitialMarking > 0) mResult.Marking.push_back({place, pobjNode.InitialMarking});
  if (pobjNode.Border == PnmlBorder::Start) workflow.StartPlace = place;
  if (pobjNode.Border == PnmlBorder::End) workflow.EndPlace(place);
  mObjects.push_back(place);
  Describe(*place, pobjNode);
  if (pobjNode.Section) ReadSection(*mAssembly.Source, pobjNode, !mPlacement.IsLaidOut, *place);
}

void WorkflowBuilder::AddTransition(const PnmlNode& pobjNode) {
  const std::string name = mTransitionNames.Next();
  const auto transition = mResult.Workflow->NewTransition(name);
  transition->AssignName(name);
  if (pobjNode.Subnet) {
    const LoadedNet inner = WorkflowBuilder(*pobjNode.Subnet, mAssembly).Build();
    mResult.Skipped.insert(mResult.Skipped.end(), inner.Skipped.begin(), inner.Skipped.end());
    transition->Object(inner.Workflow);
    transition->ObjectClassName = inner.Workflow->Class();
    transition->ObjectName = inner.Name;
  }
  mObjects.push_back(transition);
  Describe(*transition, pobjNode);
  if (!pobjNode.Section) return;
  ReadSection(*mAssembly.Source, pobjNode, !mPlacement.IsLaidOut, *transition);
  const std::string embedded = SectionText(*mAssembly.Source, pobjNode.Section, "embeds");
  if (!embedded.empty()) mAssembly.Embedded.AddTransition(transition, embedded, pobjNode.Section);
}

void WorkflowBuilder::Describe(Node& pobjObject, const PnmlNode& pobjNode) const {
  const LayoutPoint& corner = mPlacement.TopLeft[mObjects.size() - 1];
  pobjObject.HiddenTag = pobjNode.Id;
  pobjObject.Caption(pobjNode.Name);
  pobjObject.MoveTo(corner.X, corner.Y);
  if (!pobjNode.NameOffset || mPlacement.IsLaidOut) return;
  pobjObject.CaptionOffsetLeft(TwipsOfPixels(pobjNode.NameOffset->X, kOfCaption));
  pobjObject.CaptionOffsetTop(TwipsOfPixels(pobjNode.NameOffset->Y, kOfCaption));
}

void WorkflowBuilder::AddArc(std::size_t plngNumber) {
  const PnmlArc& from = mNet.Arcs[plngNumber];
  const auto& source = mObjects[static_cast<std::size_t>(mNumbers.at(from.Source))];
  const auto& target = mObjects[static_cast<std::size_t>(mNumbers.at(from.Target))];
  const bool inward = source->Kind() == ChartKind::Place;
  const auto place = std::static_pointer_cast<Place>(inward ? source : target);
  const auto transition = std::static_pointer_cast<Transition>(inward ? target : source);
  const auto arc = mResult.Workflow->CreateArc(place, transition, inward ? vntInArc : vntOutArc);
  arc->HiddenTag = from.Id;
  arc->AssignWeight(from.Weight);
  const PathSegment run = UsualRun(*source, *target);
  std::vector<Point> path{{run.X1, run.Y1}};
  for (const LayoutPoint& bend : mPlacement.Bends[plngNumber]) path.push_back({bend.X, bend.Y});
  path.push_back({run.X2, run.Y2});
  arc->Path(path);
  if (from.Section) ReadSection(*mAssembly.Source, from, !mPlacement.IsLaidOut, *arc);
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
  if (mNet.Section) {
    workflow.StartPlace = PlaceOfSection("start");
    workflow.EndPlace(PlaceOfSection("end"));
    return;
  }
  if (!workflow.StartPlace && mResult.SourcePlaces == 1) workflow.StartPlace = source;
  if (!workflow.EndPlace() && mResult.SinkPlaces == 1) workflow.EndPlace(sink);
}

/// Null also for a place that is no longer in the file.
std::shared_ptr<Place> WorkflowBuilder::PlaceOfSection(const char* pstrSetting) const {
  const auto found = mNumbers.find(SectionText(*mAssembly.Source, mNet.Section, pstrSetting));
  if (found == mNumbers.end()) return nullptr;
  const auto& node = mObjects[static_cast<std::size_t>(found->second)];
  return node->Kind() == ChartKind::Place ? std::static_pointer_cast<Place>(node) : nullptr;
}

}  // namespace

LoadedNet ImportPnml(const std::string& pstrPath, const PnmlOptions& pobjOptions) {
  return BuildWorkflow(PnmlReader(pobjOptions).ReadFile(pstrPath));
}

LoadedNet BuildWorkflow(const PnmlNet& pobjNet) {
  Assembly assembly;
  assembly.Source = pobjNet.Source.get();
  LoadedNet result = WorkflowBuilder(pobjNet, assembly).Build();
  for (const PnmlNet& embedded : pobjNet.Embedded) {
    const LoadedNet inner = WorkflowBuilder(embedded, assembly).Build();
    result.Skipped.insert(result.Skipped.end(), inner.Skipped.begin(), inner.Skipped.end());
    assembly.Embedded.AddWorkflow(inner.Id, inner.Workflow);
  }
  assembly.Embedded.AddWorkflow(result.Id, result.Workflow);
  // Another tool may have dropped the net's own section; then nothing is embedded.
  if (pobjNet.Section) assembly.Embedded.Link(*assembly.Source);
  return result;
}

}  // namespace vantrel
