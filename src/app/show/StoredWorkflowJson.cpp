#include <nlohmann/json.hpp>

#include "app/Json.h"
#include "app/show/Flags.h"
#include "app/show/StoredWorkflow.h"

namespace vantrel {

namespace {

using nlohmann::ordered_json;

ordered_json NodeKey(const Node* pobjNode) { return pobjNode ? ordered_json(pobjNode->Key) : nullptr; }

ordered_json ValueJson(const Variant& pvarValue) {
  return pvarValue.IsNull() || pvarValue.IsObject() ? nullptr : ordered_json(pvarValue.ToText());
}

ordered_json HeadJson(const StoredWorkflow& pobjStored) {
  const Workflow& workflow = *pobjStored.Workflow;
  ordered_json head{{"id", workflow.RecId},
                    {"guid", TextOf(workflow.GUID)},
                    {"start", NodeKey(workflow.StartPlace.get())},
                    {"end", NodeKey(workflow.EndPlace().get())}};
  for (const Flag& flag : FlagsOf(workflow)) head[flag.Name] = flag.IsOn;
  head["run_style"] = workflow.RunStyle;
  head["stored"] = {
      {"cases", pobjStored.Run.Cases}, {"tokens", pobjStored.Run.Tokens}, {"tokens_in_places", pobjStored.Run.TokensInPlaces}};
  return head;
}

ordered_json NodeJson(const Node& pobjNode, std::int32_t plngId) {
  return {{"key", pobjNode.Key},
          {"id", plngId},
          {"name", pobjNode.Name()},
          {"caption", pobjNode.Caption()},
          {"description", pobjNode.Description},
          {"left", Decimal(pobjNode.Left())},
          {"top", Decimal(pobjNode.Top())},
          {"input_position", pobjNode.InputPosition()},
          {"output_position", pobjNode.OutputPosition()},
          {"caption_offset_left", Decimal(pobjNode.CaptionOffsetLeft())},
          {"caption_offset_top", Decimal(pobjNode.CaptionOffsetTop())},
          {"caption_width", Decimal(pobjNode.CaptionWidth)},
          {"caption_height", Decimal(pobjNode.CaptionHeight)},
          {"enabled_image", pobjNode.EnabledImageKey},
          {"disabled_image", pobjNode.DisabledImageKey}};
}

ordered_json DefinitionJson(const PropertyRecord& pobjRecord) {
  auto options = ordered_json::array();
  for (const auto& option : pobjRecord.Options) options.push_back({{"prompt", option->Prompt}, {"value", ValueJson(option->Value)}});
  return {{"id", pobjRecord.Id},
          {"name", pobjRecord.Name},
          {"caption", pobjRecord.Caption},
          {"type", pobjRecord.Type},
          {"value", ValueJson(pobjRecord.Value)},
          {"description", pobjRecord.Description},
          {"attributes", pobjRecord.Attributes},
          {"options", std::move(options)}};
}

ordered_json PlaceJson(const Place& pobjPlace) {
  auto definitions = ordered_json::array();
  if (const auto records = pobjPlace.TokenProperties) {
    for (const auto& record : *records) definitions.push_back(DefinitionJson(*record));
  }
  auto json = NodeJson(pobjPlace, pobjPlace.RecId());
  json["selection_type"] = pobjPlace.SelectionType;
  json["definitions"] = std::move(definitions);
  return json;
}

ordered_json TransitionJson(const Transition& pobjTransition) {
  auto json = NodeJson(pobjTransition, pobjTransition.RecId);
  json["trigger"] = NameOfTrigger(pobjTransition.TriggerType());
  json["output"] = NameOfOutput(pobjTransition.OutputType());
  json["action"] = pobjTransition.Action;
  json["duration"] = Decimal(pobjTransition.Duration);
  json["duration_std_dev"] = Decimal(pobjTransition.DurationStdDev);
  json["embeds"] = pobjTransition.SubflowId == 0 ? nullptr : ordered_json(pobjTransition.SubflowId);
  json["object_class"] = pobjTransition.ObjectClassName;
  json["object_name"] = pobjTransition.ObjectName;
  return json;
}

// The corners of the path: the first segment's start, then every segment's end.
ordered_json PathJson(const Arc& pobjArc) {
  auto path = ordered_json::array();
  const auto add = [&](float psngX, float psngY) { path.push_back(ordered_json::array({Decimal(psngX), Decimal(psngY)})); };
  for (const Vector* segment : pobjArc.Segments()) {
    if (path.empty()) add(segment->X1(), segment->Y1());
    add(segment->X2(), segment->Y2());
  }
  return path;
}

ordered_json LabelJson(float psngX, float psngY, float psngWidth, float psngHeight) {
  return {{"offset_x", Decimal(psngX)}, {"offset_y", Decimal(psngY)}, {"width", Decimal(psngWidth)}, {"height", Decimal(psngHeight)}};
}

ordered_json ArcJson(const Arc& pobjArc) {
  const bool inward = pobjArc.ArcDirection == vntInArc;
  const Node* const place = pobjArc.Place.get();
  const Node* const transition = pobjArc.Transition.get();
  return {{"key", pobjArc.Key},
          {"id", pobjArc.RecId},
          {"from", NodeKey(inward ? place : transition)},
          {"to", NodeKey(inward ? transition : place)},
          {"description", pobjArc.Description},
          {"weight", pobjArc.Weight()},
          {"guard", pobjArc.Guard()},
          {"guard_label", LabelJson(pobjArc.CaptionOffsetX(), pobjArc.CaptionOffsetY(), pobjArc.CaptionWidth(), pobjArc.CaptionHeight())},
          {"weight_label", LabelJson(pobjArc.WeightOffsetX(), pobjArc.WeightOffsetY(), pobjArc.WeightWidth(), pobjArc.WeightHeight())},
          {"path", PathJson(pobjArc)}};
}

ordered_json NoteJson(const Notation& pobjNote) {
  return {{"key", pobjNote.Key},
          {"id", pobjNote.RecId},
          {"caption", pobjNote.Caption},
          {"tag", pobjNote.Tag},
          {"left", pobjNote.Left()},
          {"top", pobjNote.Top()},
          {"width", pobjNote.Width()},
          {"height", pobjNote.Height()},
          {"back_color", pobjNote.BackColor},
          {"fore_color", pobjNote.ForeColor},
          {"back_style", pobjNote.BackStyle},
          {"border_style", pobjNote.BorderStyle},
          {"alignment", pobjNote.Alignment},
          {"appearance", pobjNote.Appearance},
          {"font", pobjNote.Font},
          {"size", pobjNote.Size},
          {"bold", pobjNote.Bold},
          {"italics", pobjNote.Italics},
          {"underline", pobjNote.Underline},
          {"strikethrough", pobjNote.Strikethrough},
          {"protected", pobjNote.Protected}};
}

template <class T>
ordered_json AllOf(const Collection<T>& pcolItems, ordered_json (*pJsonOf)(const T&)) {
  auto all = ordered_json::array();
  for (const auto& item : pcolItems) all.push_back(pJsonOf(*item));
  return all;
}

}  // namespace

std::string StoredWorkflowJson(const StoredWorkflow& pobjStored) {
  const Workflow& workflow = *pobjStored.Workflow;
  auto json = HeadJson(pobjStored);
  json["places"] = AllOf(workflow.Places, PlaceJson);
  json["transitions"] = AllOf(workflow.Transitions, TransitionJson);
  json["arcs"] = AllOf(workflow.Arcs, ArcJson);
  json["notes"] = AllOf(workflow.Notations, NoteJson);
  return OneLine(json);
}

}  // namespace vantrel
