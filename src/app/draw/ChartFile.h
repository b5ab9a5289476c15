// Workflows as pictures.
#pragma once

#include <memory>
#include <string>

namespace vantrel {

class Workflow;

/// Writes a picture of the workflow's chart as WriteChart does, with its errors, and Error 5 where there are no fonts: the workflow
/// itself, without those embedded in it. No window opens. The chart is fitted first, which moves objects with negative coordinates.
/// Needs a QGuiApplication.
void DrawWorkflow(const std::shared_ptr<Workflow>& pobjWorkflow, const std::string& pstrPath, double pdblZoom = 1);

}  // namespace vantrel
