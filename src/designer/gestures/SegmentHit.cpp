#include "designer/gestures/SegmentHit.h"

#include <algorithm>

namespace vantrel {

namespace {

constexpr double kLower = 0.98, kUpper = 1.02;
constexpr float kRounding = 2;  // twips that a quotient may be off where charts are very large

bool Between(float psngValue, float psngA, float psngB) {
  return psngValue >= std::min(psngA, psngB) && psngValue <= std::max(psngA, psngB);
}

// Below 0 the two bounds are swapped, so that nothing is near a negative coordinate.
bool IsNear(double psngLine, double psngPress) { return kLower * psngLine <= psngPress && psngPress <= kUpper * psngLine; }

// The coordinates of lines that a press at this coordinate may hit.
struct Reach {
  explicit Reach(float psngPress)
      : From(psngPress > 0 ? static_cast<float>(psngPress / kUpper) - kRounding : psngPress),
        To(psngPress > 0 ? static_cast<float>(psngPress / kLower) + kRounding : psngPress) {}
  float From, To;
};

template <class Hits>
Line* FirstIn(const ChartSurface& pobjChart, const Rect& pobjArea, Line* pobjBest, Hits&& pHits) {
  for (Element* element : pobjChart.ElementsIn(pobjArea)) {
    if (element->Family() != ctlLineFamily || element->Index() == 0) continue;
    if (pobjBest && pobjBest->Index() <= element->Index()) continue;
    auto* const line = static_cast<Line*>(element);
    if (pHits(*line)) pobjBest = line;
  }
  return pobjBest;
}

}  // namespace

bool HitsSegment(const Line& pobjLine, float psngX, float psngY) {
  const double width = double{pobjLine.X2()} - pobjLine.X1(), height = double{pobjLine.Y2()} - pobjLine.Y1();
  const double slope = width == 0 ? 0 : height / width;
  const double intercept = pobjLine.Y1() - slope * pobjLine.X1();
  if (IsNear(slope * psngX + intercept, psngY) && Between(psngX, pobjLine.X1(), pobjLine.X2())) return true;
  return slope != 0 && IsNear((psngY - intercept) / slope, psngX) && Between(psngY, pobjLine.Y1(), pobjLine.Y2());
}

std::shared_ptr<Line> SegmentAt(const ChartSurface& pobjChart, float psngX, float psngY) {
  constexpr float near = kHitTolerance;
  const Rect around{psngX - near, psngY - near, psngX + near, psngY + near};
  Line* hit = FirstIn(pobjChart, around, nullptr, [&](const Line& line) { return line.Covers(psngX, psngY, near); });
  if (!hit) {
    const auto relative = [&](const Line& line) { return HitsSegment(line, psngX, psngY); };
    const Reach x(psngX), y(psngY);
    hit = FirstIn(pobjChart, {psngX, y.From, psngX, y.To}, nullptr, relative);
    hit = FirstIn(pobjChart, {x.From, psngY, x.To, psngY}, hit, relative);
  }
  return hit ? pobjChart.ctlLine.At(hit->Index()) : nullptr;
}

}  // namespace vantrel
