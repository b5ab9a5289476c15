#include "app/database/Deletion.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "app/database/OpenDatabase.h"

namespace vantrel {

namespace {

using Ids = std::set<std::int32_t>;

bool AllAmong(const std::vector<std::int32_t>& pcolIds, const Ids& pcolChosen) {
  return std::all_of(pcolIds.begin(), pcolIds.end(), [&](std::int32_t plngId) { return pcolChosen.count(plngId) > 0; });
}

// Each round finds the workflows that only those of the round before embed.
bool ChooseEmbedded(const std::vector<WorkflowListing>& pcolStored, Ids& pcolChosen) {
  const std::size_t before = pcolChosen.size();
  for (const WorkflowListing& workflow : pcolStored) {
    if (!workflow.EmbeddedIn.empty() && AllAmong(workflow.EmbeddedIn, pcolChosen)) pcolChosen.insert(workflow.Id);
  }
  return pcolChosen.size() > before;
}

}  // namespace

bool IsStored(const std::vector<WorkflowListing>& pcolStored, std::int32_t plngId) {
  return std::any_of(pcolStored.begin(), pcolStored.end(), [&](const auto& workflow) { return workflow.Id == plngId; });
}

std::vector<WorkflowListing> ToDelete(const std::vector<WorkflowListing>& pcolStored, const std::vector<std::int32_t>& pcolIds,
                                      bool pblnEmbedded) {
  Ids chosen(pcolIds.begin(), pcolIds.end());
  while (pblnEmbedded && ChooseEmbedded(pcolStored, chosen)) {
  }
  std::vector<WorkflowListing> result;
  std::copy_if(pcolStored.begin(), pcolStored.end(), std::back_inserter(result),
               [&](const auto& workflow) { return chosen.count(workflow.Id) > 0; });
  return result;
}

void RefuseEmbedded(const std::string& pstrDatabase, const std::vector<WorkflowListing>& pcolDeleted) {
  for (const WorkflowListing& workflow : pcolDeleted) {
    for (const std::int32_t embedder : workflow.EmbeddedIn) {
      if (IsStored(pcolDeleted, embedder)) continue;
      throw DatabaseFailure(pstrDatabase + ": workflow " + std::to_string(workflow.Id) + " is embedded in workflow " +
                            std::to_string(embedder) + "; --force deletes it all the same");
    }
  }
}

}  // namespace vantrel
