#include "persistence/CaseReading.h"

#include <algorithm>

#include "model/RowText.h"

namespace vantrel {

namespace {

constexpr const char* kPlacesOf = "(SELECT Id FROM Place WHERE WorkflowId = ";

template <class Map>
auto At(const Map& pcolItems, std::int32_t plngId) {
  const auto found = pcolItems.find(plngId);
  return found == pcolItems.end() ? typename Map::mapped_type() : found->second;
}

}  // namespace

CaseReading::CaseReading(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) : mobjAccess(pobjAccess), mobjWorkflow(pobjWorkflow) {
  for (Collection<Place>::Cursor places(mobjWorkflow.Places); Place* place = places.Next();) {
    mcolPlaceOf.try_emplace(place->RecId(), place);
    if (!place->TokenProperties) continue;
    for (const auto& definition : *place->TokenProperties) mcolDefinitionOf.try_emplace(definition->Id, definition);
  }
  for (Collection<Transition>::Cursor transitions(mobjWorkflow.Transitions); Transition* transition = transitions.Next();) {
    mcolTransitionOf.try_emplace(transition->RecId, transition);
  }
}

void CaseReading::Read() {
  ReadCases();
  ReadTokens();
  ReadValues();
}

void CaseReading::ReadCases() {
  SqlText sql;
  sql << "SELECT * FROM Workcase WHERE Id IN (SELECT WorkcaseId FROM Token WHERE PlaceId IN " << kPlacesOf << mobjWorkflow.RecId
      << ")) ORDER BY Id";
  const auto rows = mobjAccess.Rows(sql);
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    auto workCase = std::make_shared<WorkCase>();
    workCase->RecId = pobjRow.Fields("Id").Value.ToInt32();
    workCase->OrderItemId = pobjRow.Fields("OrderItemId").Value.ToInt32();
    workCase->Key = workCase->Name = "WorkCase" + std::to_string(workCase->RecId);
    mcolCaseOf.emplace(workCase->RecId, workCase);
    mcolCases.push_back(std::move(workCase));
  });
}

void CaseReading::ReadTokens() {
  SqlText sql;
  sql << "SELECT * FROM Token WHERE PlaceId IN " << kPlacesOf << mobjWorkflow.RecId << ") ORDER BY Id";
  const auto rows = mobjAccess.Rows(sql);
  mcolTokens.reserve(static_cast<std::size_t>(rows->RecordCount()));
  ForEachRow(*rows, [&](const Recordset& pobjRow) { ReadToken(pobjRow); });
}

void CaseReading::ReadToken(const Recordset& pobjRow) {
  const std::int32_t id = pobjRow.Fields("Id").Value.ToInt32();
  Place* const place = At(mcolPlaceOf, pobjRow.Fields("PlaceId").Value.ToInt32());
  if (!place) return;  // stored after the workflow was read
  auto workCase = At(mcolCaseOf, pobjRow.Fields("WorkcaseId").Value.ToInt32());
  Transition* const creator = At(mcolTransitionOf, pobjRow.Fields("CreateTransitionId").Value.ToInt32());
  auto token = mobjWorkflow.CreateToken(place, creator, workCase);
  token->RecId = id;
  token->DateCreated = pobjRow.Fields("DateCreated").Value.ToDate();
  token->ConsumeTransition = At(mcolTransitionOf, pobjRow.Fields("ConsumeTransitionId").Value.ToInt32());
  token->DateConsumed = pobjRow.Fields("DateConsumed").Value.ToDate();
  token->CreateUserId = pobjRow.Fields("CreateUserId").Value.ToInt32();
  token->ConsumeUserId = pobjRow.Fields("ConsumeUserId").Value.ToInt32();
  token->Tag = TextOrNone(pobjRow.Fields("Tag").Value);
  mcolTokens.emplace_back(id, std::move(token));
}

void CaseReading::ReadValues() {
  SqlText sql;
  sql << "SELECT * FROM PropertyValue WHERE TokenId IN (SELECT Id FROM Token WHERE PlaceId IN " << kPlacesOf << mobjWorkflow.RecId
      << ")) ORDER BY Id";
  const auto rows = mobjAccess.Rows(sql);
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    const Token* const token = FindToken(pobjRow.Fields("TokenId").Value.ToInt32());
    const auto definition = At(mcolDefinitionOf, pobjRow.Fields("PropertyId").Value.ToInt32());
    if (!token || !definition || !token->HasCustomProperties()) return;
    const auto entry = token->CustomProperties()->Find(definition->Name);
    if (!entry) return;
    entry->Id = pobjRow.Fields("Id").Value.ToInt32();
    entry->RowTokenId = token->RecId;
    entry->Value = TextOrNone(pobjRow.Fields("Value").Value);
  });
}

Token* CaseReading::FindToken(std::int32_t plngId) const {
  const auto found = std::lower_bound(mcolTokens.begin(), mcolTokens.end(), plngId,
                                      [](const auto& pEntry, std::int32_t plngWanted) { return pEntry.first < plngWanted; });
  return found != mcolTokens.end() && found->first == plngId ? found->second.get() : nullptr;
}

// The end place has released the tokens that reached it, and no transition has consumed them.
bool CaseReading::LiesInPlace(const Token& pobjToken) const {
  if (pobjToken.ConsumeTransition || !pobjToken.DateConsumed.IsZero()) return false;
  return mobjWorkflow.KeepHistory || !(pobjToken.Place == mobjWorkflow.EndPlace());
}

void CaseReading::PutBack() {
  for (const auto& [id, token] : mcolTokens) {
    if (LiesInPlace(*token)) token->Place->PutBack(token);
  }
}

}  // namespace vantrel
