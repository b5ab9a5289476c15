#include "app/draw/ChartFile.h"

#include "designer/Vantrel.h"
#include "model/DesignerState.h"
#include "qt/ChartPicture.h"
#include "qt/QtTextMeasure.h"
#include "toolkit/HeadlessToolkit.h"

namespace vantrel {

void DrawWorkflow(const std::shared_ptr<Workflow>& pobjWorkflow, const std::string& pstrPath, double pdblZoom) {
  const DesignerStateScope before;
  HeadlessToolkit toolkit;
  Vantrel control(toolkit);
  control.ChartArea.Measure(std::make_shared<QtTextMeasure>());
  control.Workflow(pobjWorkflow);
  WriteChart(control.ChartArea, pstrPath, pdblZoom);
}

}  // namespace vantrel
