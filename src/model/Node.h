// What places and transitions have in common: the two kinds of objects that arcs join.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "chart/Image.h"
#include "chart/Label.h"
#include "model/ChartObject.h"
#include "model/Enumerations.h"
#include "model/Forward.h"
#include "util/Collection.h"
#include "util/Ref.h"

namespace vantrel {

class Recordset;

/// An object of the net with a picture, a caption and two connectors. Owned by its workflow's collection; its chart
/// elements belong to the chart. Positions and sizes are twips.
class Node : public ChartObject {
 public:
  Ref<vantrel::Workflow> Workflow;                ///< owning workflow, null once it is gone
  Collection<Arc> InArcs, OutArcs;                ///< arcs into and out of this object, keyed by Arc::Key
  Ref<vantrel::Image> Image;                      ///< the object's picture on the chart
  std::string EnabledImageKey, DisabledImageKey;  ///< keys of its pictures in the image list
  std::string Tag, HiddenTag;                     ///< free for the host
  std::string Description;
  Ref<Label> CaptionLabel;
  Ref<vantrel::Image> InConnector, OutConnector;
  float CaptionHeight = 0, CaptionWidth = 0;  ///< of the caption label after the last change of the caption

  std::string NameText() const override { return mName; }
  const std::string& Name() const { return mName; }
  /// Stores a name that is known to be free. For code that builds a whole workflow and checks its names itself.
  void AssignName(const std::string& pstrName) { mName = pstrName; }

  /// Setting either marks dirty and redraws, even if unchanged.
  float Top() const { return mTop; }
  void Top(float psngTop);
  float Left() const { return mLeft; }
  void Left(float psngLeft);
  /// Sets both and redraws once.
  void MoveTo(float psngLeft, float psngTop) override;
  std::optional<Rect> Bounds() const override;

  /// Sides of the connectors (ConnectorPosition). Setting one also makes it the side of new objects, and redraws.
  std::int16_t InputPosition() const { return mInputPosition; }
  virtual void InputPosition(std::int16_t pintPosition);
  std::int16_t OutputPosition() const { return mOutputPosition; }
  void OutputPosition(std::int16_t pintPosition);
  /// Stores both without making them the sides of new objects and without redrawing.
  void AssignSides(std::int16_t pintInput, std::int16_t pintOutput);

  /// Setting it fits the label to the text, records its size and marks dirty.
  const std::string& Caption() const { return mCaption; }
  void Caption(const std::string& pstrCaption);
  /// Of the caption label from the object's top-left corner. Setting marks dirty but does not redraw.
  float CaptionOffsetTop() const { return mCaptionOffsetTop; }
  void CaptionOffsetTop(float psngOffset);
  float CaptionOffsetLeft() const { return mCaptionOffsetLeft; }
  void CaptionOffsetLeft(float psngOffset);

  bool Visible() const { return mVisible; }
  virtual void Visible(bool pblnOn) = 0;

  /// Shows a border round the image.
  bool Selected() const override { return mSelected; }
  void Selected(bool pblnOn) override;

  /// Moves the chart elements and the arcs to where the object's fields put them.
  virtual void Draw() = 0;

 protected:
  /// Takes workflow, position and connector sides from the designer state.
  Node(const char* pstrEnabledImageKey, const char* pstrDisabledImageKey);
  /// An object of that workflow: position and sides are those of the control that shows it, the usual ones when none does.
  Node(const char* pstrEnabledImageKey, const char* pstrDisabledImageKey, vantrel::Workflow& pobjWorkflow);

  virtual void MarkDirty() = 0;
  /// Marks the owning workflow dirty, if there is one.
  void MarkWorkflowDirty() const;
  /// Stores name, caption or a connector side directly in the field. False for any other setting.
  bool StoreField(const std::string& pstrPropName, const Variant& pvarValue);
  /// Stores caption, description, a connector side or the tag as their setters do. False for any other setting.
  bool StoreSetting(const std::string& pstrPropName, const Variant& pvarValue);
  /// Shows or hides the image and the caption; hides connectors when hiding, and never shows them.
  void ShowElements(bool pblnOn);
  void DrawImage(bool pblnEnabled);
  void DrawCaption();
  /// `psngLeftOutset` is what an output connector on the left side is moved to the right.
  void DrawConnectors(float psngLeftOutset);
  void DrawArcs();
  /// Copies position, connector sides, caption box and picture keys of the current row directly into the fields.
  void AssignLook(const Recordset& pobjRow);
  /// Copies what the clones of both kinds share: caption, its size and offsets, image keys, position and tag.
  void CopyLook(const Node& pobjFrom);

  std::string mName;
  std::string mCaption;
  std::int16_t mInputPosition, mOutputPosition;
  bool mVisible = false;

 private:
  float mTop, mLeft;
  float mCaptionOffsetTop = -200, mCaptionOffsetLeft = 0;
  bool mSelected = false;
};

}  // namespace vantrel
