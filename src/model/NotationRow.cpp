#include "database/Recordset.h"
#include "model/Notation.h"
#include "model/RowText.h"

namespace vantrel {

void Notation::AssignValues(const Recordset& pobjRow) {
  RecId = pobjRow.Fields("Id").Value.ToInt32();
  Alignment = pobjRow.Fields("Alignment").Value.ToInt16();
  Appearance = pobjRow.Fields("Appearance").Value.ToInt16();
  BackColor = pobjRow.Fields("BackColor").Value.ToInt32();
  BackStyle = pobjRow.Fields("BackStyle").Value.ToInt16();
  BorderStyle = pobjRow.Fields("BorderStyle").Value.ToInt16();
  ForeColor = pobjRow.Fields("ForeColor").Value.ToInt32();
  Font = pobjRow.Fields("Font").Value.ToText();
  Size = pobjRow.Fields("Size").Value.ToInt32();
  Underline = pobjRow.Fields("Underline").Value.ToBoolean();
  Strikethrough = pobjRow.Fields("Strikethrough").Value.ToBoolean();
  Bold = pobjRow.Fields("Bold").Value.ToBoolean();
  Italics = pobjRow.Fields("Italics").Value.ToBoolean();
  Caption = TextOrNone(pobjRow.Fields("Caption").Value);
  Tag = pobjRow.Fields("Tag").Value.ToText();
  mlngTop = pobjRow.Fields("Top").Value.ToInt32();
  mlngLeft = pobjRow.Fields("Left").Value.ToInt32();
  mlngHeight = pobjRow.Fields("Height").Value.ToInt32();
  mlngWidth = pobjRow.Fields("Width").Value.ToInt32();
}

}  // namespace vantrel
