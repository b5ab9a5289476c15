#include "app/draw/ChartFile.h"

#include <QFont>
#include <QFontMetricsF>

#include "designer/Vantrel.h"
#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "qt/ChartPicture.h"
#include "qt/QtTextMeasure.h"
#include "toolkit/HeadlessToolkit.h"
#include "util/Error.h"

namespace vantrel {

void DrawWorkflow(const std::shared_ptr<Workflow>& pobjWorkflow, const std::string& pstrPath, double pdblZoom) {
  // Qt would draw a box for each letter and say nothing. The list of families does not tell: it always has "Sans Serif".
  if (!QFontMetricsF(QFont()).inFont('x')) throw Error(vntErrInvalidCall, pstrPath + ": cannot be drawn: this system has no fonts");
  const DesignerStateScope before;
  HeadlessToolkit toolkit;
  Vantrel control(toolkit);
  control.ChartArea.Measure(std::make_shared<QtTextMeasure>());
  control.BackColor(pobjWorkflow->ChartColor.value_or(kWhite));
  control.Workflow(pobjWorkflow);
  WriteChart(control.ChartArea, pstrPath, pdblZoom);
}

}  // namespace vantrel
