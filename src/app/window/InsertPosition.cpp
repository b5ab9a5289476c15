#include "app/window/InsertPosition.h"

#include <algorithm>

#include "designer/Vantrel.h"

namespace vantrel {

namespace {

constexpr float kPicture = 32 * kTwipsPerPixel, kStep = 48 * kTwipsPerPixel;
constexpr int kMostSteps = 100;

bool IsTaken(const ChartSurface& pobjSurface, float psngX, float psngY) {
  const auto elements = pobjSurface.ElementsIn({psngX, psngY, psngX + kPicture, psngY + kPicture});
  return std::any_of(elements.begin(), elements.end(), [](const Element* element) { return element->Family() == ctlImageFamily; });
}

bool IsInside(const Rect& pobjArea, float psngX, float psngY) {
  return psngX >= pobjArea.Left && psngY >= pobjArea.Top && psngX + kPicture <= pobjArea.Right && psngY + kPicture <= pobjArea.Bottom;
}

}  // namespace

void ChooseInsertPosition(Vantrel& pobjControl, const Rect& pobjInView) {
  float x = pobjControl.CurrentX, y = pobjControl.CurrentY;
  if (!IsInside(pobjInView, x, y)) {
    x = (pobjInView.Left + pobjInView.Right - kPicture) / 2;
    y = (pobjInView.Top + pobjInView.Bottom - kPicture) / 2;
  }
  for (int step = 0; step < kMostSteps && IsTaken(pobjControl.ChartArea, x, y); ++step) {
    x += kStep;
    y += kStep;
  }
  pobjControl.CurrentX = x;
  pobjControl.CurrentY = y;
}

}  // namespace vantrel
