// A control's share of the process-wide state.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "model/DesignerState.h"
#include "model/Enumerations.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// Keeps use mode and connector sides of a control while another one's are the process-wide ones. A new control's state is
/// the process-wide one; where a listener makes the control, as soon as the call that it listens to is over, which goes on with its
/// own. When the control whose state that is goes, the next younger one's follows.
class ControlState : public Referable {
 public:
  explicit ControlState(Vantrel& pobjControl);
  ~ControlState();
  ControlState(const ControlState&) = delete;
  ControlState& operator=(const ControlState&) = delete;

  /// The control whose state is the process-wide one, or null.
  static ControlState* Active();
  /// The control that shows the workflow, or null.
  static Vantrel* Showing(const Workflow& pobjWorkflow);
  bool IsActive() const;
  UseModeConstant UseMode() const { return IsActive() ? gintUseMode : mintUseMode; }

  /// Makes it the process-wide one and keeps what that was.
  void Enter();
  /// Makes it the process-wide one.
  void Load();
  /// Keeps what the process-wide one has become.
  void Store();
  /// Workflow and pictures, which others may have changed since, are this control's again.
  void LoadChart();
  static void Detach();
  /// Other controls that show the workflow show none then: its objects have one set of elements.
  void TakeFromOthers(const std::shared_ptr<Workflow>& pobjWorkflow) const;

 private:
  Vantrel& mobjControl;
  UseModeConstant mintUseMode = vntDesign;
  std::int16_t mintInputPosition = vntLeft, mintOutputPosition = vntRight;
};

/// Stands in every public operation of a control: its state is the process-wide one until the scope ends, then that which was
/// before. The control may go meanwhile.
class ControlScope {
 public:
  explicit ControlScope(const Vantrel& pobjControl);
  ~ControlScope();
  ControlScope(const ControlScope&) = delete;
  ControlScope& operator=(const ControlScope&) = delete;

 private:
  std::optional<DesignerStateScope> mobjForeign;  // no control's state was there before
  Ref<ControlState> mobjOwn, mobjBefore;
};

}  // namespace vantrel
