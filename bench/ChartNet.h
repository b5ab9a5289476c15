// A workflow with a chart of a given size, to save and to read.
#pragma once

#include <cstdint>
#include <memory>

#include "model/Workflow.h"

namespace vantrel::bench {

/// So many places and as many transitions, three arcs for each place, three segments for each arc; texts and positions of usual length.
std::shared_ptr<Workflow> MakeChart(std::int32_t plngPlaces);

/// The number of rows that saving it writes: the workflow, its nodes, its arcs and their segments.
std::int64_t RowsOf(const Workflow& pobjWorkflow);

}  // namespace vantrel::bench
