#include "interchange/PnmlWriter.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

#include "interchange/PnmlPixels.h"
#include "interchange/section/PnmlLabel.h"
#include "model/ArcChain.h"

namespace vantrel {

namespace {

constexpr const char* kNamespace = "http://www.pnml.org/version-2009/grammar/pnml";
constexpr const char* kNetType = "http://www.pnml.org/version-2009/grammar/ptnet";

void WritePoint(pugi::xml_node pobjParent, const char* pstrElement, const std::string& pstrX, const std::string& pstrY) {
  pugi::xml_node point = pobjParent.append_child(pstrElement);
  point.append_attribute("x") = pstrX.c_str();
  point.append_attribute("y") = pstrY.c_str();
}

void WriteText(pugi::xml_node pobjLabel, const std::string& pstrText) {
  if (!pstrText.empty()) pobjLabel.append_child("text").text() = pstrText.c_str();
}

// Written even without a text: the label has the caption's position.
void WriteName(pugi::xml_node pobjElement, const Node& pobjNode) {
  pugi::xml_node name = pobjElement.append_child("name");
  WriteText(name, PnmlLabel(pobjNode.Caption()));
  WritePoint(name.append_child("graphics"), "offset", PixelText(pobjNode.CaptionOffsetLeft(), kOfCaption),
             PixelText(pobjNode.CaptionOffsetTop(), kOfCaption));
}

void WritePosition(pugi::xml_node pobjElement, const Node& pobjNode) {
  WritePoint(pobjElement.append_child("graphics"), "position", PixelText(pobjNode.Left(), kOfCentre), PixelText(pobjNode.Top(), kOfCentre));
}

void WriteBends(pugi::xml_node pobjElement, const Arc& pobjArc) {
  const auto chain = ChainOf(pobjArc);
  if (chain.size() < 2) return;
  const pugi::xml_node graphics = pobjElement.append_child("graphics");
  std::for_each(chain.begin(), chain.end() - 1, [&graphics](const Vector* segment) {
    WritePoint(graphics, "position", PixelText(segment->X2(), kOfPoint), PixelText(segment->Y2(), kOfPoint));
  });
}

/// Collects what the library writes.
struct TextSink : pugi::xml_writer {
  void write(const void* pData, std::size_t plngSize) override { Text.append(static_cast<const char*>(pData), plngSize); }
  std::string Text;
};

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
  pugi::xml_document document;
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version") = "1.0";
  declaration.append_attribute("encoding") = "UTF-8";
  pugi::xml_node root = document.append_child("pnml");
  root.append_attribute("xmlns") = kNamespace;
  WriteNet(root, *mWorkflows.front());
  TextSink sink;
  document.save(sink, "  ");
  return std::move(sink.Text);
}

void PnmlWriter::WriteNet(pugi::xml_node pobjParent, const Workflow& pobjWorkflow) {
  const bool isOutermost = &pobjWorkflow == mWorkflows.front().get();
  pugi::xml_node net = pobjParent.append_child("net");
  net.append_attribute("id") = mNetIds.at(&pobjWorkflow).c_str();
  net.append_attribute("type") = kNetType;
  const std::string name = isOutermost ? PnmlLabel(mOptions.NetName) : std::string();
  if (!name.empty()) WriteText(net.append_child("name"), name);
  const pugi::xml_node section = mSection.Write(net, pobjWorkflow);
  if (isOutermost) WriteEmbedded(section);
  WritePage(net, pobjWorkflow);
}

void PnmlWriter::WriteEmbedded(pugi::xml_node pobjSection) {
  if (mWorkflows.size() < 2) return;
  const pugi::xml_node embedded = pobjSection.append_child("embedded");
  std::for_each(mWorkflows.begin() + 1, mWorkflows.end(), [&](const auto& workflow) { WriteNet(embedded, *workflow); });
}

void PnmlWriter::WritePage(pugi::xml_node pobjNet, const Workflow& pobjWorkflow) {
  pugi::xml_node page = pobjNet.append_child("page");
  page.append_attribute("id") = mIds.Make("", "page").c_str();
  for (const auto& place : pobjWorkflow.Places) WritePlace(page, *place);
  for (const auto& transition : pobjWorkflow.Transitions) WriteTransition(page, *transition);
  for (const auto& arc : pobjWorkflow.Arcs) {
    if (IsPnmlArc(pobjWorkflow, *arc)) WriteArc(page, *arc);
  }
}

pugi::xml_node PnmlWriter::AppendNode(pugi::xml_node pobjPage, const char* pstrElement, const Node& pobjNode) const {
  pugi::xml_node element = pobjPage.append_child(pstrElement);
  element.append_attribute("id") = mIds.Of(&pobjNode).c_str();
  WriteName(element, pobjNode);
  return element;
}

void PnmlWriter::WritePlace(pugi::xml_node pobjPage, const Place& pobjPlace) {
  pugi::xml_node element = AppendNode(pobjPage, "place", pobjPlace);
  mSection.Write(element, pobjPlace);
  WritePosition(element, pobjPlace);
  const auto tokens = mMarking.find(&pobjPlace);
  if (tokens == mMarking.end()) return;
  const std::int64_t count = std::min<std::int64_t>(tokens->second, std::numeric_limits<std::int32_t>::max());
  WriteText(element.append_child("initialMarking"), std::to_string(count));
}

void PnmlWriter::WriteTransition(pugi::xml_node pobjPage, const Transition& pobjTransition) {
  const pugi::xml_node element = AppendNode(pobjPage, "transition", pobjTransition);
  const auto embedded = mNetIds.find(pobjTransition.EmbeddedWorkflow().get());
  mSection.Write(element, pobjTransition, embedded == mNetIds.end() ? std::string() : embedded->second);
  WritePosition(element, pobjTransition);
}

void PnmlWriter::WriteArc(pugi::xml_node pobjPage, const Arc& pobjArc) {
  const bool inward = pobjArc.ArcDirection == vntInArc;
  const std::string& place = mIds.Of(pobjArc.Place.get());
  const std::string& transition = mIds.Of(pobjArc.Transition.get());
  pugi::xml_node element = pobjPage.append_child("arc");
  element.append_attribute("id") = mIds.Of(&pobjArc).c_str();
  element.append_attribute("source") = (inward ? place : transition).c_str();
  element.append_attribute("target") = (inward ? transition : place).c_str();
  mSection.Write(element, pobjArc);
  WriteBends(element, pobjArc);
  if (pobjArc.Weight() != "1" && IsPnmlWeight(pobjArc.Weight())) WriteText(element.append_child("inscription"), pobjArc.Weight());
}

}  // namespace vantrel
