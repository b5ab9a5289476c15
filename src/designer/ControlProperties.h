// The control's settings that concern its workflow, and its property list.
#pragma once

#include <memory>
#include <string>

#include "designer/Vantrel.h"

namespace vantrel {

void SetUseMode(Vantrel& pobjControl, UseModeConstant pintMode);
/// Workflow::ShowWeights or ShowGuards. Error 91 without a workflow.
void ShowOnArcs(Vantrel& pobjControl, bool Workflow::*pFlag, bool pblnOn);
void SetBackColor(Vantrel& pobjControl, Color plngColor);
/// Lets the user choose; nothing when it stays as it is. The control may be gone afterwards.
void ChooseBackColor(Vantrel& pobjControl);

/// Null without a workflow.
std::shared_ptr<PropertyCollection> PropertiesOf(const Vantrel& pobjControl);
/// Throws what the value's conversion throws; Error 91 for a setting of the workflow while there is none.
void StoreProperty(Vantrel& pobjControl, const std::string& pstrPropName, const Variant& pvarValue);

}  // namespace vantrel
