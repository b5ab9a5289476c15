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
  Vantrel& Control;
  vantrel::Image& Image;
  std::shared_ptr<vantrel::Node> Node;
};

std::shared_ptr<Gesture> BeginDrag(const Target& pobjTarget, const PointerInput& pobjInput) {
  const auto& [control, image, node] = pobjTarget;
  const bool isConnector = node->InConnector == &image || node->OutConnector == &image;
  if (isConnector) return std::make_shared<ConnectorGesture>(control, node, image, pobjInput);
  return std::make_shared<ImageGesture>(control, image, pobjInput);
}

std::shared_ptr<Gesture> Take(const Target& pobjTarget, const PointerInput& pobjInput) {
  const auto& [control, image, node] = pobjTarget;
  const bool keepsSelection = node->Selected() && (control.MultiSelectOn || control.Comfort.DragMovesChosen);
  if (!keepsSelection && !(pobjInput.Shift & vntShift)) control.Selection(nullptr);
  if (node->Image == &image) {
    control.CurrentControl(&image);
  } else {
    control.Selection(nullptr);
  }
  return BeginDrag(pobjTarget, pobjInput);
}

// The pop-up's command may have closed the control, deleted the clicked object, or inserted the object that is chosen now.
void AskForMenu(const Target& pobjTarget) {
  const auto& [control, image, node] = pobjTarget;
  const Ref<Vantrel> alive(&control);
  const Ref<Element> clicked(&image);
  control.CurrentX = image.Left() + image.Width() + kBeside;
  control.CurrentY = image.Top() + image.Height() + kBeside;
  if (control.EnablePopups) control.ShowDesignMenu();
  if (!alive || !IsOnChart(clicked)) return;
  control.CurrentObject(node);
  if (!control.Comfort.RightClickChooses && ObjectOf(control, image) == node) control.CurrentControl(node->Image.get());
  RaiseForObject(control, &Vantrel::OnRightClick, node);
}

// A firing runs the host's code, which may close the control. Nothing may follow it.
void PlayWith(const Target& pobjTarget, const PointerInput& pobjInput) {
  const auto& [control, image, node] = pobjTarget;
  control.Selection(nullptr);
  if (const auto transition = std::dynamic_pointer_cast<Transition>(node)) {
    const auto workflow = control.Workflow();
    if (pobjInput.Button == vntLeftButton && transition->Enabled()) workflow->FireNext(transition);
    return;
  }
  control.CurrentObject(node);
  control.CurrentControl(node->Image.get());
  if (pobjInput.Button == vntRightButton && control.UseMode() == vntTest) control.ShowTestMenu();
}

}  // namespace

std::shared_ptr<Gesture> PressOnImage(Vantrel& pobjControl, Image& pobjImage, const PointerInput& pobjInput) {
  const Target target{pobjControl, pobjImage, std::dynamic_pointer_cast<Node>(ObjectOf(pobjControl, pobjImage))};
  pobjControl.FocusFrame.SelectedControl(nullptr);
  if (pobjControl.IsInsertingArc()) {
    CompleteArc(pobjControl, pobjImage);
    return nullptr;
  }
  if (!target.Node) return nullptr;
  const bool isLeft = pobjInput.Button == vntLeftButton;
  if (pobjControl.UseMode() == vntDesign) {
    if (isLeft) return Take(target, pobjInput);
    AskForMenu(target);
    return nullptr;
  }
  auto gesture = isLeft ? std::make_shared<ImageGesture>(pobjControl, pobjImage, pobjInput) : nullptr;
  const Ref<Vantrel> control(&pobjControl);
  if (IsTesting(pobjControl)) PlayWith(target, pobjInput);
  return control ? gesture : nullptr;
}

}  // namespace vantrel
