// Workflows as pictures.
#pragma once

#include <memory>
#include <string>

namespace vantrel {

class Workflow;

/// Writes a picture of the workflow's chart, without those of embedded workflows. Throws what WriteChart throws, and Error 5 when there
/// are no fonts. Opens no window. Fits the chart first, which moves objects with negative coordinates. Needs a QGuiApplication.
void DrawWorkflow(const std::shared_ptr<Workflow>& pobjWorkflow, const std::string& pstrPath, double pdblZoom = 1);

}  // namespace vantrel
