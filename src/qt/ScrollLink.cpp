#include "qt/ScrollLink.h"

#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

#include "designer/ScrollBar.h"

namespace vantrel {

namespace {

constexpr float kSpare = 0.75F;    // of the view, after the contents: space for drawing more
constexpr float kSteps = 20;       // of the arrows, for one view
constexpr float kFarthest = 1e9F;  // what the window's bar can hold

int Twips(float psngTwips) { return static_cast<int>(std::lround(std::clamp(psngTwips, -kFarthest, kFarthest))); }

}  // namespace

ScrollLink::ScrollLink(ScrollBar& pobjBar, QScrollBar& pobjWindowBar, std::function<void()> pOnMoved)
    : mobjBar(pobjBar), mobjWindowBar(pobjWindowBar), mOnMoved(std::move(pOnMoved)) {
  mobjRange = mobjBar.OnRange.Connect([this] { Show(); });
  mobjChange = mobjBar.OnChange.Connect([this] {
    Show();
    mOnMoved();
  });
  QObject::connect(&mobjWindowBar, &QScrollBar::valueChanged, &mobjWindowBar,
                   [this](int value) { mobjBar.Value(static_cast<float>(value)); });
}

void ScrollLink::Range(float psngLow, float psngHigh, float psngInView) {
  msngLow = psngLow;
  msngHigh = psngHigh;
  msngInView = psngInView;
  Show();
}

void ScrollLink::Show() {
  const QSignalBlocker blocker(mobjWindowBar);
  const float low = std::min(msngLow, mobjBar.Min()), high = std::max(low, std::max(msngHigh, mobjBar.Max()) - msngInView * (1 - kSpare));
  mobjWindowBar.setRange(Twips(std::min(low, mobjBar.Value())), Twips(std::max(high, mobjBar.Value())));
  mobjWindowBar.setPageStep(std::max(1, Twips(msngInView)));
  mobjWindowBar.setSingleStep(std::max(1, Twips(msngInView / kSteps)));
  mobjWindowBar.setValue(Twips(mobjBar.Value()));
}

}  // namespace vantrel
