#include "app/play/DatabaseStore.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "database/TransactionScope.h"

namespace vantrel {

namespace {

constexpr std::int64_t kSteps = 1'000;
constexpr std::chrono::seconds kPause(1);

}  // namespace

DatabaseStore::DatabaseStore(OpenDatabase& pobjDatabase, std::shared_ptr<Workflow> pobjWorkflow)
    : mDatabase(pobjDatabase), mobjWorkflow(std::move(pobjWorkflow)), mNew(mobjWorkflow->Tokens), mDue(Clock::now() + kPause) {}

// The token in the end place may not know its case: without case tracking only the first token of a case does.
TakenUp DatabaseStore::TakeUp() {
  std::vector<std::shared_ptr<WorkCase>> cases;
  mDatabase.Do([&] { cases = mDatabase.Access().ReadCases(mobjWorkflow); });
  mlngLargestTokenId = 0;
  for (const auto& token : mobjWorkflow->Tokens) mlngLargestTokenId = std::max(mlngLargestTokenId, token->RecId);
  TakenUp result;
  for (const auto& workCase : cases) result.CaseKeys.push_back(workCase->Key);

  std::unordered_set<std::string> finished;
  std::int64_t ends = 0;
  GatherNew();
  for (const auto& token : mcolLiving) {
    if (!mobjWorkflow->EndPlace() || token->Place != mobjWorkflow->EndPlace()) continue;
    if (!token->WorkCase || finished.insert(token->WorkCase->Key).second) ++ends;
  }
  mcolLiving.erase(std::remove_if(mcolLiving.begin(), mcolLiving.end(), [](const auto& token) { return !token->DateConsumed.IsZero(); }),
                   mcolLiving.end());
  result.Finished.assign(finished.begin(), finished.end());
  result.CasesUnderWay = std::max<std::int64_t>(0, static_cast<std::int64_t>(cases.size()) - ends);
  return result;
}

void DatabaseStore::Pass(std::int64_t plngSteps) {
  if (plngSteps - mlngSavedAt < kSteps && Clock::now() < mDue) return;
  mlngSavedAt = plngSteps;
  Save();
}

void DatabaseStore::Save() {
  GatherNew();
  const auto touched = TakeTouched();
  try {
    if (!touched.empty()) mDatabase.Do([&] { Write(touched); });
  } catch (const DatabaseFailure& failure) {
    throw DatabaseFailure(failure.what() + (" What was stored until then stands; `vantrel play " + std::to_string(mobjWorkflow->RecId)) +
                          " --resume` goes on from there.");
  }
  mDue = Clock::now() + kPause;
}

void DatabaseStore::GatherNew() {
  while (mNew.Next()) mcolLiving.push_back(mNew.Shared());
}

std::vector<DatabaseStore::Group> DatabaseStore::TakeTouched() {
  std::vector<Group> touched;
  std::unordered_map<const WorkCase*, std::size_t> numbers;
  const auto isDone = [&](const std::shared_ptr<Token>& pobjToken) {
    const bool left = HasLeft(*pobjToken);
    if (pobjToken->RecId != 0 && !pobjToken->Dirty) return left;
    const auto [entry, isNew] = numbers.try_emplace(pobjToken->WorkCase.get(), touched.size());
    if (isNew) touched.emplace_back();
    touched[entry->second].push_back(pobjToken);
    return left;
  };
  mcolLiving.erase(std::remove_if(mcolLiving.begin(), mcolLiving.end(), isDone), mcolLiving.end());
  return touched;
}

// The token of a finished case leaves the end place and no transition consumes it. Stored without a date of its end it would be in
// the place again after the next reading.
bool DatabaseStore::HasLeft(Token& pobjToken) const {
  if (!pobjToken.DateConsumed.IsZero()) return true;
  if (mobjWorkflow->KeepHistory || pobjToken.Place != mobjWorkflow->EndPlace()) return false;
  if (!pobjToken.Place || pobjToken.Place->Tokens().Contains(pobjToken.Key)) return false;
  pobjToken.DateConsumed = Date::Now();
  pobjToken.Dirty = true;
  return true;
}

void DatabaseStore::Write(const std::vector<Group>& pcolTouched) {
  WorkflowDatabase& access = mDatabase.Access();
  TransactionScope transaction(mDatabase.Connection(), Transaction::Write);
  CheckStillOurs();
  for (const Group& tokens : pcolTouched) {
    if (tokens.front()->WorkCase) access.SaveWorkcase(tokens.front()->WorkCase);
    access.SaveToken(tokens.front());
    access.Failed().ThrowFirst();
    for (const auto& token : tokens) token->Dirty = false;
  }
  if (mlngLargestTokenId >= 0) mlngLargestTokenId = LargestTokenId();
  transaction.Commit();
}

void DatabaseStore::CheckStillOurs() {
  const std::string id = std::to_string(mobjWorkflow->RecId);
  const auto row = mDatabase.Connection().NewRecordset();
  row->Open("SELECT Id FROM Workflow WHERE Id = " + id);
  if (row->Eof()) throw Error(vntErrDatabase, "workflow " + id + " was deleted while it was played.");
  if (mlngLargestTokenId < 0 || LargestTokenId() == mlngLargestTokenId) return;
  throw Error(vntErrDatabase, "another run stores tokens of workflow " + id + ", with which this one went on.");
}

std::int32_t DatabaseStore::LargestTokenId() {
  const auto row = mDatabase.Connection().NewRecordset();
  row->Open("SELECT MAX(Id) AS MaxId FROM Token WHERE PlaceId IN (SELECT Id FROM Place WHERE WorkflowId = " +
            std::to_string(mobjWorkflow->RecId) + ")");
  const Variant& largest = row->Fields("MaxId").Value;
  return largest.IsNull() ? 0 : largest.ToInt32();
}

}  // namespace vantrel
