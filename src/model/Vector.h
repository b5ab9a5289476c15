// One straight segment of an arc's path.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "chart/Line.h"
#include "model/ChartObject.h"
#include "model/Forward.h"
#include "util/Color.h"
#include "util/Ref.h"

namespace vantrel {

/// Runs from (X1, Y1) to (X2, Y2), twips, and draws itself on one line of the chart. Owned by the workflow's Vectors; the
/// segments of an arc form a chain through InVector and OutVector. Answers the property protocol with its arc's.
class Vector final : public ChartObject {
 public:
  Vector() = default;
  /// Takes its line off the chart.
  ~Vector() override;

  std::string Tag;
  Ref<Line> LineControl;
  Ref<Vector> InVector;   ///< the segment before, null for the first
  Ref<Vector> OutVector;  ///< the segment after, null for the last
  Color ForeColor = kBlack;
  std::int32_t RecId = 0;

  std::string Class() const override { return "VNTR.Vector.1"; }
  ChartKind Kind() const override { return ChartKind::Vector; }
  std::string NameText() const override { return Name(); }
  std::string Name() const;

  const Ref<vantrel::Arc>& Arc() const { return mobjArc; }
  void Arc(const Ref<vantrel::Arc>& pobjArc);

  /// Each moves the same end of the line at once.
  float X1() const { return msngX1; }
  void X1(float psngX) { Start(psngX, msngY1); }
  float Y1() const { return msngY1; }
  void Y1(float psngY) { Start(msngX1, psngY); }
  float X2() const { return msngX2; }
  void X2(float psngX) { End(psngX, msngY2); }
  float Y2() const { return msngY2; }
  void Y2(float psngY) { End(msngX2, psngY); }
  void Start(float psngX1, float psngY1);
  void End(float psngX2, float psngY2);
  /// Both ends at once, and draws the line there.
  void Place(float psngX1, float psngY1, float psngX2, float psngY2);

  std::int16_t LineWidth() const { return mintLineWidth; }
  /// Pixels; a value below 1 becomes 1, for the caller's variable too. Throws Error 6 beyond 16 bits.
  template <std::integral T>
  void LineWidth(T& pPixels) {
    pPixels = std::max<T>(1, pPixels);
    SetWidth(pPixels);
  }
  template <std::integral T>
  void LineWidth(const T& pPixels) {
    SetWidth(std::max<T>(1, pPixels));
  }
  bool Visible() const { return mblnVisible; }
  void Visible(bool pblnOn);
  bool Dirty() const { return mblnDirty; }
  /// True also marks the arc.
  void Dirty(bool pblnDirty);
  /// The arc's value; false without an arc.
  bool Selected() const override;
  void Selected(bool pblnOn) override;

  void Setfocus() { LineWidth(3); }
  /// Moves the line to where the segment is, and colours it.
  void Draw();

  /// The bend points at which this segment ends or starts; one at which it does both is listed twice.
  const std::vector<Elbow*>& Elbows() const { return mcolElbows; }

  /// The arc's value; Error 91 without an arc.
  SharedProperties GetProperties() override;
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override;
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

 private:
  friend class Elbow;

  void SetWidth(std::int64_t plngPixels);

  Ref<vantrel::Arc> mobjArc;
  std::vector<Elbow*> mcolElbows;
  float msngX1 = 0, msngY1 = 0, msngX2 = 0, msngY2 = 0;
  std::int16_t mintLineWidth = 1;
  bool mblnVisible = true;
  bool mblnDirty = false;
  std::uint32_t mlngPosition = 0;  // among the segments that the arc lists
};

}  // namespace vantrel
