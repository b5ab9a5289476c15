// A bend point of an arc's path.
#pragma once

#include <memory>
#include <string>

#include "chart/Image.h"
#include "model/ChartObject.h"
#include "model/Forward.h"
#include "util/Ref.h"

namespace vantrel {

/// Joins two consecutive segments of one arc and shows a small square handle at the joint, hidden at first. Owned by the
/// workflow's Elbows. Answers the property protocol with its arc's. Twips.
class Elbow final : public ChartObject {
 public:
  /// Belongs to the workflow that the current control shows.
  Elbow();
  /// Takes the next free key of the workflow, and a handle of the chart that it is shown on.
  explicit Elbow(const Ref<Workflow>& pobjWorkflow);
  /// Takes the handle off the chart.
  ~Elbow() override;

  Ref<Image> Handle;

  std::string Class() const override { return "VNTR.Elbow.1"; }
  ChartKind Kind() const override { return ChartKind::Elbow; }

  const Ref<Vector>& InVector() const { return mobjInVector; }  ///< ends at the joint
  void InVector(const Ref<Vector>& pobjVector) { Attach(mobjInVector, pobjVector); }
  const Ref<Vector>& OutVector() const { return mobjOutVector; }  ///< starts at the joint
  void OutVector(const Ref<Vector>& pobjVector) { Attach(mobjOutVector, pobjVector); }

  /// Top-left corner of the handle. Setting one moves the joint, and with it both segments, and marks dirty.
  float Top() const { return msngTop; }
  void Top(float psngTop);
  float Left() const { return msngLeft; }
  void Left(float psngLeft);
  std::optional<Rect> Bounds() const override;
  void MoveTo(float psngLeft, float psngTop) override;
  /// Puts the handle round a point without moving the joint and without marking it dirty.
  void CentreHandle(float psngX, float psngY);
  /// The same for a new bend point: half the width counts in both directions.
  void CentreHandleByWidth(float psngX, float psngY);

  bool Visible() const { return mblnVisible; }
  void Visible(bool pblnOn);
  bool Selected() const override { return mblnSelected; }
  void Selected(bool pblnOn) override { mblnSelected = pblnOn; }
  bool Dirty() const { return mblnDirty; }
  /// True also marks the arc and the segment after it.
  void Dirty(bool pblnDirty);

  /// The arc's value; Error 91 without an arc.
  SharedProperties GetProperties() override;
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override;
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

 private:
  Arc& OwnArc() const;
  void Attach(Ref<Vector>& pobjMember, const Ref<Vector>& pobjVector);
  float HandleWidth() const;
  float HandleHeight() const;

  Ref<Vector> mobjInVector, mobjOutVector;
  float msngTop = 0, msngLeft = 0;
  bool mblnVisible = false;
  bool mblnSelected = false;
  bool mblnDirty = false;
};

}  // namespace vantrel
