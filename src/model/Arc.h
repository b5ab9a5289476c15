// An arc between a place and a transition.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "chart/Label.h"
#include "model/ChartObject.h"
#include "model/Enumerations.h"
#include "model/Forward.h"
#include "model/PlaceOfArc.h"
#include "model/SharedCollection.h"
#include "util/Collection.h"
#include "util/Ref.h"

namespace vantrel {

class Recordset;

/// Joins one place and one transition; carries a weight (shown, not used by the game) and a guard (the label that users
/// choose among when a vntSelect transition fires). Drawn as a chain of segments (Vector) joined at bend points (Elbow),
/// which the workflow owns; the arc finds its own without looking through the workflow. Twips throughout.
class Arc final : public ChartObject {
 public:
  Arc() = default;
  /// Takes its labels off the chart.
  ~Arc() override;

  Ref<vantrel::Workflow> Workflow;
  std::string Description;
  std::string Tag, HiddenTag;  ///< free for the host
  Ref<Label> CaptionLabel;     ///< shows the guard in square brackets
  Ref<Label> WeightLabel;
  bool StdPath = false;  ///< stored only
  Ref<vantrel::Transition> Transition;
  PlaceOfArc Place{*this};
  ArcDirectionConstant ArcDirection = static_cast<ArcDirectionConstant>(0);  ///< 0 until set
  std::int32_t RecId = 0;
  bool Dirty = false;

  std::string Class() const override { return "VNTR.Arc.1"; }
  ChartKind Kind() const override { return ChartKind::Arc; }
  std::string NameText() const override { return Name(); }
  /// "source->target", with the names of its ends; the key while an end is missing.
  std::string Name() const;

  bool Visible() const { return mblnVisible; }
  /// Shows or hides segments and labels; bend points stay as they are.
  void Visible(bool pblnOn);
  bool Selected() const override { return mblnSelected; }
  /// True draws thick segments with their bend points, false thin ones without.
  void Selected(bool pblnOn) override;
  /// Draws the arc as if it were selected, or as usual again.
  void Setfocus() { ShowFocus(true); }
  void RemoveFocus() { ShowFocus(false); }

  const std::string& Weight() const { return mstrWeight; }
  /// Stores and shows the text; the control then has no current element.
  void Weight(const std::string& pstrWeight);
  /// Stores the text alone, for an arc that is on no chart yet.
  void AssignWeight(const std::string& pstrWeight) { mstrWeight = pstrWeight; }
  const std::string& Guard() const { return mstrGuard; }
  void Guard(const std::string& pstrGuard);

  /// From the middle of the first segment to the middle of the label.
  float CaptionOffsetX() const { return msngCaptionOffsetX; }
  void CaptionOffsetX(float psngOffset);
  float CaptionOffsetY() const { return msngCaptionOffsetY; }
  void CaptionOffsetY(float psngOffset);
  float WeightOffsetX() const { return msngWeightOffsetX; }
  void WeightOffsetX(float psngOffset);
  float WeightOffsetY() const { return msngWeightOffsetY; }
  void WeightOffsetY(float psngOffset);
  float CaptionHeight() const { return msngCaptionHeight; }
  void CaptionHeight(float psngHeight);
  float CaptionWidth() const { return msngCaptionWidth; }
  void CaptionWidth(float psngWidth);
  float WeightHeight() const { return msngWeightHeight; }
  void WeightHeight(float psngHeight);
  float WeightWidth() const { return msngWeightWidth; }
  void WeightWidth(float psngWidth);

  /// A new collection of the segments that the workflow has, by their keys, in its order; null without a workflow.
  [[nodiscard]] SharedCollection<Collection<Vector>> Vectors() const;
  /// A new collection of the bend points that the shown workflow has (the arc's own while none is shown), keyed by their
  /// keys, in its order; empty for a straight arc.
  [[nodiscard]] SharedCollection<Collection<Elbow>> Elbows() const;
  /// The same as plain pointers, from the arc's own workflow. Valid until an object is removed from it.
  std::vector<Vector*> Segments() const;
  std::vector<Elbow*> BendPoints() const;

  /// The path as points from source to target. For an arc that left its workflow, or whose workflow is gone, the last path if it was bent.
  /// Where stored segments do not meet, the end of the first one counts.
  std::vector<Point> Path() const;
  /// Replaces the path: makes and removes segments and bend points as needed, links them, marks the arc dirty and draws it. An
  /// arc on a chart keeps its look. Error 5 for fewer than two points, Error 91 without a workflow.
  void Path(const std::vector<Point>& pcolPoints);
  /// Remembers a bent path for Path. Call it before the arc leaves its workflow or the workflow dies.
  void KeepPath();
  /// Adds a segment without links to the workflow's Vectors: for readers of stored segments. Error 91 without a workflow.
  std::shared_ptr<Vector> AddSegment();
  /// Links the segments into one chain and gives each joint without a bend point one that has no handle. Returns the chain, from source to
  /// target. Valid until an object is removed from the workflow.
  std::vector<Vector*> LinkSegments();

  /// Moves path, bend points and labels to where ends and offsets put them. Does nothing while invisible. Skips what is missing.
  void Draw();

  /// Splits a segment of this arc in the middle and returns the new second half, which the workflow owns. Error 91 without
  /// a workflow or for null, Error 5 for a segment of another arc.
  std::shared_ptr<Vector> InsertVector(const std::shared_ptr<Vector>& pobjVector);
  /// Removes a segment, but not an arc's only one, and joins its neighbours. Error 91 for null, Error 5 when the workflow does
  /// not have it or another arc does.
  void RemoveVector(const std::shared_ptr<Vector>& pobjVector);

  /// Adds to a workflow an arc of the same direction, labels and path between two other objects, moved by as much as the place is. Its
  /// segments are linked and have bend points where this arc has them, but no lines or labels. The caller adds it to the ends' InArcs
  /// and OutArcs. Error 91 for null.
  std::shared_ptr<Arc> Clone(const std::shared_ptr<vantrel::Workflow>& pobjWorkflow, const std::shared_ptr<vantrel::Place>& pobjPlace,
                             const std::shared_ptr<vantrel::Transition>& pobjTransition) const;

  /// Copies the current row of the Arc table, without StdPath. The caller sets place and transition. Throws Error for columns that cannot
  /// be read.
  void AssignValues(const Recordset& pobjRow);

  SharedProperties GetProperties() override;
  /// Leaves the arc clean.
  void SetProperties(const std::shared_ptr<PropertyCollection>& pcolProperties) override;
  /// Refuses "Name", which follows from the ends: changes nothing, not even the dirty mark.
  void SetProperty(const std::string& pstrPropName, const Variant& pvarValue) override;

 private:
  friend class SingleDrawing;
  friend class Vector;

  void ShowFocus(bool pblnOn);
  void RequireSegment(const Vector* pobjVector) const;
  void RemoveSegment(Vector& pobjVector);
  void GiveElements(const std::vector<Vector*>& pcolChain) const;
  void CopySettings(const Arc& pobjFrom);
  void Store(const std::string& pstrPropName, const Variant& pvarValue);
  void MarkWorkflowDirty() const;

  std::vector<Vector*> mcolSegments;  // every living segment whose Arc is this one, in no order
  std::vector<Point> mcolLastPath;
  std::string mstrWeight = "1";
  std::string mstrGuard;
  float msngCaptionOffsetX = 0, msngCaptionOffsetY = -200;
  float msngWeightOffsetX = 0, msngWeightOffsetY = 200;
  float msngCaptionHeight = 0, msngCaptionWidth = 0;
  float msngWeightHeight = 0, msngWeightWidth = 0;
  std::size_t mlngTurn = 0;  // in a SingleDrawing
  bool mblnVisible = false;
  bool mblnSelected = false;
};

}  // namespace vantrel
