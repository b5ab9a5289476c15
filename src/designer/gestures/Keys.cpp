#include "designer/gestures/Keys.h"

#include "designer/CommandRules.h"
#include "designer/Commands.h"
#include "designer/Vantrel.h"
#include "designer/gestures/ElementUnder.h"
#include "designer/gestures/Moving.h"

namespace vantrel {

namespace {

constexpr float kStep = 75, kFineStep = 15;  // twips

struct Offset {
  float X = 0, Y = 0;
};

Offset OffsetOf(std::int16_t pintCode, std::int16_t pintShift) {
  const float step = pintShift == vntShift ? kFineStep : kStep;
  switch (pintCode) {
    case kLeftKey:
      return {-step, 0};
    case kUpKey:
      return {0, -step};
    case kRightKey:
      return {step, 0};
    case kDownKey:
      return {0, step};
    default:
      return {};
  }
}

void ClearSelection(Vantrel& pobjControl) {
  pobjControl.CurrentControl(nullptr);
  pobjControl.Selection(nullptr);
}

void Delete(Vantrel& pobjControl) {
  if (pobjControl.Comfort.LockHolds) {
    if (MayChange(pobjControl)) RunCommand(pobjControl, CommandIds::Delete);
  } else if (pobjControl.Workflow()) {
    pobjControl.Delete();
  }
}

MovingGroup ToBeMoved(const Vantrel& pobjControl) {
  MovingGroup group;
  const auto& selection = pobjControl.Selection();
  for (const auto& object : *selection) group.Add(object);
  if (pobjControl.Comfort.ChosenIsSeen) group.AddBendPoints();
  const auto& current = pobjControl.CurrentControl();
  if (!selection->IsEmpty() || !IsOnChart(current)) return group;
  if (const auto object = ObjectOf(pobjControl, *current)) group.Add(object);
  return group;
}

void Nudge(Vantrel& pobjControl, const Offset& pobjOffset) {
  const auto workflow = pobjControl.Workflow();
  if (!workflow) return;
  const auto moved = ToBeMoved(pobjControl).MoveTo(*workflow, pobjOffset.X, pobjOffset.Y);
  SelectionRectangle& band = pobjControl.MultiSelect;
  const Rect area = band.Area();
  band.Area({area.Left + pobjOffset.X, area.Top + pobjOffset.Y, area.Right + pobjOffset.X, area.Bottom + pobjOffset.Y});
  pobjControl.FocusFrame.FrameControl();
  if (moved) workflow->Dirty(true);
}

}  // namespace

bool PressKey(Vantrel& pobjControl, std::int16_t pintCode, std::int16_t pintShift) {
  const bool clears = pintCode == kEscapeKey || pintCode == kDeleteKey;
  if (clears && pobjControl.IsInsertingArc()) pobjControl.EndArcInsert();
  if (pintCode == kDeleteKey) Delete(pobjControl);
  if (pintCode == kDeleteKey && !MayChange(pobjControl)) return true;
  if (clears) {
    ClearSelection(pobjControl);
    return true;
  }
  const Offset offset = OffsetOf(pintCode, pintShift);
  if (offset.X == 0 && offset.Y == 0) return false;
  if (MayChange(pobjControl)) Nudge(pobjControl, offset);
  return true;
}

}  // namespace vantrel
