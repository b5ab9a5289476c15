#include "FullWorkflow.h"

#include "SampleWorkflow.h"

namespace vantrel::test {
namespace {

void FillNode(Node& pobjNode) {
  pobjNode.Description = "what it does";
  pobjNode.Tag = "tag";
  pobjNode.EnabledImageKey = "Lamp";
  pobjNode.DisabledImageKey = "Dark lamp";
  pobjNode.AssignSides(vntTop, 99);
  pobjNode.CaptionHeight = 195;
  pobjNode.CaptionWidth = 812.5F;
  pobjNode.CaptionOffsetLeft(-37.5F);
  pobjNode.CaptionOffsetTop(511);
}

void FillArc(Arc& pobjArc) {
  pobjArc.Guard("amount > 10");
  pobjArc.Weight("3");
  pobjArc.Description = "the way";
  pobjArc.Tag = "tag";
  pobjArc.HiddenTag = "way-1";
  pobjArc.StdPath = true;
  pobjArc.CaptionOffsetX(1);
  pobjArc.CaptionOffsetY(2);
  pobjArc.CaptionHeight(3);
  pobjArc.CaptionWidth(4);
  pobjArc.WeightOffsetX(5);
  pobjArc.WeightOffsetY(6);
  pobjArc.WeightHeight(7);
  pobjArc.WeightWidth(8);
}

void AddNote(Workflow& pobjWorkflow) {
  const auto note = pobjWorkflow.NewNotation();
  note->Caption = "two\nlines";
  note->Left(-5);
  note->Top(10);
  note->Width(2000);
  note->Height(500);
  note->Alignment = 2;
  note->Appearance = 1;
  note->BackColor = kWhite;
  note->BackStyle = 1;
  note->BorderStyle = 1;
  note->ForeColor = 0x0000FF;
  note->Font = "";
  note->Size = 12;
  note->Bold = note->Italics = note->Underline = note->Strikethrough = note->Protected = true;
  note->Tag = "tag";
}

}  // namespace

std::shared_ptr<PropertyRecord> Definition(const std::string& pstrName, const Variant& pvarValue) {
  auto record = std::make_shared<PropertyRecord>();
  record->Name = pstrName;
  record->Caption = "the " + pstrName;
  record->Type = vntPropertyChoice;
  record->Description = "one of them";
  record->Attributes = 5;
  record->ReadOnly = true;
  record->Value = pvarValue;
  record->AddOption("first", std::int32_t{1});
  record->AddOption("second", "2");
  return record;
}

std::shared_ptr<Workflow> FullWorkflow() {
  auto workflow = SmallWorkflow();
  const auto in = workflow->Places.First();
  const auto work = workflow->Transitions.First();
  FillNode(*in);
  in->SelectionType = vntSelectionTypeLIFO;
  in->TokenValue = 0.1F;
  const Variant values[] = {{}, Variant::Null, true, std::int16_t{7}, 7, 0.5F, 0.1, "text", "", Date::FromMilliseconds(-1234)};
  int number = 0;
  for (const Variant& value : values) in->TokenProperties->Add(Definition("property" + std::to_string(++number), value));
  FillNode(*work);
  work->TriggerType(vntTimed);
  work->OutputType(static_cast<OutputTypes>(-7));
  work->Action = "run";
  work->Duration = 0.1;
  work->DurationStdDev = 1e300;
  work->ComputationLevel = -3;
  work->ObjectClassName = "Class";
  work->ObjectName = "object";
  work->Roles = std::make_shared<PropertyCollection>();
  work->Roles->Add(Definition("clerk", 1));
  FillArc(*workflow->Arcs.First());
  AddNote(*workflow);
  workflow->CaseTracking = workflow->KeepHistory = workflow->ShowGuards = workflow->ShowWeights = workflow->LockControls = true;
  workflow->RunStyle = vntHidden;
  workflow->Tag = "tag";
  workflow->Status = -1;
  workflow->DivisionId = 9;
  workflow->DateEffective = Date::FromMilliseconds(123456789);
  return workflow;
}

}  // namespace vantrel::test
