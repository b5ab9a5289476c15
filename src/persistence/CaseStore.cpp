#include "persistence/CaseStore.h"

#include "persistence/TokenPropertyStore.h"

namespace vantrel {

namespace {

std::int32_t IdOf(const Ref<Transition>& pobjTransition) { return pobjTransition ? pobjTransition->RecId : 0; }

std::int32_t IdOf(const WorkCase* pobjCase) { return pobjCase ? pobjCase->RecId : 0; }

SqlText UpdateOf(const Token& pobjToken) {
  SqlText sql;
  sql << " UPDATE Token "
      << " SET "
      << " PlaceId = " << pobjToken.Place->RecId() << ", "
      << " WorkcaseId = " << IdOf(pobjToken.WorkCase.get()) << ", "
      << " DateCreated = " << pobjToken.DateCreated << ", ";
  // A missing transition has a blank more before its column.
  sql << (pobjToken.CreateTransition ? "CreateTransitionId = " : " CreateTransitionId = ") << IdOf(pobjToken.CreateTransition) << ", ";
  sql << "DateConsumed = " << pobjToken.DateConsumed << ", ";
  sql << " ConsumeTransitionId = " << IdOf(pobjToken.ConsumeTransition) << ", ";
  sql << " CreateUserId  = " << pobjToken.CreateUserId << ", "
      << " ConsumeUserId  = " << pobjToken.ConsumeUserId << ", "
      << " Tag = " << SqlQuoted{pobjToken.Tag.str()} << " WHERE Id = " << pobjToken.RecId;
  return sql;
}

SqlText InsertOf(const Token& pobjToken, std::int32_t plngId) {
  SqlText sql;
  sql << "INSERT INTO Token"
      << "(Id, PlaceId, WorkcaseId, DateCreated, CreateTransitionId, DateConsumed, ConsumeTransitionId, CreateUserId, ConsumeUserId, Tag ) "
      << " VALUES(" << plngId << ", " << pobjToken.Place->RecId() << ", " << IdOf(pobjToken.WorkCase.get()) << ", ";
  sql << pobjToken.DateCreated << ", " << IdOf(pobjToken.CreateTransition) << ", ";
  sql << pobjToken.DateConsumed << ", " << IdOf(pobjToken.ConsumeTransition) << ", ";
  sql << pobjToken.CreateUserId << ", " << pobjToken.ConsumeUserId << "," << SqlQuoted{pobjToken.Tag.str()} << ")";
  return sql;
}

}  // namespace

std::int32_t CaseStore::RunOnServer(const SqlText& pobjSql) {
  mobjAccess.UseCursor(vntUseServer);
  return mobjAccess.ExecuteSQL(pobjSql);
}

Variant CaseStore::SaveWorkcase(WorkCase& pobjWorkcase) {
  SqlText sql;
  if (pobjWorkcase.RecId != 0) {
    if (!pobjWorkcase.Dirty) return {};
    sql << "UPDATE Workcase SET "
        << " OrderItemId = " << pobjWorkcase.OrderItemId << " WHERE Id = " << pobjWorkcase.RecId;
    return RunOnServer(sql);
  }
  const std::int32_t id = mobjAccess.NextId("Workcase");
  sql << "INSERT INTO Workcase"
      << "(Id, OrderItemId ) "
      << "VALUES(" << id << ", " << pobjWorkcase.OrderItemId << ")";
  const std::int32_t result = RunOnServer(sql);
  pobjWorkcase.RecId = id;
  return result;
}

Variant CaseStore::SaveRow(Token& pobjToken) {
  if (pobjToken.RecId != 0) return pobjToken.Dirty ? Variant(mobjAccess.ExecuteSQL(UpdateOf(pobjToken))) : Variant();
  const std::int32_t id = mobjAccess.NextId("Token");
  const std::int32_t result = mobjAccess.ExecuteSQL(InsertOf(pobjToken, id));
  pobjToken.RecId = id;
  return result;
}

Variant CaseStore::SaveToken(SavedMarks& pobjMarks, const Token& pobjToken) {
  Variant result;
  const auto workflow = pobjToken.Place->Workflow.Lock();
  if (!workflow) throw Error(vntErrObjectNotSet);
  for (const auto& token : mcolCaseTokens.Of(*workflow, pobjToken.WorkCase.get())) {
    if (token->RecId == 0) pobjMarks.Keep(token);
    const Variant ofThis = SaveRow(*token);
    if (!ofThis.IsEmpty()) result = ofThis;
    if (token->HasCustomProperties()) SaveTokenValues(mobjAccess, pobjMarks, *token);
  }
  return result;
}

}  // namespace vantrel
