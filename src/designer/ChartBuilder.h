// Shows a workflow.
#pragma once

#include <memory>

#include "designer/Vantrel.h"

namespace vantrel {

/// Builds and empties the chart.
class ChartBuilder {
 public:
  explicit ChartBuilder(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Takes the shown workflow off the chart and shows another one, or none; takes that one off any other control's chart. Error 35601,
  /// with nothing changed, when the image list lacks a place's picture. If a listener shows something else meanwhile, that stays.
  void Show(const std::shared_ptr<Workflow>& pobjWorkflow);
  void Clear();

 private:
  void RequirePictures(const Workflow& pobjWorkflow) const;
  void LetGo();
  void Take(const std::shared_ptr<Workflow>& pobjWorkflow);
  void Build();
  void BindAll();

  Vantrel& mobjControl;
};

}  // namespace vantrel
