#include "persistence/WorkflowReading.h"

#include "util/Lookup.h"

namespace vantrel {

namespace {

template <class T>
std::shared_ptr<T> At(const std::unordered_map<std::int32_t, std::shared_ptr<T>>& pcolItems, std::int32_t plngId) {
  const auto found = pcolItems.find(plngId);
  return found == pcolItems.end() ? nullptr : found->second;
}

}  // namespace

template <class Step>
void WorkflowReading::Try(Step&& pStep) {
  try {
    pStep();
  } catch (const Error&) {
    if (mobjAccess.IsTransactionLost()) throw;  // everything after this would fail as well
  }
}

bool WorkflowReading::Run(std::int32_t plngRecId) {
  SqlText sql;
  sql << "SELECT * FROM Workflow WHERE Id = " << plngRecId;
  const auto row = mobjAccess.GetRecordset(sql.Text());
  if (!row || row->RecordCount() == 0) return false;
  mobjWorkflow->RecId = plngRecId;
  ReadSettings(*row);
  ReadNotations();
  ReadTransitions();
  ReadPlaces();
  ReadArcs();
  const auto placeNamed = [&](const char* pstrColumn) { return FindByName(mobjWorkflow->Places, row->Fields(pstrColumn).Value.ToText()); };
  Try([&] { mobjWorkflow->StartPlace = placeNamed("StartPlaceName"); });
  Try([&] { mobjWorkflow->EndPlace(placeNamed("EndPlaceName")); });
  mobjWorkflow->Loaded = true;
  return true;
}

void WorkflowReading::ReadSettings(const Recordset& pobjRow) {
  mobjWorkflow->GUID = pobjRow.Fields("GUID").Value;
  mobjWorkflow->CaseTracking = pobjRow.Fields("CaseTracking").Value.ToBoolean();
  mobjWorkflow->KeepHistory = pobjRow.Fields("KeepHistory").Value.ToBoolean();
  mobjWorkflow->ShowGuards = pobjRow.Fields("ShowGuards").Value.ToBoolean();
  mobjWorkflow->ShowWeights = pobjRow.Fields("ShowWeights").Value.ToBoolean();
  mobjWorkflow->RunStyle = static_cast<RunStyleConstant>(pobjRow.Fields("RunStyle").Value.ToInt32());
  mobjWorkflow->LockControls = pobjRow.Fields("LockControls").Value.ToBoolean();
}

std::unique_ptr<Recordset> WorkflowReading::RowsOf(const char* pstrFrom) {
  SqlText sql;
  sql << " SELECT * " << pstrFrom << "  WHERE WorkflowId = " << mobjWorkflow->RecId;
  return mobjAccess.Rows(sql);
}

void WorkflowReading::ReadNotations() {
  const auto rows = RowsOf("   FROM Notation ");
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    const auto notation = mobjWorkflow->NewNotation();
    notation->AssignValues(pobjRow);
    notation->Dirty = false;
  });
}

void WorkflowReading::ReadTransitions() {
  const auto rows = RowsOf("   FROM Transition ");
  std::int32_t number = 0;
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    const auto transition = std::make_shared<Transition>(*mobjWorkflow);
    transition->Key = KeyOf<Transition>(++number);
    {
      const NestedReading::Asking asking(mobjNested);
      transition->AssignValues(pobjRow);
    }
    transition->Dirty = false;
    mobjWorkflow->Transitions.Add(transition, transition->Key);
    mcolTransitions.emplace(transition->RecId, transition);
  });
}

void WorkflowReading::ReadPlaces() {
  const auto rows = RowsOf("   FROM Place ");
  std::int32_t number = 0;
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    const auto place = std::make_shared<Place>(*mobjWorkflow);
    place->Key = KeyOf<Place>(++number);
    ReadPlace(*place, pobjRow);
    place->TokenProperties = ReadTokenProperties(mobjAccess, place->RecId());
    place->Visible(false);
    mobjWorkflow->Places.Add(place, place->Key);
    mcolPlaceNames.insert(place->Name());
    mcolPlaces.emplace(place->RecId(), place);
  });
}

void WorkflowReading::ReadPlace(Place& pobjPlace, const Recordset& pobjRow) {
  pobjPlace.RecId(pobjRow.Fields("Id").Value.ToInt32());
  ReadName(pobjPlace, pobjRow.Fields("Name").Value.ToText());
  pobjPlace.Caption(pobjRow.Fields("Caption").Value.ToText());
  pobjPlace.Description = pobjRow.Fields("Description").Value.ToText();
  const Variant& selection = pobjRow.Fields("SelectionType").Value;
  pobjPlace.SelectionType = static_cast<SelectionTypes>(selection.IsNull() ? 0 : selection.ToInt32());
  pobjPlace.Top(pobjRow.Fields("CtlTop").Value.ToSingle());
  pobjPlace.Left(pobjRow.Fields("CtlLeft").Value.ToSingle());
  pobjPlace.InputPosition(pobjRow.Fields("InputPosition").Value.ToInt16());
  pobjPlace.OutputPosition(pobjRow.Fields("OutputPosition").Value.ToInt16());
  pobjPlace.CaptionOffsetTop(pobjRow.Fields("CaptionOffsetTop").Value.ToSingle());
  pobjPlace.CaptionOffsetLeft(pobjRow.Fields("CaptionOffsetLeft").Value.ToSingle());
  const Variant& height = pobjRow.Fields("CaptionHeight").Value;
  if (!height.IsNull()) {
    pobjPlace.CaptionHeight = height.ToSingle();
    pobjPlace.CaptionWidth = pobjRow.Fields("CaptionWidth").Value.ToSingle();
  }
  pobjPlace.EnabledImageKey = pobjRow.Fields("EnabledImageKey").Value.ToText();
  pobjPlace.DisabledImageKey = pobjRow.Fields("DisabledImageKey").Value.ToText();
}

// The public setter looks through all places; it is asked only when it will refuse.
void WorkflowReading::ReadName(Place& pobjPlace, const std::string& pstrName) {
  if (mcolPlaceNames.contains(pstrName)) {
    pobjPlace.Name(pstrName);
  } else {
    pobjPlace.AssignName(pstrName);
  }
}

void WorkflowReading::ReadArcs() {
  const auto rows = RowsOf("   FROM Arc ");
  ForEachRow(*rows, [&](const Recordset& pobjRow) { ReadArc(pobjRow); });
}

void WorkflowReading::ReadArc(const Recordset& pobjRow) {
  std::shared_ptr<Place> place;
  std::shared_ptr<Transition> transition;
  std::shared_ptr<Arc> arc;
  Try([&] { place = At(mcolPlaces, pobjRow.Fields("PlaceId").Value.ToInt32()); });
  if (!place) return;
  Try([&] { transition = At(mcolTransitions, pobjRow.Fields("TransitionId").Value.ToInt32()); });
  if (!transition) return;
  Try([&] {
    const auto direction = static_cast<ArcDirectionConstant>(pobjRow.Fields("ArcDirection").Value.ToInt32());
    arc = mobjWorkflow->CreateArc(place, transition, direction);
  });
  if (!arc) return;
  Try([&] { arc->AssignValues(pobjRow); });
  Try([&] { ReadPath(*arc); });
  arc->Dirty = false;
}

void WorkflowReading::ReadPath(Arc& pobjArc) {
  SqlText sql;
  sql << " SELECT * "
      << "   FROM Vector "
      << "  WHERE ArcId = " << pobjArc.RecId;
  const auto rows = mobjAccess.Rows(sql);
  if (rows->RecordCount() == 0) return;
  Vector& first = *pobjArc.Segments().front();
  ReadSegment(first, *rows);
  first.Tag = pobjArc.Key;
  rows->MoveNext();
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    const auto vector = pobjArc.AddSegment();
    vector->Tag = pobjArc.Key;
    ReadSegment(*vector, pobjRow);
    vector->Dirty(false);
  });
}

void WorkflowReading::ReadSegment(Vector& pobjVector, const Recordset& pobjRow) {
  Try([&] { pobjVector.X1(pobjRow.Fields("X1").Value.ToSingle()); });
  Try([&] { pobjVector.X2(pobjRow.Fields("X2").Value.ToSingle()); });
  Try([&] { pobjVector.Y1(pobjRow.Fields("Y1").Value.ToSingle()); });
  Try([&] { pobjVector.Y2(pobjRow.Fields("Y2").Value.ToSingle()); });
}

}  // namespace vantrel
