#include "interchange/PnmlWriter.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

#include "interchange/PnmlPixels.h"
#include "interchange/section/PnmlLabel.h"
#include "model/ArcChain.h"

namespace vantrel {

namespace {

constexpr const char* kNamespace = "http://www.pnml.org/version-2009/grammar/pnml";
constexpr const char* kNetType = "http://www.pnml.org/version-2009/grammar/ptnet";

void WritePoint(XmlWriter& pobjXml, const char* pstrElement, const std::string& pstrX, const std::string& pstrY) {
  pobjXml.Open(pstrElement);
  pobjXml.Attribute("x", pstrX);
  pobjXml.Attribute("y", pstrY);
  pobjXml.Close();
}

void WriteLabel(XmlWriter& pobjXml, const char* pstrElement, const std::string& pstrText) {
  pobjXml.Open(pstrElement);
  pobjXml.Leaf("text", pstrText);
  pobjXml.Close();
}

}  // namespace

std::vector<std::shared_ptr<const Workflow>> WorkflowsWithin(const Workflow& pobjWorkflow) {
  std::vector<std::shared_ptr<const Workflow>> workflows{pobjWorkflow.shared_from_this()};
  std::unordered_set<const Workflow*> seen{&pobjWorkflow};
  for (std::size_t next = 0; next < workflows.size(); ++next) {
    const auto workflow = workflows[next];
    for (const auto& transition : workflow->Transitions) {
      const auto inner = std::shared_ptr<const Workflow>(transition->EmbeddedWorkflow());
      if (inner && seen.insert(inner.get()).second) workflows.push_back(inner);
    }
  }
  return workflows;
}

bool IsPnmlArc(const Workflow& pobjWorkflow, const Arc& pobjArc) {
  if (pobjArc.ArcDirection != vntInArc && pobjArc.ArcDirection != vntOutArc) return false;
  const auto* place = pobjArc.Place.get();
  const auto* transition = pobjArc.Transition.get();
  return place && transition && pobjWorkflow.Places.Find(place->Key).get() == place &&
         pobjWorkflow.Transitions.Find(transition->Key).get() == transition;
}

PnmlWriter::PnmlWriter(const Workflow& pobjWorkflow, const PnmlExportOptions& pobjOptions)
    : mOptions(pobjOptions), mWorkflows(WorkflowsWithin(pobjWorkflow)) {
  for (const auto& tokens : pobjOptions.Marking) {
    if (tokens.Where && tokens.Count > 0) mMarking[tokens.Where.get()] += tokens.Count;
  }
  for (const auto& workflow : mWorkflows) mNetIds.emplace(workflow.get(), mIds.Make(mNetIds.empty() ? pobjOptions.NetId : "", "net"));
  for (const auto& workflow : mWorkflows) mIds.Add(*workflow);
}

std::string PnmlWriter::Write() {
  mXml.Open("pnml");
  mXml.Attribute("xmlns", kNamespace);
  WriteNet(*mWorkflows.front());
  mXml.Close();
  return mXml.Take();
}

void PnmlWriter::WriteNet(const Workflow& pobjWorkflow) {
  const bool isOutermost = &pobjWorkflow == mWorkflows.front().get();
  mXml.Open("net");
  mXml.Attribute("id", mNetIds.at(&pobjWorkflow));
  mXml.Attribute("type", kNetType);
  if (isOutermost && !mOptions.NetName.empty()) WriteLabel(mXml, "name", mOptions.NetName);
  mSection.Open();
  mSection.Write(pobjWorkflow);
  if (isOutermost) WriteEmbedded();
  mSection.Close();
  WritePage(pobjWorkflow);
  mXml.Close();
}

void PnmlWriter::WriteEmbedded() {
  if (mWorkflows.size() < 2) return;
  mXml.Open("embedded");
  std::for_each(mWorkflows.begin() + 1, mWorkflows.end(), [this](const auto& workflow) { WriteNet(*workflow); });
  mXml.Close();
}

void PnmlWriter::WritePage(const Workflow& pobjWorkflow) {
  mXml.Open("page");
  mXml.Attribute("id", mIds.Make("", "page"));
  for (const auto& place : pobjWorkflow.Places) WritePlace(*place);
  for (const auto& transition : pobjWorkflow.Transitions) WriteTransition(*transition);
  for (const auto& arc : pobjWorkflow.Arcs) {
    if (IsPnmlArc(pobjWorkflow, *arc)) WriteArc(*arc);
  }
  mXml.Close();
}

void PnmlWriter::OpenNode(const char* pstrElement, const Node& pobjNode) {
  mXml.Open(pstrElement);
  mXml.Attribute("id", mIds.Of(&pobjNode));
  WriteName(pobjNode);
}

// Written even without a text: the label has the caption's position.
void PnmlWriter::WriteName(const Node& pobjNode) {
  mXml.Open("name");
  const std::string label = PnmlLabel(pobjNode.Caption());
  if (!label.empty()) mXml.Leaf("text", label);
  mXml.Open("graphics");
  WritePoint(mXml, "offset", PixelText(pobjNode.CaptionOffsetLeft(), kOfCaption), PixelText(pobjNode.CaptionOffsetTop(), kOfCaption));
  mXml.Close();
  mXml.Close();
}

void PnmlWriter::WritePosition(const Node& pobjNode) {
  mXml.Open("graphics");
  WritePoint(mXml, "position", PixelText(pobjNode.Left(), kOfCentre), PixelText(pobjNode.Top(), kOfCentre));
  mXml.Close();
}

void PnmlWriter::WritePlace(const Place& pobjPlace) {
  OpenNode("place", pobjPlace);
  mSection.Write(pobjPlace);
  WritePosition(pobjPlace);
  const auto tokens = mMarking.find(&pobjPlace);
  if (tokens != mMarking.end()) {
    const std::int64_t count = std::min<std::int64_t>(tokens->second, std::numeric_limits<std::int32_t>::max());
    WriteLabel(mXml, "initialMarking", std::to_string(count));
  }
  mXml.Close();
}

void PnmlWriter::WriteTransition(const Transition& pobjTransition) {
  OpenNode("transition", pobjTransition);
  const auto embedded = mNetIds.find(pobjTransition.EmbeddedWorkflow().get());
  mSection.Write(pobjTransition, embedded == mNetIds.end() ? std::string() : embedded->second);
  WritePosition(pobjTransition);
  mXml.Close();
}

void PnmlWriter::WriteArc(const Arc& pobjArc) {
  const bool inward = pobjArc.ArcDirection == vntInArc;
  const std::string& place = mIds.Of(pobjArc.Place.get());
  const std::string& transition = mIds.Of(pobjArc.Transition.get());
  mXml.Open("arc");
  mXml.Attribute("id", mIds.Of(&pobjArc));
  mXml.Attribute("source", inward ? place : transition);
  mXml.Attribute("target", inward ? transition : place);
  mSection.Write(pobjArc);
  WriteBends(pobjArc);
  if (pobjArc.Weight() != "1" && IsPnmlWeight(pobjArc.Weight())) WriteLabel(mXml, "inscription", pobjArc.Weight());
  mXml.Close();
}

void PnmlWriter::WriteBends(const Arc& pobjArc) {
  const auto chain = ChainOf(pobjArc);
  if (chain.size() < 2) return;
  mXml.Open("graphics");
  std::for_each(chain.begin(), chain.end() - 1, [this](const Vector* segment) {
    WritePoint(mXml, "position", PixelText(segment->X2(), kOfPoint), PixelText(segment->Y2(), kOfPoint));
  });
  mXml.Close();
}

}  // namespace vantrel
