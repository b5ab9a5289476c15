// Rules for when the control's commands can be run.
#pragma once

namespace vantrel {

class Vantrel;

/// Whether mouse and keyboard may change the chart: with Comfort::LockHolds, in design mode while it is not locked.
bool MayChange(const Vantrel& pobjControl);

bool IsAlways(const Vantrel& pobjControl);
bool HasWorkflow(const Vantrel& pobjControl);
bool CanCopy(const Vantrel& pobjControl);
bool CanPaste(const Vantrel& pobjControl);
bool CanDelete(const Vantrel& pobjControl);
bool CanSelectAll(const Vantrel& pobjControl);
/// True when there is a workflow and it is not locked.
bool CanInsert(const Vantrel& pobjControl);
bool CanInsertArc(const Vantrel& pobjControl);
bool CanInsertElbow(const Vantrel& pobjControl);
bool CanRemoveElbow(const Vantrel& pobjControl);
bool CanAlign(const Vantrel& pobjControl);
bool CanShowProperties(const Vantrel& pobjControl);
bool CanStartCase(const Vantrel& pobjControl);
bool CanAddToken(const Vantrel& pobjControl);
bool CanRemoveToken(const Vantrel& pobjControl);

}  // namespace vantrel
