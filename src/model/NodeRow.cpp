#include "database/Recordset.h"
#include "model/Node.h"

namespace vantrel {

void Node::AssignLook(const Recordset& pobjRow) {
  mTop = pobjRow.Fields("CtlTop").Value.ToSingle();
  mLeft = pobjRow.Fields("CtlLeft").Value.ToSingle();
  mInputPosition = pobjRow.Fields("InputPosition").Value.ToInt16();
  mOutputPosition = pobjRow.Fields("OutputPosition").Value.ToInt16();
  mCaptionOffsetTop = pobjRow.Fields("CaptionOffsetTop").Value.ToSingle();
  mCaptionOffsetLeft = pobjRow.Fields("CaptionOffsetLeft").Value.ToSingle();
  const Variant& height = pobjRow.Fields("CaptionHeight").Value;
  if (!height.IsNull()) {
    CaptionHeight = height.ToSingle();
    CaptionWidth = pobjRow.Fields("CaptionWidth").Value.ToSingle();
  }
  EnabledImageKey = pobjRow.Fields("EnabledImageKey").Value.ToText();
  DisabledImageKey = pobjRow.Fields("DisabledImageKey").Value.ToText();
}

}  // namespace vantrel
