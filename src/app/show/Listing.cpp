#include "app/show/Listing.h"

#include "app/JsonWriter.h"
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

void WriteEntry(JsonWriter& pobjJson, const WorkflowListing& pobjWorkflow) {
  pobjJson.Open('{').Key("id").Number(pobjWorkflow.Id).Key("guid").Text(TextOf(pobjWorkflow.GUID));
  pobjJson.Key("start").Text(pobjWorkflow.StartPlaceName).Key("end").Text(pobjWorkflow.EndPlaceName);
  pobjJson.Key("places").Number(pobjWorkflow.Places).Key("transitions").Number(pobjWorkflow.Transitions);
  pobjJson.Key("arcs").Number(pobjWorkflow.Arcs).Key("embedded_in").Open('[');
  for (const std::int32_t id : pobjWorkflow.EmbeddedIn) pobjJson.Number(id);
  pobjJson.Close(']').Close('}');
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
  JsonWriter json;
  json.Open('{').Key("workflows").Open('[');
  for (const WorkflowListing& workflow : pcolWorkflows) WriteEntry(json, workflow);
  json.Close(']').Close('}');
  return json.Written();
}

}  // namespace vantrel
