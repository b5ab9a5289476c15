// The state that the model shares with the controls.
#pragma once

#include <cstdint>

#include "chart/Picture.h"
#include "model/CurrentValue.h"
#include "model/DesignerHostRef.h"

namespace vantrel {

/// Each control has one, and one more serves while there is no control. One of them is the current one: that of the control that is
/// being called, and between two calls the newest. An object takes the state of the control that shows its workflow
/// (Workflow::Designer) and the current one only when no control shows it.
class DesignerState : public Referable {
 public:
  /// The current one from now on, unless a call is under way (DesignerCall): then as soon as that is over.
  DesignerState();
  /// With the same values.
  DesignerState(const DesignerState& pobjFrom);
  DesignerState& operator=(const DesignerState&) = delete;
  /// When the current one goes, the newest of the others follows.
  ~DesignerState();

  DesignerHostRef Host;
  Ref<vantrel::Workflow> Workflow;  ///< the workflow shown, or the one read last
  const ImageList* Images;          ///< pictures that objects show; never null
  UseModeConstant UseMode = vntDesign;
  std::int16_t InputPosition = vntLeft;  ///< ConnectorPosition given to new objects; every setting of one changes it
  std::int16_t OutputPosition = vntRight;

  static DesignerState& Current() { return *sCurrent; }

 private:
  friend class DesignerCall;
  friend class DesignerStateScope;

  static DesignerState& First();
  void Register();

  static DesignerState* sCurrent;
  static DesignerState* sNewest;
  static std::int32_t sCalls;  // under way
};

// The values of the current state. They are read and written like variables.
inline constexpr CurrentValue<&DesignerState::Host> gobjVantrel;
inline constexpr CurrentValue<&DesignerState::Workflow> gobjWorkflow;
inline constexpr CurrentValue<&DesignerState::Images> gobjImageList;
inline constexpr CurrentValue<&DesignerState::UseMode> gintUseMode;
inline constexpr CurrentValue<&DesignerState::InputPosition> gintInputPosition;
inline constexpr CurrentValue<&DesignerState::OutputPosition> gintOutputPosition;

extern WorkflowReader* gobjWorkflowReader;  ///< who is reading a workflow now; null while nobody is

/// Gives a host that is no control a state of its own, with the values of the current one, and makes it the current one. Goes with
/// the scope; then the state of before is the current one again.
class DesignerStateScope {
 public:
  DesignerStateScope();
  ~DesignerStateScope();
  DesignerStateScope(const DesignerStateScope&) = delete;
  DesignerStateScope& operator=(const DesignerStateScope&) = delete;

 private:
  Ref<DesignerState> mobjBefore;
  DesignerState mobjState;
};

}  // namespace vantrel
