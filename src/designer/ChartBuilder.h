// Shows a workflow.
#pragma once

#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// Takes the shown workflow off the chart and shows another one, or none; takes that one off any other control's chart. Error 35601,
/// with nothing changed, when the image list lacks a place's picture.
void ShowWorkflow(Vantrel& pobjControl, const std::shared_ptr<Workflow>& pobjWorkflow);
/// Removes every element from the chart.
void ClearChart(Vantrel& pobjControl);

}  // namespace vantrel
