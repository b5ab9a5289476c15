// Finds the workflows to delete.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "persistence/WorkflowList.h"

namespace vantrel {

bool IsStored(const std::vector<WorkflowListing>& pcolStored, std::int32_t plngId);

/// The workflows with those ids, each once; with pblnEmbedded also those that only workflows on this list embed, at any depth.
/// In the order of pcolStored.
std::vector<WorkflowListing> ToDelete(const std::vector<WorkflowListing>& pcolStored, const std::vector<std::int32_t>& pcolIds,
                                      bool pblnEmbedded);

/// Throws DatabaseFailure when a workflow on the list is embedded in one that is not.
void RefuseEmbedded(const std::string& pstrDatabase, const std::vector<WorkflowListing>& pcolDeleted);

}  // namespace vantrel
