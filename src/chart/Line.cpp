#include "chart/Line.h"

#include <algorithm>
#include <cmath>

namespace vantrel {

void Line::Place(float psngX1, float psngY1, float psngX2, float psngY2) {
  if (mX1 == psngX1 && mY1 == psngY1 && mX2 == psngX2 && mY2 == psngY2) return;
  Alter([&] {
    mX1 = psngX1;
    mY1 = psngY1;
    mX2 = psngX2;
    mY2 = psngY2;
  });
}

Rect Line::Bounds() const {
  const float half = static_cast<float>(mBorderWidth) * kTwipsPerPixel / 2;
  return {std::min(mX1, mX2) - half, std::min(mY1, mY2) - half, std::max(mX1, mX2) + half, std::max(mY1, mY2) + half};
}

bool Line::Covers(float psngX, float psngY, float psngTolerance) const {
  const float dx = mX2 - mX1, dy = mY2 - mY1;
  const float length = dx * dx + dy * dy;
  const float along = length > 0 ? std::clamp(((psngX - mX1) * dx + (psngY - mY1) * dy) / length, 0.0F, 1.0F) : 0;
  const float distance = std::hypot(psngX - (mX1 + along * dx), psngY - (mY1 + along * dy));
  return distance <= psngTolerance + static_cast<float>(mBorderWidth) * kTwipsPerPixel / 2;
}

void Line::CopySettings(const Line& pobjTemplate) {
  BorderWidth(pobjTemplate.BorderWidth());
  BorderColor(pobjTemplate.BorderColor());
}

}  // namespace vantrel
