// The state that the model shares with the controls.
#pragma once

#include <cstdint>

#include "chart/Picture.h"
#include "model/CurrentValue.h"
#include "model/DesignerHostRef.h"

namespace vantrel {

/// Each control has one, and there is one more for use without a control. One of them is the current one: that of the control that is
/// being called, and between calls the newest. An object uses the state of the control that shows its workflow (Workflow::Designer),
/// and the current one only when no control shows it.
class DesignerState : public Referable {
 public:
  /// Becomes the current one, but not before a call in progress (DesignerCall) is over.
  DesignerState();
  /// With the same values.
  DesignerState(const DesignerState& pobjFrom);
  DesignerState& operator=(const DesignerState&) = delete;
  /// When the current one is deleted, the newest of the others becomes current.
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

extern WorkflowReader* gobjWorkflowReader;  ///< the reader of the workflow being read now; null otherwise

/// Gives a host that is not a control its own state, with the values of the current one, and makes it current. At the end of the scope
/// the previous state is current again.
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
