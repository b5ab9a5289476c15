// An element that shows a straight line.
#pragma once

#include "chart/Element.h"
#include "util/Color.h"

namespace vantrel {

/// A line from (X1, Y1) to (X2, Y2), twips, with a width in pixels.
class Line final : public Element {
 public:
  std::string Class() const override { return "VNTR.Line.1"; }

  float X1() const { return mX1; }
  void X1(float psngX) { Set(mX1, psngX); }
  float Y1() const { return mY1; }
  void Y1(float psngY) { Set(mY1, psngY); }
  float X2() const { return mX2; }
  void X2(float psngX) { Set(mX2, psngX); }
  float Y2() const { return mY2; }
  void Y2(float psngY) { Set(mY2, psngY); }
  /// All four in one change.
  void Place(float psngX1, float psngY1, float psngX2, float psngY2);

  std::int16_t BorderWidth() const { return mBorderWidth; }  ///< pixels, at least 1
  void BorderWidth(std::int16_t pintPixels) { Set(mBorderWidth, pintPixels); }
  Color BorderColor() const { return mBorderColor; }
  void BorderColor(Color plngColor) { Set(mBorderColor, plngColor); }

  Rect Bounds() const override;
  /// Measures the distance to the line itself, not to its box.
  bool Covers(float psngX, float psngY, float psngTolerance) const override;

  void CopySettings(const Line& pobjTemplate);

 private:
  float mX1 = 0, mY1 = 0, mX2 = 0, mY2 = 0;
  std::int16_t mBorderWidth = 1;
  Color mBorderColor = kBlack;
};

}  // namespace vantrel
