#pragma once

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>

#include "interchange/PnmlImport.h"

namespace vantrel::test {

inline void AddNode(PnmlNet& pobjNet, const std::string& pstrId) {
  const auto known = [&](const PnmlNode& pobjNode) { return pobjNode.Id == pstrId; };
  if (std::any_of(pobjNet.Nodes.begin(), pobjNet.Nodes.end(), known)) return;
  PnmlNode& node = pobjNet.Nodes.emplace_back();
  node.Kind = pstrId.starts_with('t') ? PnmlKind::Transition : PnmlKind::Place;
  node.Id = node.Name = pstrId;
}

/// A net from its arcs, "in>t1 t1>out": names that begin with t are transitions. Nodes are in the order of their first arcs.
inline PnmlNet NetOf(const std::string& pstrArcs) {
  PnmlNet net;
  std::istringstream arcs(pstrArcs);
  for (std::string arc; arcs >> arc;) {
    const auto middle = arc.find('>');
    net.Arcs.emplace_back().Source = arc.substr(0, middle);
    net.Arcs.back().Target = arc.substr(middle + 1);
    AddNode(net, net.Arcs.back().Source);
    AddNode(net, net.Arcs.back().Target);
  }
  return net;
}

/// The node of that id.
inline PnmlNode& NodeOf(PnmlNet& pobjNet, const std::string& pstrId) {
  return *std::find_if(pobjNet.Nodes.begin(), pobjNet.Nodes.end(), [&](const PnmlNode& pobjNode) { return pobjNode.Id == pstrId; });
}

}  // namespace vantrel::test
