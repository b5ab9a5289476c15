#include "interchange/PnmlNetReader.h"

#include <memory>
#include <utility>

#include "interchange/PnmlArcKind.h"
#include "interchange/PnmlGeometry.h"
#include "interchange/PnmlNumbers.h"
#include "interchange/PnmlSubprocess.h"
#include "interchange/section/VantrelSectionReader.h"

namespace vantrel {

namespace {

std::string Called(const char* pstrWhat, const pugi::xml_node& pobjElement) {
  const pugi::xml_attribute id = pobjElement.attribute("id");
  return pstrWhat + (id ? ' ' + QuotedForMessage(id.value()) : std::string(" without an id"));
}

}  // namespace

PnmlNetReader::PnmlNetReader(const PnmlXml& pobjXml, bool pblnSkipUnsupported)
    : mXml(pobjXml), mSkipUnsupported(pblnSkipUnsupported), mIds(pobjXml) {}

PnmlNet PnmlNetReader::Read(const pugi::xml_node& pobjNet) {
  mNet.Id = pobjNet.attribute("id").value();
  mNet.Type = pobjNet.attribute("type").value();
  mNet.Name = LabelText(ChildNamed(pobjNet, "name")).value_or("");
  ReadContents(pobjNet);
  mIds.Resolve();
  for (const pugi::xml_node& arc : mArcs) ReadArc(arc);
  mNet.Section = FindSection(pobjNet).internal_object();
  if (!mNet.Section) RelateNameOffsets(mNet);
  ReadSubnets();
  return std::move(mNet);
}

void PnmlNetReader::ReadContents(const pugi::xml_node& pobjHolder) {
  for (const pugi::xml_node& child : pobjHolder.children()) {
    if (child.type() == pugi::node_element) ReadElement(child);
  }
}

void PnmlNetReader::ReadElement(const pugi::xml_node& pobjElement) {
  const std::string_view name = LocalName(pobjElement);
  if (name == "place") {
    ReadNode(pobjElement, PnmlKind::Place);
  } else if (name == "transition") {
    ReadNode(pobjElement, PnmlKind::Transition);
  } else if (name == "arc" || IsForeignArcElement(pobjElement)) {
    mArcs.push_back(pobjElement);
  } else if (name == "referencePlace") {
    mIds.AddReference(pobjElement, PnmlKind::Place);
  } else if (name == "referenceTransition") {
    mIds.AddReference(pobjElement, PnmlKind::Transition);
  } else if (name == "page") {
    ReadPage(pobjElement);
  }
}

void PnmlNetReader::ReadPage(const pugi::xml_node& pobjPage) {
  if (ChildNamed(pobjPage, "net")) mSubprocesses.push_back(pobjPage);
  ReadContents(pobjPage);
}

void PnmlNetReader::ReadNode(const pugi::xml_node& pobjElement, PnmlKind plngKind) {
  mIds.AddNode(pobjElement, plngKind, mNet.Nodes.size());
  PnmlNode node;
  node.Kind = plngKind;
  node.Id = pobjElement.attribute("id").value();
  if (auto name = LabelText(ChildNamed(pobjElement, "name"))) {
    node.Name = std::move(*name);
    node.HasName = true;
  }
  node.Position = ReadPosition(mXml, pobjElement);
  node.NameOffset = ReadNameOffset(mXml, pobjElement);
  if (plngKind == PnmlKind::Place) node.InitialMarking = ReadMarking(pobjElement);
  node.Section = FindSection(pobjElement).internal_object();
  mNet.Nodes.push_back(std::move(node));
}

std::int32_t PnmlNetReader::ReadMarking(const pugi::xml_node& pobjPlace) const {
  std::optional<std::int32_t> marking;
  for (const pugi::xml_node& child : pobjPlace.children()) {
    if (LocalName(child) != "initialMarking") continue;
    const std::string text = LabelText(child).value_or("0");
    const std::optional<std::int32_t> count = ParseCount(text);
    if (!count) {
      mXml.Fail("the initial marking " + QuotedForMessage(text) + " of the " + Called("place", pobjPlace) + " is not a number of tokens",
                child);
    }
    if (marking) mXml.Fail("a second initial marking of the " + Called("place", pobjPlace), child);
    marking = count;
  }
  return marking.value_or(0);
}

void PnmlNetReader::ReadArc(const pugi::xml_node& pobjElement) {
  if (const auto kind = ForeignArcKind(pobjElement)) {
    const std::string what = "the " + Called("arc", pobjElement) + " is of the kind " + QuotedForMessage(*kind);
    if (!mSkipUnsupported) mXml.Fail(what + ", which place/transition nets do not have", pobjElement);
    mNet.Skipped.push_back(what);
    return;
  }
  const PnmlNode& source = ArcEnd(pobjElement, "source");
  const PnmlNode& target = ArcEnd(pobjElement, "target");
  if (source.Kind == target.Kind) {
    const char* kinds = source.Kind == PnmlKind::Place ? " joins two places" : " joins two transitions";
    mXml.Fail("the " + Called("arc", pobjElement) + kinds, pobjElement);
  }
  mNet.Arcs.push_back({pobjElement.attribute("id").value(), source.Id, target.Id, ReadWeight(pobjElement), ReadBends(mXml, pobjElement),
                       FindSection(pobjElement).internal_object()});
}

const PnmlNode& PnmlNetReader::ArcEnd(const pugi::xml_node& pobjArc, const char* pstrAttribute) const {
  const pugi::xml_attribute id = pobjArc.attribute(pstrAttribute);
  if (!id) mXml.Fail("the " + Called("arc", pobjArc) + " has no " + pstrAttribute, pobjArc);
  const std::optional<std::size_t> node = mIds.Find(id.value());
  if (!node) {
    mXml.Fail("the " + Called("arc", pobjArc) + " has the " + pstrAttribute + ' ' + QuotedForMessage(id.value()) + ", which is not there",
              pobjArc);
  }
  return mNet.Nodes[*node];
}

std::string PnmlNetReader::ReadWeight(const pugi::xml_node& pobjArc) const {
  const pugi::xml_node inscription = ChildNamed(pobjArc, "inscription");
  const std::optional<std::string> text = LabelText(inscription);
  if (!text) {
    // Process miners write an `arctype` and put the weight where others put a name; other names of arcs are only names.
    const auto name = ChildNamed(pobjArc, "arctype") ? LabelText(ChildNamed(pobjArc, "name")) : std::nullopt;
    const auto count = ParseCount(name.value_or(""));
    return std::to_string(count && *count > 0 ? *count : 1);
  }
  const std::optional<std::int32_t> count = ParseCount(*text);
  if (!count || *count == 0) {
    mXml.Fail("the weight " + QuotedForMessage(*text) + " of the " + Called("arc", pobjArc) + " is not a positive number", inscription);
  }
  return std::to_string(*count);
}

void PnmlNetReader::ReadSubnets() {
  if (mSubprocesses.empty()) return;
  const PnmlSubprocessBorder border(mNet);
  for (const pugi::xml_node& page : mSubprocesses) {
    const std::optional<std::size_t> index = mIds.Find(page.attribute("id").value());
    if (!index || mNet.Nodes[*index].Kind != PnmlKind::Transition) {
      mXml.Fail("the " + Called("page", page) + " holds a net but belongs to no transition", page);
    }
    PnmlNode& transition = mNet.Nodes[*index];
    if (transition.Subnet) mXml.Fail("a second sub-process of the " + Called("transition", page), page);
    PnmlNet subnet = PnmlNetReader(mXml, mSkipUnsupported).Read(ChildNamed(page, "net"));
    border.Mark(subnet, transition.Id);
    transition.Subnet = std::make_unique<PnmlNet>(std::move(subnet));
  }
}

}  // namespace vantrel
