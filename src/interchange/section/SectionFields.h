// The fields of a section of Vantrel: one list writes them (SectionWriter) and reads them (SectionReader).
#pragma once

#include <cstdint>

#include "model/Arc.h"
#include "model/Notation.h"
#include "model/PropertyRecord.h"
#include "model/Workflow.h"

namespace vantrel {

// Files name these fields, so a name never changes. Objects are const when writing.

template <class Archive, class N>
void NodeFields(Archive& pArchive, N& pobjNode, const Node& pobjFresh) {
  pArchive.Field("description", pobjNode.Description, {});
  pArchive.Field("tag", pobjNode.Tag, {});
  pArchive.Field("enabledImageKey", pobjNode.EnabledImageKey, pobjFresh.EnabledImageKey);
  pArchive.Field("disabledImageKey", pobjNode.DisabledImageKey, pobjFresh.DisabledImageKey);
  pArchive.Field("captionHeight", pobjNode.CaptionHeight, 0);
  pArchive.Field("captionWidth", pobjNode.CaptionWidth, 0);
  pArchive.Property("inputPosition", pobjNode.InputPosition(), vntLeft,
                    [&](auto side) { pobjNode.AssignSides(side, pobjNode.OutputPosition()); });
  pArchive.Property("outputPosition", pobjNode.OutputPosition(), vntRight,
                    [&](auto side) { pobjNode.AssignSides(pobjNode.InputPosition(), side); });
}

template <class Archive, class P>
void PlaceFields(Archive& pArchive, P& pobjPlace) {
  pArchive.Field("selectionType", pobjPlace.SelectionType, vntSelectionTypeFIFO);
  pArchive.Field("tokenValue", pobjPlace.TokenValue, 0);
}

template <class Archive, class T>
void TransitionFields(Archive& pArchive, T& pobjTransition) {
  pArchive.Property("triggerType", pobjTransition.TriggerType(), vntUser, [&](auto type) { pobjTransition.TriggerType(type); });
  pArchive.Property("outputType", pobjTransition.OutputType(), vntBroadcast, [&](auto type) { pobjTransition.OutputType(type); });
  pArchive.Field("action", pobjTransition.Action, {});
  pArchive.Field("duration", pobjTransition.Duration, 0);
  pArchive.Field("durationStdDev", pobjTransition.DurationStdDev, 0);
  pArchive.Field("computationLevel", pobjTransition.ComputationLevel, 0);
  pArchive.Field("objectClassName", pobjTransition.ObjectClassName, {});
  pArchive.Field("objectName", pobjTransition.ObjectName, {});
}

template <class Archive, class A>
void ArcFields(Archive& pArchive, A& pobjArc) {
  const auto property = [&](const char* pstrName, float psngValue, float psngUsual, auto pSet) {
    pArchive.Property(pstrName, psngValue, psngUsual, pSet);
  };
  pArchive.Field("description", pobjArc.Description, {});
  pArchive.Field("tag", pobjArc.Tag, {});
  pArchive.Field("stdPath", pobjArc.StdPath, false);
  pArchive.Property("guard", pobjArc.Guard(), {}, [&](const auto& guard) { pobjArc.Guard(guard); });
  property("captionOffsetX", pobjArc.CaptionOffsetX(), 0, [&](auto twips) { pobjArc.CaptionOffsetX(twips); });
  property("captionOffsetY", pobjArc.CaptionOffsetY(), -200, [&](auto twips) { pobjArc.CaptionOffsetY(twips); });
  property("captionHeight", pobjArc.CaptionHeight(), 0, [&](auto twips) { pobjArc.CaptionHeight(twips); });
  property("captionWidth", pobjArc.CaptionWidth(), 0, [&](auto twips) { pobjArc.CaptionWidth(twips); });
  property("weightOffsetX", pobjArc.WeightOffsetX(), 0, [&](auto twips) { pobjArc.WeightOffsetX(twips); });
  property("weightOffsetY", pobjArc.WeightOffsetY(), 200, [&](auto twips) { pobjArc.WeightOffsetY(twips); });
  property("weightHeight", pobjArc.WeightHeight(), 0, [&](auto twips) { pobjArc.WeightHeight(twips); });
  property("weightWidth", pobjArc.WeightWidth(), 0, [&](auto twips) { pobjArc.WeightWidth(twips); });
}

template <class Archive, class N>
void NoteFields(Archive& pArchive, N& pobjNote) {
  pArchive.Field("caption", pobjNote.Caption, {});
  pArchive.Property("left", pobjNote.Left(), 0, [&](auto twips) { pobjNote.Left(twips); });
  pArchive.Property("top", pobjNote.Top(), 0, [&](auto twips) { pobjNote.Top(twips); });
  pArchive.Property("width", pobjNote.Width(), 0, [&](auto twips) { pobjNote.Width(twips); });
  pArchive.Property("height", pobjNote.Height(), 0, [&](auto twips) { pobjNote.Height(twips); });
  pArchive.Field("alignment", pobjNote.Alignment, 0);
  pArchive.Field("appearance", pobjNote.Appearance, 0);
  pArchive.Field("backColor", pobjNote.BackColor, kBlack);
  pArchive.Field("backStyle", pobjNote.BackStyle, 0);
  pArchive.Field("borderStyle", pobjNote.BorderStyle, 0);
  pArchive.Field("foreColor", pobjNote.ForeColor, kBlack);
  pArchive.Field("font", pobjNote.Font, "Arial");
  pArchive.Field("size", pobjNote.Size, 0);
  pArchive.Field("bold", pobjNote.Bold, false);
  pArchive.Field("italics", pobjNote.Italics, false);
  pArchive.Field("underline", pobjNote.Underline, false);
  pArchive.Field("strikethrough", pobjNote.Strikethrough, false);
  pArchive.Field("protected", pobjNote.Protected, false);
  pArchive.Field("tag", pobjNote.Tag, {});
}

template <class Archive, class W>
void WorkflowFields(Archive& pArchive, W& pobjWorkflow) {
  pArchive.Field("caseTracking", pobjWorkflow.CaseTracking, false);
  pArchive.Field("keepHistory", pobjWorkflow.KeepHistory, false);
  pArchive.Field("showGuards", pobjWorkflow.ShowGuards, false);
  pArchive.Field("showWeights", pobjWorkflow.ShowWeights, false);
  pArchive.Field("runStyle", pobjWorkflow.RunStyle, vntSilent);
  pArchive.Field("lockControls", pobjWorkflow.LockControls, false);
  pArchive.Property("backColor", pobjWorkflow.ChartColor.value_or(kWhite), kWhite, [&](auto color) { pobjWorkflow.ChartColor = color; });
  pArchive.Field("tag", pobjWorkflow.Tag, {});
  pArchive.Field("divisionId", pobjWorkflow.DivisionId, 0);
  pArchive.Field("status", pobjWorkflow.Status, 0);
  pArchive.Field("dateEffective", pobjWorkflow.DateEffective, {});
}

/// Without the record's value and options, see SectionRecords.
template <class Archive, class R>
void RecordFields(Archive& pArchive, R& pobjRecord) {
  pArchive.Field("name", pobjRecord.Name, {});
  pArchive.Field("caption", pobjRecord.Caption, {});
  pArchive.Field("type", pobjRecord.Type, vntPropertyText);
  pArchive.Field("description", pobjRecord.Description, {});
  pArchive.Field("attributes", pobjRecord.Attributes, 0);
  pArchive.Field("readOnly", pobjRecord.ReadOnly, false);
}

}  // namespace vantrel
