#include "app/JsonWriter.h"
#include "app/show/Flags.h"
#include "app/show/StoredWorkflow.h"

namespace vantrel {

namespace {

void WriteKey(JsonWriter& pobjJson, const char* pstrName, const Node* pobjNode) {
  pobjJson.Key(pstrName);
  pobjNode ? pobjJson.Text(pobjNode->Key) : pobjJson.Null();
}

void WriteValue(JsonWriter& pobjJson, const Variant& pvarValue) {
  pvarValue.IsNull() || pvarValue.IsObject() ? pobjJson.Null() : pobjJson.Text(pvarValue.ToText());
}

void WriteHead(JsonWriter& pobjJson, const StoredWorkflow& pobjStored) {
  const Workflow& workflow = *pobjStored.Workflow;
  pobjJson.Key("id").Number(workflow.RecId).Key("guid").Text(TextOf(workflow.GUID));
  WriteKey(pobjJson, "start", workflow.StartPlace.get());
  WriteKey(pobjJson, "end", workflow.EndPlace().get());
  for (const Flag& flag : FlagsOf(workflow)) pobjJson.Key(flag.Name).Boolean(flag.IsOn);
  pobjJson.Key("run_style").Number(workflow.RunStyle);
  pobjJson.Key("stored").Open('{').Key("cases").Number(pobjStored.Run.Cases);
  pobjJson.Key("tokens").Number(pobjStored.Run.Tokens).Key("tokens_in_places").Number(pobjStored.Run.TokensInPlaces).Close('}');
}

void WriteNode(JsonWriter& pobjJson, const Node& pobjNode, std::int32_t plngId) {
  pobjJson.Key("key").Text(pobjNode.Key).Key("id").Number(plngId).Key("name").Text(pobjNode.Name());
  pobjJson.Key("caption").Text(pobjNode.Caption()).Key("description").Text(pobjNode.Description);
  pobjJson.Key("left").Decimal(pobjNode.Left()).Key("top").Decimal(pobjNode.Top());
  pobjJson.Key("input_position").Number(pobjNode.InputPosition()).Key("output_position").Number(pobjNode.OutputPosition());
  pobjJson.Key("caption_offset_left").Decimal(pobjNode.CaptionOffsetLeft()).Key("caption_offset_top").Decimal(pobjNode.CaptionOffsetTop());
  pobjJson.Key("caption_width").Decimal(pobjNode.CaptionWidth).Key("caption_height").Decimal(pobjNode.CaptionHeight);
  pobjJson.Key("enabled_image").Text(pobjNode.EnabledImageKey).Key("disabled_image").Text(pobjNode.DisabledImageKey);
}

void WriteDefinition(JsonWriter& pobjJson, const PropertyRecord& pobjRecord) {
  pobjJson.Open('{').Key("id").Number(pobjRecord.Id).Key("name").Text(pobjRecord.Name).Key("caption").Text(pobjRecord.Caption);
  pobjJson.Key("type").Number(pobjRecord.Type).Key("value");
  WriteValue(pobjJson, pobjRecord.Value);
  pobjJson.Key("description").Text(pobjRecord.Description).Key("attributes").Number(pobjRecord.Attributes).Key("options").Open('[');
  for (const auto& option : pobjRecord.Options) {
    pobjJson.Open('{').Key("prompt").Text(option->Prompt).Key("value");
    WriteValue(pobjJson, option->Value);
    pobjJson.Close('}');
  }
  pobjJson.Close(']').Close('}');
}

void WritePlace(JsonWriter& pobjJson, const Place& pobjPlace) {
  pobjJson.Open('{');
  WriteNode(pobjJson, pobjPlace, pobjPlace.RecId());
  pobjJson.Key("selection_type").Number(pobjPlace.SelectionType).Key("definitions").Open('[');
  if (const auto definitions = pobjPlace.TokenProperties) {
    for (const auto& definition : *definitions) WriteDefinition(pobjJson, *definition);
  }
  pobjJson.Close(']').Close('}');
}

void WriteTransition(JsonWriter& pobjJson, const Transition& pobjTransition) {
  pobjJson.Open('{');
  WriteNode(pobjJson, pobjTransition, pobjTransition.RecId);
  pobjJson.Key("trigger").Text(NameOfTrigger(pobjTransition.TriggerType())).Key("output").Text(NameOfOutput(pobjTransition.OutputType()));
  pobjJson.Key("action").Text(pobjTransition.Action).Key("duration").Decimal(pobjTransition.Duration);
  pobjJson.Key("duration_std_dev").Decimal(pobjTransition.DurationStdDev).Key("embeds");
  pobjTransition.SubflowId == 0 ? pobjJson.Null() : pobjJson.Number(pobjTransition.SubflowId);
  pobjJson.Key("object_class").Text(pobjTransition.ObjectClassName).Key("object_name").Text(pobjTransition.ObjectName).Close('}');
}

// The corners of the path: the first segment's start, then every segment's end.
void WritePath(JsonWriter& pobjJson, const Arc& pobjArc) {
  const auto point = [&](float psngX, float psngY) { pobjJson.Open('[').Decimal(psngX).Decimal(psngY).Close(']'); };
  pobjJson.Key("path").Open('[');
  bool first = true;
  for (const Vector* segment : pobjArc.Segments()) {
    if (first) point(segment->X1(), segment->Y1());
    first = false;
    point(segment->X2(), segment->Y2());
  }
  pobjJson.Close(']');
}

void WriteLabel(JsonWriter& pobjJson, const char* pstrName, float psngX, float psngY, float psngWidth, float psngHeight) {
  pobjJson.Key(pstrName).Open('{').Key("offset_x").Decimal(psngX).Key("offset_y").Decimal(psngY);
  pobjJson.Key("width").Decimal(psngWidth).Key("height").Decimal(psngHeight).Close('}');
}

void WriteArc(JsonWriter& pobjJson, const Arc& pobjArc) {
  const bool inward = pobjArc.ArcDirection == vntInArc;
  const Node* const place = pobjArc.Place.get();
  const Node* const transition = pobjArc.Transition.get();
  pobjJson.Open('{').Key("key").Text(pobjArc.Key).Key("id").Number(pobjArc.RecId);
  WriteKey(pobjJson, "from", inward ? place : transition);
  WriteKey(pobjJson, "to", inward ? transition : place);
  pobjJson.Key("description").Text(pobjArc.Description).Key("weight").Text(pobjArc.Weight()).Key("guard").Text(pobjArc.Guard());
  WriteLabel(pobjJson, "guard_label", pobjArc.CaptionOffsetX(), pobjArc.CaptionOffsetY(), pobjArc.CaptionWidth(), pobjArc.CaptionHeight());
  WriteLabel(pobjJson, "weight_label", pobjArc.WeightOffsetX(), pobjArc.WeightOffsetY(), pobjArc.WeightWidth(), pobjArc.WeightHeight());
  WritePath(pobjJson, pobjArc);
  pobjJson.Close('}');
}

void WriteNote(JsonWriter& pobjJson, const Notation& pobjNote) {
  pobjJson.Open('{').Key("key").Text(pobjNote.Key).Key("id").Number(pobjNote.RecId).Key("caption").Text(pobjNote.Caption);
  pobjJson.Key("tag").Text(pobjNote.Tag).Key("left").Number(pobjNote.Left()).Key("top").Number(pobjNote.Top());
  pobjJson.Key("width").Number(pobjNote.Width()).Key("height").Number(pobjNote.Height());
  pobjJson.Key("back_color").Number(pobjNote.BackColor).Key("fore_color").Number(pobjNote.ForeColor);
  pobjJson.Key("back_style").Number(pobjNote.BackStyle).Key("border_style").Number(pobjNote.BorderStyle);
  pobjJson.Key("alignment").Number(pobjNote.Alignment).Key("appearance").Number(pobjNote.Appearance);
  pobjJson.Key("font").Text(pobjNote.Font).Key("size").Number(pobjNote.Size);
  pobjJson.Key("bold").Boolean(pobjNote.Bold).Key("italics").Boolean(pobjNote.Italics);
  pobjJson.Key("underline").Boolean(pobjNote.Underline).Key("strikethrough").Boolean(pobjNote.Strikethrough);
  pobjJson.Key("protected").Boolean(pobjNote.Protected).Close('}');
}

template <class T>
void WriteAll(JsonWriter& pobjJson, const char* pstrName, const Collection<T>& pcolItems, void (*pWrite)(JsonWriter&, const T&)) {
  pobjJson.Key(pstrName).Open('[');
  for (const auto& item : pcolItems) pWrite(pobjJson, *item);
  pobjJson.Close(']');
}

}  // namespace

std::string StoredWorkflowJson(const StoredWorkflow& pobjStored) {
  const Workflow& workflow = *pobjStored.Workflow;
  JsonWriter json;
  json.Open('{');
  WriteHead(json, pobjStored);
  WriteAll(json, "places", workflow.Places, WritePlace);
  WriteAll(json, "transitions", workflow.Transitions, WriteTransition);
  WriteAll(json, "arcs", workflow.Arcs, WriteArc);
  WriteAll(json, "notes", workflow.Notations, WriteNote);
  json.Close('}');
  return json.Written();
}

}  // namespace vantrel
