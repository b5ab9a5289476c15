#include "persistence/WorkflowList.h"

#include <algorithm>

#include "model/RowText.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

namespace {

std::unique_ptr<Recordset> Open(Connection& pobjConnection, const std::string& pstrSql) {
  auto rows = pobjConnection.NewRecordset();
  rows->ActiveConnection = &pobjConnection;
  rows->CursorLocation = vntUseClient;
  rows->Open(pstrSql);
  return rows;
}

// The listing of an id, or null. The list is in order of ids.
WorkflowListing* Find(std::vector<WorkflowListing>& pcolList, const Variant& pvarId) {
  if (pvarId.IsNull()) return nullptr;
  const std::int32_t id = pvarId.ToInt32();
  const auto found = std::lower_bound(pcolList.begin(), pcolList.end(), id,
                                      [](const WorkflowListing& pListing, std::int32_t plngId) { return pListing.Id < plngId; });
  return found != pcolList.end() && found->Id == id ? &*found : nullptr;
}

void Count(Connection& pobjConnection, std::vector<WorkflowListing>& pcolList, const std::string& pstrTable,
           std::int32_t WorkflowListing::*pCount) {
  const auto rows = Open(pobjConnection, "SELECT WorkflowId, COUNT(*) AS Total FROM " + pstrTable + " GROUP BY WorkflowId");
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    if (auto* listing = Find(pcolList, pobjRow.Fields("WorkflowId").Value)) listing->*pCount = pobjRow.Fields("Total").Value.ToInt32();
  });
}

void AddEmbedding(Connection& pobjConnection, std::vector<WorkflowListing>& pcolList) {
  const auto rows = Open(pobjConnection,
                         "SELECT SubflowId, WorkflowId FROM Transition WHERE SubflowId <> 0 GROUP BY SubflowId, WorkflowId "
                         "ORDER BY SubflowId, WorkflowId");
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    const auto* outer = Find(pcolList, pobjRow.Fields("WorkflowId").Value);
    auto* inner = Find(pcolList, pobjRow.Fields("SubflowId").Value);
    if (outer && inner) inner->EmbeddedIn.push_back(outer->Id);
  });
}

std::vector<WorkflowListing> ReadList(Connection& pobjConnection) {
  std::vector<WorkflowListing> list;
  const auto rows = Open(pobjConnection, "SELECT Id, GUID, StartPlaceName, EndPlaceName FROM Workflow ORDER BY Id");
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    WorkflowListing listing;
    listing.Id = pobjRow.Fields("Id").Value.ToInt32();
    listing.GUID = pobjRow.Fields("GUID").Value;
    listing.StartPlaceName = TextOrNone(pobjRow.Fields("StartPlaceName").Value);
    listing.EndPlaceName = TextOrNone(pobjRow.Fields("EndPlaceName").Value);
    list.push_back(std::move(listing));
  });
  Count(pobjConnection, list, "Place", &WorkflowListing::Places);
  Count(pobjConnection, list, "Transition", &WorkflowListing::Transitions);
  Count(pobjConnection, list, "Arc", &WorkflowListing::Arcs);
  AddEmbedding(pobjConnection, list);
  return list;
}

}  // namespace

std::vector<WorkflowListing> ListWorkflows(Connection& pobjConnection) {
  // The caller keeps the connection during the call.
  const std::shared_ptr<Connection> connection(std::shared_ptr<Connection>(), &pobjConnection);
  std::vector<WorkflowListing> list;
  DatabaseAccess(connection).Read([&] {
    list = ReadList(pobjConnection);
    return true;
  });
  return list;
}

}  // namespace vantrel
