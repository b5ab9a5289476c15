// The control's settings that concern its workflow, and its property list.
#pragma once

#include <memory>
#include <string>

#include "designer/Vantrel.h"

namespace vantrel {

class ControlProperties {
 public:
  explicit ControlProperties(Vantrel& pobjControl) : mobjControl(pobjControl) {}

  /// Empty for a mode that does not exist.
  static std::string UseModeName(std::int32_t plngMode);
  void UseMode(UseModeConstant pintMode);
  void ShowWeights(bool pblnOn) { ShowOnArcs(&Workflow::ShowWeights, pblnOn); }
  void ShowGuards(bool pblnOn) { ShowOnArcs(&Workflow::ShowGuards, pblnOn); }
  void BackColor(Color plngColor);
  /// Lets the user choose. Does nothing when they keep the value.
  void ChooseBackColor();

  /// Null without a workflow.
  std::shared_ptr<PropertyCollection> Records();
  /// Throws what the value's conversion throws, and Error 91 for a setting of the workflow without a workflow.
  void Store(const std::string& pstrPropName, const Variant& pvarValue);

 private:
  Workflow& Shown() const { return *Ref<Workflow>(mobjControl.Workflow()); }
  void ShowOnArcs(bool Workflow::*pFlag, bool pblnOn);
  bool StoreInWorkflow(const std::string& pstrPropName, const Variant& pvarValue);

  Vantrel& mobjControl;
};

}  // namespace vantrel
