#include "designer/ControlState.h"

#include <algorithm>
#include <vector>

#include "designer/ControlHost.h"
#include "designer/Vantrel.h"

namespace vantrel {

namespace {

std::vector<ControlState*>& Controls() {
  static std::vector<ControlState*> controls;  // oldest first
  return controls;
}

// How many scopes there are, and the newest control that was made inside of them.
struct Calls {
  std::int32_t Depth = 0;
  Ref<ControlState> Newcomer;
};

Calls& CallsUnderWay() {
  static Calls calls;
  return calls;
}

const ImageList& OwnImages() {
  static const ImageList images = ImageList::VantrelImages();
  return images;
}

}  // namespace

ControlState::ControlState(Vantrel& pobjControl) : mobjControl(pobjControl) {
  mobjControl.ImageList = &OwnImages();
  Controls().push_back(this);
  if (CallsUnderWay().Depth > 0) {
    CallsUnderWay().Newcomer = this;
  } else {
    Enter();
  }
}

ControlState::~ControlState() {
  const bool wasActive = IsActive();
  std::erase(Controls(), this);
  if (!wasActive) return;
  if (Controls().empty()) {
    Detach();
  } else {
    Controls().back()->Load();
  }
}

Vantrel* ControlState::Showing(const Workflow& pobjWorkflow) {
  for (const ControlState* const state : Controls()) {
    if (state->mobjControl.Workflow().get() == &pobjWorkflow) return &state->mobjControl;
  }
  return nullptr;
}

ControlState* ControlState::Active() {
  const auto& controls = Controls();
  const auto found = std::find_if(controls.begin(), controls.end(), [](const ControlState* state) { return state->IsActive(); });
  return found == controls.end() ? nullptr : *found;
}

void ControlState::Enter() {
  if (auto* active = Active()) active->Store();
  Load();
}

bool ControlState::IsActive() const { return gobjVantrel == mobjControl.mobjHost.get(); }

void ControlState::Load() {
  gobjVantrel = mobjControl.mobjHost.get();
  gintUseMode = mintUseMode;
  gintInputPosition = mintInputPosition;
  gintOutputPosition = mintOutputPosition;
  LoadChart();
}

void ControlState::LoadChart() {
  gobjWorkflow = mobjControl.mWorkflow;
  gobjImageList = mobjControl.ImageList;
}

void ControlState::Store() {
  mintUseMode = gintUseMode;
  mintInputPosition = gintInputPosition;
  mintOutputPosition = gintOutputPosition;
}

void ControlState::Detach() {
  gobjVantrel = nullptr;
  gobjWorkflow = nullptr;
  gobjImageList = &OwnImages();
  gintUseMode = vntDesign;
  gintInputPosition = vntLeft;
  gintOutputPosition = vntRight;
}

void ControlState::TakeFromOthers(const std::shared_ptr<Workflow>& pobjWorkflow) const {
  const auto controls = Controls();
  for (const ControlState* state : controls) {
    if (state != this && state->mobjControl.Workflow() == pobjWorkflow) state->mobjControl.Workflow(nullptr);
  }
}

ControlScope::ControlScope(const Vantrel& pobjControl) {
  ++CallsUnderWay().Depth;
  ControlState& own = *pobjControl.mobjState;
  if (own.IsActive()) {
    own.LoadChart();
    return;
  }
  mobjOwn = &own;
  if (auto* before = ControlState::Active()) {
    mobjBefore = before;
    before->Store();
  } else {
    mobjForeign.emplace();
  }
  own.Load();
}

ControlScope::~ControlScope() {
  if (mobjOwn && mobjOwn->IsActive()) mobjOwn->Store();
  if (mobjBefore) mobjBefore->Load();
  mobjForeign.reset();
  Calls& calls = CallsUnderWay();
  if (--calls.Depth > 0) return;
  if (calls.Newcomer) calls.Newcomer->Enter();
  calls.Newcomer = nullptr;
}

}  // namespace vantrel
