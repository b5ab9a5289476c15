#include "interchange/PnmlReader.h"

#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "interchange/PnmlFile.h"
#include "interchange/PnmlNetReader.h"
#include "interchange/PnmlXml.h"

namespace vantrel {

namespace {

/// The nets of a file, wherever they are; not the nets within nets.
void CollectNets(const pugi::xml_node& pobjElement, std::vector<pugi::xml_node>& pcolNets) {
  const std::string_view name = LocalName(pobjElement);
  if (name == "toolspecific") return;
  if (name == "net") {
    pcolNets.push_back(pobjElement);
    return;
  }
  for (const pugi::xml_node& child : pobjElement.children()) CollectNets(child, pcolNets);
}

std::string IdsOf(const std::vector<pugi::xml_node>& pcolNets) {
  std::string ids;
  for (const pugi::xml_node& net : pcolNets) {
    if (!ids.empty()) ids += ", ";
    ids += QuotedForMessage(net.attribute("id").value());
  }
  return ids;
}

pugi::xml_node NetWanted(const PnmlXml& pobjXml, const std::string& pstrId) {
  std::vector<pugi::xml_node> nets;
  CollectNets(pobjXml.Root(), nets);
  if (nets.empty()) {
    if (LocalName(pobjXml.Root()) == "pnml") pobjXml.Fail("there is no net in the file");
    pobjXml.Fail("not PNML: the root element is " + QuotedForMessage(pobjXml.Root().name()), pobjXml.Root());
  }
  if (pstrId.empty()) return nets.front();
  for (const pugi::xml_node& net : nets) {
    if (pstrId == net.attribute("id").value()) return net;
  }
  pobjXml.Fail("there is no net " + QuotedForMessage(pstrId) + "; the nets of the file are " + IdsOf(nets));
}

/// The nets that the section of a net holds for its transitions.
void ReadEmbedded(const PnmlXml& pobjXml, bool pblnSkipUnsupported, PnmlNet& pobjNet) {
  std::set<std::string> ids{pobjNet.Id};
  for (const pugi::xml_node& child : ChildNamed(pugi::xml_node(pobjNet.Section), "embedded").children()) {
    if (LocalName(child) != "net") continue;
    pobjNet.Embedded.push_back(PnmlNetReader(pobjXml, pblnSkipUnsupported).Read(child));
    const std::string& id = pobjNet.Embedded.back().Id;
    if (!ids.insert(id).second) pobjXml.Fail("a second net " + QuotedForMessage(id), child);
  }
}

}  // namespace

PnmlReader::PnmlReader(PnmlOptions pobjOptions) : mOptions(std::move(pobjOptions)) {}

PnmlNet PnmlReader::ReadFile(const std::string& pstrPath) const { return ReadBytes(ReadPnmlFile(pstrPath, mOptions.SizeLimit), pstrPath); }

PnmlNet PnmlReader::ReadBytes(std::string_view pstrBytes, const std::string& pstrName) const {
  const auto xml = std::make_shared<const PnmlXml>(pstrName, pstrBytes);
  PnmlNet net = PnmlNetReader(*xml, mOptions.SkipUnsupported).Read(NetWanted(*xml, mOptions.NetId));
  ReadEmbedded(*xml, mOptions.SkipUnsupported, net);
  net.Source = xml;
  return net;
}

}  // namespace vantrel
