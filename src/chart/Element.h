// What lies on a chart surface.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "chart/Geometry.h"
#include "util/Object.h"

namespace vantrel {

class ChartSurface;

/// The families that elements are numbered in.
enum ElementFamilyId : std::uint8_t { ctlImageFamily, ctlLabelFamily, lblCountFamily, ctlLineFamily, ctlHandleFamily };

/// A visual element: an image, a label or a line. Its family on the surface owns it; model objects and views refer to it. A setter
/// that changes something tells the surface which rectangle to paint again; a setter that changes nothing repaints nothing. An
/// element whose surface is gone keeps its values.
class Element : public Object, public std::enable_shared_from_this<Element> {
 public:
  ElementFamilyId Family() const { return mFamily; }
  std::int32_t Index() const { return mIndex; }  ///< within its family; 0 is the family's template
  ChartSurface* Surface() const { return mSurface; }

  /// Key of the model object that the element shows.
  const std::string& Tag() const { return mTag; }
  void Tag(const std::string& pstrTag) { mTag = pstrTag; }

  bool Visible() const { return mVisible; }
  void Visible(bool pblnOn);

  /// The rectangle that painting the element may touch, twips.
  virtual Rect Bounds() const = 0;
  /// True when the point (twips) is on the element, widened by a tolerance.
  virtual bool Covers(float psngX, float psngY, float psngTolerance) const;

  /// Puts the element in front of all others.
  void BringToFront();
  /// Larger is nearer to the front.
  std::int64_t ZOrder() const { return mZOrder; }

  /// Takes the element off its surface and frees its index. References to it test false once its last share is gone.
  void Unload();

 protected:
  Element() = default;
  /// Runs `pChange`, which alters the fields, and tells the surface the rectangles before and after.
  template <class Change>
  void Alter(Change&& pChange) {
    const Rect before = Bounds();
    pChange();
    Changed(before);
  }
  template <class Value>
  void Set(Value& pField, const Value& pValue) {
    if (pField != pValue) Alter([&] { pField = pValue; });
  }

 private:
  friend class ChartSurface;
  template <class E>
  friend class ElementFamily;
  void Changed(const Rect& pobjBefore);

  ChartSurface* mSurface = nullptr;
  std::string mTag;
  std::int64_t mZOrder = 0;
  std::int32_t mIndex = 0;
  ElementFamilyId mFamily = ctlImageFamily;
  bool mVisible = false;
};

/// An element with a rectangle of its own.
class BoxElement : public Element {
 public:
  float Left() const { return mLeft; }
  void Left(float psngLeft) { Set(mLeft, psngLeft); }
  float Top() const { return mTop; }
  void Top(float psngTop) { Set(mTop, psngTop); }
  float Width() const { return mWidth; }
  void Width(float psngWidth) { Set(mWidth, psngWidth < 0 ? 0 : psngWidth); }
  float Height() const { return mHeight; }
  void Height(float psngHeight) { Set(mHeight, psngHeight < 0 ? 0 : psngHeight); }
  /// Set both values in one change.
  void MoveTo(float psngLeft, float psngTop);
  void Resize(float psngWidth, float psngHeight);

  /// 0: no border, 1: a single line.
  std::int16_t BorderStyle() const { return mBorderStyle; }
  void BorderStyle(std::int16_t pintStyle) { Set(mBorderStyle, pintStyle); }

  Rect Bounds() const override { return {mLeft, mTop, mLeft + mWidth, mTop + mHeight}; }

 private:
  float mLeft = 0, mTop = 0, mWidth = 0, mHeight = 0;
  std::int16_t mBorderStyle = 0;
};

}  // namespace vantrel
