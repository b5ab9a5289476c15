#include "interchange/PnmlExport.h"

#include <algorithm>
#include <limits>

#include "interchange/FileReplacement.h"
#include "interchange/PnmlError.h"
#include "interchange/PnmlWriter.h"

namespace vantrel {

std::string ToPnml(const Workflow& pobjWorkflow, const PnmlExportOptions& pobjOptions) {
  return PnmlWriter(pobjWorkflow, pobjOptions).Write();
}

void ExportPnml(const Workflow& pobjWorkflow, const std::string& pstrPath, const PnmlExportOptions& pobjOptions) {
  ReplaceFile(pstrPath, ToPnml(pobjWorkflow, pobjOptions));
}

std::vector<InitialTokens> MarkingOf(const Workflow& pobjWorkflow) {
  std::vector<InitialTokens> marking;
  for (const auto& place : pobjWorkflow.Places) {
    if (const std::int32_t count = place->Tokens().Count(); count > 0) marking.push_back({place, count});
  }
  return marking;
}

std::vector<std::string> ArcsLeftOut(const Workflow& pobjWorkflow) {
  std::vector<std::string> lines;
  for (const auto& workflow : WorkflowsWithin(pobjWorkflow)) {
    for (const auto& arc : workflow->Arcs) {
      if (!IsPnmlArc(*workflow, *arc))
        lines.push_back("the arc " + QuotedForMessage(arc->Name()) + " does not join a place and a transition");
    }
  }
  return lines;
}

}  // namespace vantrel
