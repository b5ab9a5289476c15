// The surface that all elements of a chart lie on.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "chart/Element.h"
#include "chart/ElementFamily.h"
#include "chart/Image.h"
#include "chart/Label.h"
#include "chart/Line.h"
#include "chart/RunningBounds.h"
#include "chart/SpatialGrid.h"
#include "chart/TextMeasure.h"
#include "util/Event.h"

namespace vantrel {

/// Owns the element families, knows every visible element's rectangle and tells views what to paint again. Views ask it for
/// elements; they never ask the model.
class ChartSurface {
  static constexpr Rect kEverything{-1e12F, -1e12F, 1e12F, 1e12F};
  // Declared before the families, whose constructors number and stack their templates.
  SpatialGrid mGrid;
  mutable RunningBounds mVisibleBounds, mBoxBounds;  // computed anew when asked for while unknown
  std::shared_ptr<const TextMeasure> mMeasure;
  std::int64_t mFront = 0;
  float mScaleLeft = 0, mScaleTop = 0, mScaleWidth = 0, mScaleHeight = 0;
  Rect mWatched = kEverything;
  Color mBackColor = kWhite;
  bool mVisible = true;

 public:
  ChartSurface();
  ~ChartSurface();
  ChartSurface(const ChartSurface&) = delete;
  ChartSurface& operator=(const ChartSurface&) = delete;

  ElementFamily<Image> ctlImage;
  ElementFamily<Label> ctlLabel, lblCount;
  ElementFamily<Line> ctlLine;
  ElementFamily<Image> ctlHandle;

  /// Visible elements that touch an area (twips), from back to front.
  std::vector<Element*> ElementsIn(const Rect& pobjArea) const;
  /// The visible element nearest to the front under a point, or null. The tolerance widens lines only, twips.
  Element* ElementAt(float psngX, float psngY, float psngTolerance = 0) const;

  /// The rectangle around all visible elements, twips; nothing for an empty chart. Looks at every element only after one on the
  /// edge has moved or gone.
  std::optional<Rect> VisibleBounds() const;
  /// The same around all images and labels, hidden ones included, templates not.
  std::optional<Rect> BoxBounds() const;

  float ScaleLeft() const { return mScaleLeft; }  ///< the part in view, twips
  float ScaleTop() const { return mScaleTop; }
  float ScaleWidth() const { return mScaleWidth; }
  float ScaleHeight() const { return mScaleHeight; }
  void Scale(float psngWidth, float psngHeight);
  void Origin(float psngLeft, float psngTop);
  Color BackColor() const { return mBackColor; }
  void BackColor(Color plngColor);
  bool Visible() const { return mVisible; }
  void Visible(bool pblnOn);

  const TextMeasure& Measure() const { return *mMeasure; }
  /// Installs a text measure; null brings the built-in one back. Does not measure existing labels again.
  void Measure(std::shared_ptr<const TextMeasure> pobjMeasure);

  /// Restricts OnDamaged to what touches this rectangle, twips: the part that the view shows. At first everything.
  void Watch(const Rect& pobjArea) { mWatched = pobjArea; }

  /// Raised with each rectangle (twips) to paint again.
  Event<const Rect&> OnDamaged;
  /// Raised after VisibleBounds grew, with the rectangle that made them grow.
  Event<const Rect&> OnGrown;

 private:
  friend class Element;
  template <class E>
  friend class ElementFamily;

  void Adopt(Element& pobjElement, ElementFamilyId pFamily, std::int32_t plngIndex);
  void ElementChanged(Element& pobjElement, const Rect& pobjBefore, bool pblnWasVisible, bool pblnIsVisible);
  void Arrange(Element& pobjElement, const Rect& pobjBefore, const Rect& pobjAfter, bool pblnWasVisible, bool pblnIsVisible);
  void Damage(const Rect& pobjArea) const;
  void BringToFront(Element& pobjElement);
  void Unload(Element& pobjElement);
  void Drop(const Element& pobjElement);
};

template <class E>
std::shared_ptr<E> ElementFamily<E>::Append() {
  auto element = std::make_shared<E>();
  mSurface.Adopt(*element, mFamily, UpperBound() + 1);
  mElements.push_back(element);
  ++mCount;
  return element;
}

}  // namespace vantrel
