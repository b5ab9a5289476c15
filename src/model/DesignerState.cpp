#include "model/DesignerState.h"

#include <vector>

#include "model/Workflow.h"

namespace vantrel {

namespace {

const ImageList& OwnImages() {
  static const ImageList images = ImageList::VantrelImages();
  return images;
}

std::vector<DesignerState*>& States() {
  static std::vector<DesignerState*> states;  // oldest first
  return states;
}

}  // namespace

void DesignerHost::UseMode(UseModeConstant pintMode) { gintUseMode = pintMode; }

DesignerHost& DesignerHostRef::BuiltIn() {
  static DesignerHost host;
  return host;
}

DesignerState* DesignerState::sNewest = nullptr;
std::int32_t DesignerState::sCalls = 0;
DesignerState* DesignerState::sCurrent = &First();
WorkflowReader* gobjWorkflowReader = nullptr;

DesignerState::DesignerState() : Images(&OwnImages()) { Register(); }

DesignerState::DesignerState(const DesignerState& pobjFrom)
    : Referable(pobjFrom),
      Host(pobjFrom.Host),
      Workflow(pobjFrom.Workflow),
      Images(pobjFrom.Images),
      UseMode(pobjFrom.UseMode),
      InputPosition(pobjFrom.InputPosition),
      OutputPosition(pobjFrom.OutputPosition) {
  Register();
}

DesignerState::~DesignerState() {
  auto& states = States();
  std::erase(states, this);
  sNewest = states.empty() ? nullptr : states.back();
  if (sCurrent == this) sCurrent = sNewest;
}

// The one that belongs to no control. Never destroyed, as what refers to it may live as long.
DesignerState& DesignerState::First() {
  static DesignerState& first = *new DesignerState;
  return first;
}

void DesignerState::Register() {
  States().push_back(this);
  sNewest = this;
  if (sCalls == 0) sCurrent = this;
}

DesignerStateScope::DesignerStateScope() : mobjBefore(&DesignerState::Current()), mobjState(DesignerState::Current()) {
  DesignerState::sCurrent = &mobjState;
}

DesignerStateScope::~DesignerStateScope() {
  if (DesignerState::sCurrent == &mobjState && mobjBefore) DesignerState::sCurrent = mobjBefore.get();
}

}  // namespace vantrel
