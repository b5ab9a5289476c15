#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <pugixml.hpp>

#include "interchange/ExportIds.h"
#include "interchange/PnmlExport.h"
#include "interchange/section/VantrelSection.h"

namespace vantrel {

/// Writes one document; see ToPnml. Writes embedded workflows side by side, as nets in the section of the net. The sections of the
/// transitions refer to them.
class PnmlWriter {
 public:
  /// Both must outlive the writer.
  PnmlWriter(const Workflow& pobjWorkflow, const PnmlExportOptions& pobjOptions);

  /// For one call.
  std::string Write();

 private:
  // Each appends to the element that it is given.
  void WriteNet(pugi::xml_node pobjParent, const Workflow& pobjWorkflow);
  void WriteEmbedded(pugi::xml_node pobjSection);
  void WritePage(pugi::xml_node pobjNet, const Workflow& pobjWorkflow);
  pugi::xml_node AppendNode(pugi::xml_node pobjPage, const char* pstrElement, const Node& pobjNode) const;
  void WritePlace(pugi::xml_node pobjPage, const Place& pobjPlace);
  void WriteTransition(pugi::xml_node pobjPage, const Transition& pobjTransition);
  void WriteArc(pugi::xml_node pobjPage, const Arc& pobjArc);

  const PnmlExportOptions& mOptions;
  std::vector<std::shared_ptr<const Workflow>> mWorkflows;  // the outermost first, each one once
  std::unordered_map<const Workflow*, std::string> mNetIds;
  std::unordered_map<const Object*, std::int64_t> mMarking;
  ExportIds mIds;
  VantrelSection mSection{mIds};
};

/// The workflow and all that are embedded in it at any depth, each once, in the order in which they are met.
std::vector<std::shared_ptr<const Workflow>> WorkflowsWithin(const Workflow& pobjWorkflow);

/// True for an arc that a PNML net can have: with a direction and both ends in that workflow.
bool IsPnmlArc(const Workflow& pobjWorkflow, const Arc& pobjArc);

}  // namespace vantrel
