#include "designer/FocusFrame.h"

#include <algorithm>
#include <cmath>

#include "designer/ControlScope.h"
#include "designer/LabelText.h"
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Keys.h"

namespace vantrel {

namespace {

struct Grip {
  int X, Y;  // of the handle: -1 at the left or top edge, 1 at the right or bottom one, 0 in the middle
  PointerShape Pointer;
};

constexpr std::array<Grip, FocusFrame::kHandles> kGrips = {{
    {-1, -1, vntPointerSizeNWSE},
    {1, -1, vntPointerSizeNESW},
    {1, 1, vntPointerSizeNWSE},
    {-1, 1, vntPointerSizeNESW},
    {0, -1, vntPointerSizeNS},
    {1, 0, vntPointerSizeWE},
    {0, 1, vntPointerSizeNS},
    {-1, 0, vntPointerSizeWE},
}};

const Grip& GripOf(std::int32_t plngHandle) { return kGrips.at(static_cast<std::size_t>(plngHandle)); }

constexpr float kSmallest = FocusFrame::kSmallestLabel;

// One direction of a drag: the new position of the top or left side, and the label's new length.
struct Span {
  float From, Length;
};

bool IsTooSmall(float psngBefore, float psngMoved, float psngAfter, int plngGrip) {
  const bool isSmallAlready = plngGrip == 0 && psngBefore < kSmallest;
  return !isSmallAlready && (psngBefore + psngMoved < kSmallest || psngAfter < kSmallest);
}

Span Dragged(const Span& pobjBefore, float psngMoved, int plngGrip) {
  const auto grip = static_cast<float>(plngGrip);
  return {pobjBefore.From + (plngGrip < 0 ? psngMoved : 0), pobjBefore.Length + grip * psngMoved};
}

std::int32_t Whole(float psngTwips) { return static_cast<std::int32_t>(std::lround(std::clamp(psngTwips, -1e9F, 1e9F))); }

}  // namespace

FocusFrame::FocusFrame(Vantrel& pobjControl)
    : mobjControl(pobjControl), mlngInnerLeft(Whole(kHandleSize)), mlngInnerTop(Whole(kHandleSize)) {}

template <class Change>
void FocusFrame::Alter(Change&& pChange) {
  const bool wasVisible = mblnVisible;
  const Rect before = Bounds();
  pChange();
  if (wasVisible) OnDamaged.Raise(before);
  if (mblnVisible) OnDamaged.Raise(Bounds());
}

bool FocusFrame::Visible() const { return mblnVisible && mobjSelected && mobjSelected->Surface(); }

void FocusFrame::Visible(bool pblnOn) {
  const bool shows = pblnOn && mobjSelected;
  if (!shows) CancelEdit();
  if (shows != mblnVisible) Alter([&] { mblnVisible = shows; });
}

void FocusFrame::SelectedControl(const Ref<Element>& pobjElement) {
  CancelEdit();
  Visible(false);
  mblnFocus = mblnFocus && mobjSelected == pobjElement;
  mobjSelected = pobjElement;
  if (!mobjSelected) return;
  FrameControl();
  Visible(true);
}

void FocusFrame::FrameControl() {
  if (!mobjSelected) return;
  const Rect area = mobjSelected->Bounds();
  Alter([&] {
    msngLeft = area.Left - static_cast<float>(mlngInnerLeft);
    msngTop = area.Top - static_cast<float>(mlngInnerTop);
    mlngInnerWidth = Whole(area.Right - area.Left);
    mlngInnerHeight = Whole(area.Bottom - area.Top);
  });
  if (mblnEditing) OnEditing.Raise();
}

void FocusFrame::InnerLeft(std::int32_t plngMargin) {
  Alter([&] { mlngInnerLeft = plngMargin; });
}

void FocusFrame::InnerTop(std::int32_t plngMargin) {
  Alter([&] { mlngInnerTop = plngMargin; });
}

void FocusFrame::InnerWidth(std::int32_t plngWidth) {
  Alter([&] { mlngInnerWidth = plngWidth; });
}

void FocusFrame::InnerHeight(std::int32_t plngHeight) {
  Alter([&] { mlngInnerHeight = plngHeight; });
}

Rect FocusFrame::Bounds() const {
  const Rect outline = Outline();
  const auto marginX = static_cast<float>(mlngInnerLeft), marginY = static_cast<float>(mlngInnerTop);
  return {msngLeft, msngTop, outline.Right + marginX, outline.Bottom + marginY};
}

Rect FocusFrame::Outline() const {
  const float left = msngLeft + static_cast<float>(mlngInnerLeft), top = msngTop + static_cast<float>(mlngInnerTop);
  return {left, top, left + static_cast<float>(mlngInnerWidth), top + static_cast<float>(mlngInnerHeight)};
}

Rect FocusFrame::Handle(std::int32_t plngIndex) const {
  const Grip& grip = GripOf(plngIndex);
  const Rect outline = Outline();
  const auto along = [](int place, float outer, float from, float to) {
    if (place < 0) return outer;
    return place > 0 ? to : (from + to) / 2 - kHandleSize / 2;
  };
  const float left = along(grip.X, msngLeft, outline.Left, outline.Right);
  const float top = along(grip.Y, msngTop, outline.Top, outline.Bottom);
  return {left, top, left + kHandleSize, top + kHandleSize};
}

Label* FocusFrame::FramedLabel() const {
  Element* const element = mobjSelected.get();
  return element && element->Surface() ? dynamic_cast<Label*>(element) : nullptr;
}

bool FocusFrame::ShowsHandles() const { return Visible() && FramedLabel(); }

PointerShape FocusFrame::PointerOf(std::int32_t plngHandle) { return GripOf(plngHandle).Pointer; }

std::int32_t FocusFrame::HandleAt(float psngX, float psngY) const {
  if (!ShowsHandles()) return -1;
  for (std::int32_t handle = 0; handle < kHandles; ++handle) {
    if (Handle(handle).Contains(psngX, psngY)) return handle;
  }
  return -1;
}

void FocusFrame::DragHandle(std::int32_t plngIndex, float psngX, float psngY) {
  Label* const label = FramedLabel();
  if (!label) return;
  const Grip& grip = GripOf(plngIndex);
  const Span across = Dragged({label->Left(), label->Width()}, psngX, grip.X);
  const Span down = Dragged({label->Top(), label->Height()}, psngY, grip.Y);
  if (IsTooSmall(label->Width(), psngX, across.Length, grip.X)) return;
  if (IsTooSmall(label->Height(), psngY, down.Length, grip.Y)) return;
  label->MoveTo(across.From, down.From);
  label->Resize(across.Length, down.Length);
  FrameControl();
}

void FocusFrame::ReleaseHandle() {
  const ControlScope scope(mobjControl);
  if (const Label* label = FramedLabel()) OnResized.Raise(label->Height(), label->Width());
}

void FocusFrame::Edit() {
  const Label* const label = FramedLabel();
  if (!label) return CancelEdit();
  mstrText = TextOf(mobjControl, *label);
  mblnEditing = true;
  OnEditing.Raise();
}

bool FocusFrame::EditsLines() const {
  const Label* const label = FramedLabel();
  return label && mobjControl.Comfort.NotesHaveLines && std::dynamic_pointer_cast<Notation>(ObjectOf(mobjControl, *label));
}

void FocusFrame::Store(const std::string& pstrText) {
  Label* const label = FramedLabel();
  if (!label || pstrText == TextOf(mobjControl, *label)) return;
  const ControlScope scope(mobjControl);
  StoreText(mobjControl, *label, pstrText);
}

void FocusFrame::EndEdit(const std::string& pstrText) {
  if (!mblnEditing) return;
  CancelEdit();
  Store(pstrText);
}

void FocusFrame::CancelEdit() {
  if (!mblnEditing) return;
  mblnEditing = false;
  OnEditing.Raise();
}

bool FocusFrame::TakesKeys() const { return HasFocus() && !mobjControl.Comfort.ChosenIsSeen; }

bool FocusFrame::Key(std::int16_t pintCode) {
  if (pintCode == kEscapeKey) {
    Visible(false);
    return true;
  }
  if (pintCode != kDeleteKey) return false;
  if (FramedLabel()) {
    Store({});
  } else if (mobjSelected && mobjSelected->Family() == ctlImageFamily) {
    const auto object = ObjectOf(mobjControl, *mobjSelected);
    if (object) mobjControl.DeleteObject(object);
  }
  return true;
}

}  // namespace vantrel
