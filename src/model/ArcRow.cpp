#include "database/Recordset.h"
#include "model/Arc.h"
#include "model/RowText.h"

namespace vantrel {

void Arc::AssignValues(const Recordset& pobjRow) {
  RecId = pobjRow.Fields("Id").Value.ToInt32();
  ArcDirection = static_cast<ArcDirectionConstant>(pobjRow.Fields("ArcDirection").Value.ToInt32());
  Guard(pobjRow.Fields("Guard").Value.ToText());
  Description = TextOrNone(pobjRow.Fields("Description").Value);
  Weight(pobjRow.Fields("Weight").Value.ToText());
  msngCaptionOffsetX = pobjRow.Fields("CaptionOffsetX").Value.ToSingle();
  msngCaptionOffsetY = pobjRow.Fields("CaptionOffsetY").Value.ToSingle();
  CaptionHeight(pobjRow.Fields("CaptionHeight").Value.ToSingle());
  CaptionWidth(pobjRow.Fields("CaptionWidth").Value.ToSingle());
  msngWeightOffsetX = pobjRow.Fields("WeightOffsetX").Value.ToSingle();
  msngWeightOffsetY = pobjRow.Fields("WeightOffsetY").Value.ToSingle();
  WeightHeight(pobjRow.Fields("WeightHeight").Value.ToSingle());
  WeightWidth(pobjRow.Fields("WeightWidth").Value.ToSingle());
}

}  // namespace vantrel
