#include "app/show/Listing.h"

#include <nlohmann/json.hpp>

#include "app/Json.h"
#include "app/show/Columns.h"
#include "app/show/Flags.h"
#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

std::string PlaceOf(const std::string& pstrName) { return pstrName.empty() ? "-" : QuotedForMessage(pstrName); }

std::string Embedders(const WorkflowListing& pobjWorkflow) {
  std::string text;
  for (const std::int32_t id : pobjWorkflow.EmbeddedIn) text += (text.empty() ? "" : ", ") + std::to_string(id);
  return text.empty() ? "-" : text;
}

nlohmann::ordered_json EntryJson(const WorkflowListing& pobjWorkflow) {
  return {{"id", pobjWorkflow.Id},
          {"guid", TextOf(pobjWorkflow.GUID)},
          {"start", pobjWorkflow.StartPlaceName},
          {"end", pobjWorkflow.EndPlaceName},
          {"places", pobjWorkflow.Places},
          {"transitions", pobjWorkflow.Transitions},
          {"arcs", pobjWorkflow.Arcs},
          {"embedded_in", pobjWorkflow.EmbeddedIn}};
}

}  // namespace

void WriteListing(std::ostream& pobjOut, const std::vector<WorkflowListing>& pcolWorkflows) {
  Columns columns({"Id", "GUID", "Places", "Transitions", "Arcs", "Embedded in", "Start", "End"});
  for (const WorkflowListing& workflow : pcolWorkflows) {
    columns.Add({std::to_string(workflow.Id), TextOf(workflow.GUID), std::to_string(workflow.Places), std::to_string(workflow.Transitions),
                 std::to_string(workflow.Arcs), Embedders(workflow), PlaceOf(workflow.StartPlaceName), PlaceOf(workflow.EndPlaceName)});
  }
  columns.Write(pobjOut);
}

std::string ListingJson(const std::vector<WorkflowListing>& pcolWorkflows) {
  auto workflows = nlohmann::ordered_json::array();
  for (const WorkflowListing& workflow : pcolWorkflows) workflows.push_back(EntryJson(workflow));
  return OneLine({{"workflows", std::move(workflows)}});
}

}  // namespace vantrel
