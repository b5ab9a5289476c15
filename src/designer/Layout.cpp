// Lays out the parts of the control.
#include <algorithm>

#include "designer/ControlScope.h"
#include "designer/Vantrel.h"

namespace vantrel {

namespace {

constexpr float kGap = 50;  // twips right of and below the scroll bars

}  // namespace

void Vantrel::Resize(float psngWidth, float psngHeight) {
  const ControlScope scope(*this);
  constexpr float thickness = ScrollBar::kThickness;
  const float left = psngWidth - thickness - kGap, top = psngHeight - thickness - kGap;
  const float width = std::max(0.0F, left), height = std::max(0.0F, top);
  ChartArea.Scale(width, height);
  VScroll.Area({left, 0, left + thickness, height});
  HScroll.Area({0, top, width, top + thickness});
  if (Workflow()) Refresh();
}

}  // namespace vantrel
