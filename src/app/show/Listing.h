// What `vantrel list` prints.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "persistence/WorkflowList.h"

namespace vantrel {

/// Writes a heading and a line for each workflow, in aligned columns.
void WriteListing(std::ostream& pobjOut, const std::vector<WorkflowListing>& pcolWorkflows);
/// One JSON object on one line; docs/command-line.md describes it.
std::string ListingJson(const std::vector<WorkflowListing>& pcolWorkflows);

}  // namespace vantrel
