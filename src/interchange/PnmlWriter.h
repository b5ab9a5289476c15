#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "interchange/ExportIds.h"
#include "interchange/PnmlExport.h"
#include "interchange/XmlWriter.h"
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
  void WriteNet(const Workflow& pobjWorkflow);
  void WriteEmbedded();
  void WritePage(const Workflow& pobjWorkflow);
  void OpenNode(const char* pstrElement, const Node& pobjNode);
  void WriteName(const Node& pobjNode);
  void WritePosition(const Node& pobjNode);
  void WritePlace(const Place& pobjPlace);
  void WriteTransition(const Transition& pobjTransition);
  void WriteArc(const Arc& pobjArc);
  void WriteBends(const Arc& pobjArc);

  const PnmlExportOptions& mOptions;
  std::vector<std::shared_ptr<const Workflow>> mWorkflows;  // the outermost first, each one once
  std::unordered_map<const Workflow*, std::string> mNetIds;
  std::unordered_map<const Object*, std::int64_t> mMarking;
  XmlWriter mXml;
  ExportIds mIds;
  VantrelSection mSection{mXml, mIds};
};

/// The workflow and all that are embedded in it at any depth, each once, in the order in which they are met.
std::vector<std::shared_ptr<const Workflow>> WorkflowsWithin(const Workflow& pobjWorkflow);

/// True for an arc that a PNML net can have: with a direction and both ends in that workflow.
bool IsPnmlArc(const Workflow& pobjWorkflow, const Arc& pobjArc);

}  // namespace vantrel
