// A press on an object image takes the object or one of its connectors, plays with it while testing, or asks for the pop-up.
#include "designer/HostEvents.h"
#include "designer/gestures/ArcCompletion.h"
#include "designer/gestures/ConnectorGesture.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Hover.h"
#include "designer/gestures/ImageGesture.h"
#include "designer/gestures/Presses.h"

namespace vantrel {

namespace {

constexpr float kBeside = 300;  // twips from an object to one inserted next

struct Target {
  Target(Vantrel& pobjControl, vantrel::Image& pobjImage)
      : Control(&pobjControl), Image(&pobjImage), Node(std::dynamic_pointer_cast<vantrel::Node>(ObjectOf(pobjControl, pobjImage))) {}
  bool IsAlive() const { return Control && IsOnChart(Image); }

  Ref<Vantrel> Control;
  Ref<vantrel::Image> Image;
  std::shared_ptr<vantrel::Node> Node;
};

std::shared_ptr<Gesture> BeginDrag(const Target& pobjTarget, const PointerInput& pobjInput) {
  const auto& node = pobjTarget.Node;
  const bool isConnector = node->InConnector == pobjTarget.Image || node->OutConnector == pobjTarget.Image;
  if (isConnector) return std::make_shared<ConnectorGesture>(*pobjTarget.Control, node, *pobjTarget.Image, pobjInput);
  return std::make_shared<ImageGesture>(*pobjTarget.Control, *pobjTarget.Image, pobjInput);
}

std::shared_ptr<Gesture> Take(const Target& pobjTarget, const PointerInput& pobjInput) {
  const auto& control = pobjTarget.Control;
  const bool keepsSelection = pobjTarget.Node->Selected() && (control->MultiSelectOn || control->Comfort.DragMovesChosen);
  if (!keepsSelection && !(pobjInput.Shift & vntShift)) control->Selection(nullptr);
  if (pobjTarget.Node->Image == pobjTarget.Image) {
    control->CurrentControl(pobjTarget.Image.get());
  } else {
    control->Selection(nullptr);
  }
  return pobjTarget.IsAlive() ? BeginDrag(pobjTarget, pobjInput) : nullptr;
}

// After the pop-up, whose command may have deleted what was clicked, or inserted what is chosen now.
void SelectClicked(const Target& pobjTarget) {
  if (!pobjTarget.IsAlive()) return;
  pobjTarget.Control->CurrentObject(pobjTarget.Node);
  if (!pobjTarget.Control->Comfort.RightClickChooses) pobjTarget.Control->CurrentControl(pobjTarget.Node->Image.get());
  if (pobjTarget.Control) RaiseForObject(*pobjTarget.Control, &Vantrel::OnRightClick, pobjTarget.Node);
}

void AskForMenu(const Target& pobjTarget) {
  pobjTarget.Control->CurrentX = pobjTarget.Image->Left() + pobjTarget.Image->Width() + kBeside;
  pobjTarget.Control->CurrentY = pobjTarget.Image->Top() + pobjTarget.Image->Height() + kBeside;
  if (pobjTarget.Control->EnablePopups) pobjTarget.Control->ShowDesignMenu();
  try {
    SelectClicked(pobjTarget);
  } catch (const Error&) {
    // A right click that cannot select what it hit has done its work with the pop-up.
  }
}

void PlayWith(const Target& pobjTarget, const PointerInput& pobjInput) {
  const auto& control = pobjTarget.Control;
  control->Selection(nullptr);
  if (const auto transition = std::dynamic_pointer_cast<Transition>(pobjTarget.Node)) {
    const auto workflow = control->Workflow();
    if (pobjInput.Button == vntLeftButton && transition->Enabled()) workflow->FireNext(transition);
    return;
  }
  control->CurrentObject(pobjTarget.Node);
  control->CurrentControl(pobjTarget.Node->Image.get());
  if (control && pobjInput.Button == vntRightButton && control->UseMode() == vntTest) control->ShowTestMenu();
}

}  // namespace

std::shared_ptr<Gesture> PressOnImage(Vantrel& pobjControl, Image& pobjImage, const PointerInput& pobjInput) {
  const Target target(pobjControl, pobjImage);
  target.Control->FocusFrame.SelectedControl(nullptr);
  if (target.Control->IsInsertingArc()) {
    CompleteArc(*target.Control, *target.Image);
    return nullptr;
  }
  if (!target.Node) return nullptr;
  const bool isLeft = pobjInput.Button == vntLeftButton;
  if (target.Control->UseMode() == vntDesign) {
    if (isLeft) return Take(target, pobjInput);
    AskForMenu(target);
    return nullptr;
  }
  if (IsTesting(*target.Control)) PlayWith(target, pobjInput);
  return isLeft && target.IsAlive() ? std::make_shared<ImageGesture>(*target.Control, *target.Image, pobjInput) : nullptr;
}

}  // namespace vantrel
