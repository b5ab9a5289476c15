#include "app/show/StoredWorkflow.h"

#include <ostream>

#include "app/Lines.h"
#include "app/show/Columns.h"
#include "app/show/Flags.h"
#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

std::string NameOf(const Ref<Place>& pobjPlace) { return pobjPlace ? QuotedForMessage(pobjPlace->Name()) : "none"; }

std::string EmbeddedIn(const Transition& pobjTransition) {
  return pobjTransition.SubflowId == 0 ? "-" : std::to_string(pobjTransition.SubflowId);
}

void WriteHead(std::ostream& pobjOut, const StoredWorkflow& pobjStored) {
  const Workflow& workflow = *pobjStored.Workflow;
  pobjOut << "Workflow " << workflow.RecId << "  " << OnOneLine(TextOf(workflow.GUID)) << "\nStart    " << NameOf(workflow.StartPlace)
          << "\nEnd      " << NameOf(workflow.EndPlace()) << "\nFlags    ";
  std::string flags;
  for (const Flag& flag : FlagsOf(workflow)) {
    if (flag.IsOn) flags += (flags.empty() ? "" : ", ") + std::string(flag.Name);
  }
  pobjOut << (flags.empty() ? "none" : flags) << "\nStored   " << pobjStored.Run.Cases << " cases, " << pobjStored.Run.TokensInPlaces
          << " tokens in places, " << pobjStored.Run.Tokens - pobjStored.Run.TokensInPlaces << " consumed\n";
}

void WritePlaces(std::ostream& pobjOut, const Workflow& pobjWorkflow) {
  Columns columns({"Key", "Name", "Caption", "Definitions"});
  for (const auto& place : pobjWorkflow.Places) {
    const auto& definitions = place->TokenProperties;
    columns.Add({place->Key, QuotedForMessage(place->Name()), QuotedForMessage(place->Caption()),
                 std::to_string(definitions ? definitions->Count() : 0)});
  }
  pobjOut << "\nPlaces\n";
  columns.Write(pobjOut, "  ");
}

void WriteTransitions(std::ostream& pobjOut, const Workflow& pobjWorkflow) {
  Columns columns({"Key", "Name", "Caption", "Trigger", "Output", "Embeds"});
  for (const auto& transition : pobjWorkflow.Transitions) {
    columns.Add({transition->Key, QuotedForMessage(transition->Name()), QuotedForMessage(transition->Caption()),
                 NameOfTrigger(transition->TriggerType()), NameOfOutput(transition->OutputType()), EmbeddedIn(*transition)});
  }
  pobjOut << "\nTransitions\n";
  columns.Write(pobjOut, "  ");
}

void WriteArcs(std::ostream& pobjOut, const Workflow& pobjWorkflow) {
  Columns columns({"Key", "From and to", "Weight", "Guard", "Bends"});
  for (const auto& arc : pobjWorkflow.Arcs) {
    const std::size_t segments = arc->Segments().size();
    columns.Add({arc->Key, arc->Name(), arc->Weight(), arc->Guard().empty() ? "-" : QuotedForMessage(arc->Guard()),
                 std::to_string(segments == 0 ? 0 : segments - 1)});
  }
  pobjOut << "\nArcs\n";
  columns.Write(pobjOut, "  ");
}

void WriteNotes(std::ostream& pobjOut, const Workflow& pobjWorkflow) {
  pobjOut << "\nNotes\n";
  for (const auto& note : pobjWorkflow.Notations) pobjOut << "  " << note->Key << "  " << QuotedForMessage(note->Caption) << '\n';
}

}  // namespace

void WriteStoredWorkflow(std::ostream& pobjOut, const StoredWorkflow& pobjStored) {
  const Workflow& workflow = *pobjStored.Workflow;
  WriteHead(pobjOut, pobjStored);
  if (!workflow.Places.IsEmpty()) WritePlaces(pobjOut, workflow);
  if (!workflow.Transitions.IsEmpty()) WriteTransitions(pobjOut, workflow);
  if (!workflow.Arcs.IsEmpty()) WriteArcs(pobjOut, workflow);
  if (!workflow.Notations.IsEmpty()) WriteNotes(pobjOut, workflow);
}

}  // namespace vantrel
