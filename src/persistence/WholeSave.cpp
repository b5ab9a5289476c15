#include "persistence/WholeSave.h"

#include <unordered_set>
#include <vector>

#include "database/TransactionScope.h"
#include "persistence/ChartColor.h"
#include "persistence/DatabaseAccess.h"
#include "persistence/GoneRows.h"
#include "persistence/TokenPropertyStore.h"
#include "persistence/WorkflowSaving.h"

namespace vantrel {

namespace {

/// One save of a workflow with everything inside.
class WholeSaving {
 public:
  explicit WholeSaving(const std::shared_ptr<Connection>& pobjConnection) : mobjConnection(pobjConnection), mobjAccess(mobjConnection) {}

  void Run(const std::shared_ptr<Workflow>& pobjWorkflow);

 private:
  void Gather(const std::shared_ptr<Workflow>& pobjWorkflow);
  void Save(const std::shared_ptr<Workflow>& pobjWorkflow);
  void SaveAll();

  std::shared_ptr<Connection> mobjConnection;
  DatabaseAccess mobjAccess;
  SavedMarks mMarks;
  std::vector<std::shared_ptr<Workflow>> mcolWorkflows;  // inner ones first
};

// Depth first with a stack of its own: a workflow is listed when all that it embeds are.
void WholeSaving::Gather(const std::shared_ptr<Workflow>& pobjWorkflow) {
  struct Visit {
    std::shared_ptr<Workflow> Item;
    bool IsOpened;
  };
  std::vector<Visit> waiting = {{pobjWorkflow, false}};
  std::unordered_set<const Workflow*> seen;
  while (!waiting.empty()) {
    Visit& visit = waiting.back();
    if (visit.IsOpened) {
      mcolWorkflows.push_back(std::move(visit.Item));
      waiting.pop_back();
      continue;
    }
    if (!seen.insert(visit.Item.get()).second) {
      waiting.pop_back();
      continue;
    }
    visit.IsOpened = true;
    const auto workflow = visit.Item;  // the visit moves when the stack grows
    for (const auto& transition : workflow->Transitions) {
      if (auto inner = transition->EmbeddedWorkflow()) waiting.push_back({std::move(inner), false});
    }
  }
}

void WholeSaving::Save(const std::shared_ptr<Workflow>& pobjWorkflow) {
  for (const auto& transition : pobjWorkflow->Transitions) {
    if (const auto inner = transition->EmbeddedWorkflow()) transition->SubflowId = inner->RecId;
  }
  ForgetGoneRows(mobjAccess, *pobjWorkflow);
  SaveRowAndChart(mobjAccess, *pobjWorkflow, true);
  mobjAccess.Failed().ThrowFirst();
  if (pobjWorkflow->ChartColor) SaveChartColor(*mobjConnection, pobjWorkflow->RecId, *pobjWorkflow->ChartColor);
  for (const auto& place : pobjWorkflow->Places) {
    if (!place->TokenProperties) continue;
    SaveTokenProperties(mobjAccess, *place);
    mobjAccess.Failed().ThrowFirst();
  }
}

void WholeSaving::SaveAll() {
  TransactionScope transaction(*mobjConnection, Transaction::Write);
  for (const auto& workflow : mcolWorkflows) Save(workflow);
  transaction.Commit();
}

void WholeSaving::Run(const std::shared_ptr<Workflow>& pobjWorkflow) {
  if (!mobjConnection || !pobjWorkflow) throw Error(vntErrObjectNotSet);
  Gather(pobjWorkflow);
  for (const auto& workflow : mcolWorkflows) mMarks.KeepChart(workflow);
  try {
    SaveAll();
  } catch (...) {
    mMarks.Restore();
    mobjAccess.Failed().ThrowFirst();
    throw;
  }
}

}  // namespace

void SaveWhole(const std::shared_ptr<Connection>& pobjConnection, const std::shared_ptr<Workflow>& pobjWorkflow) {
  WholeSaving(pobjConnection).Run(pobjWorkflow);
}

}  // namespace vantrel
