#include "persistence/WholeSave.h"

#include <unordered_set>
#include <vector>

#include "persistence/ChartColor.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// One save of a workflow with everything inside.
class WholeSaving {
 public:
  explicit WholeSaving(VNTRDB& pobjDatabase) : mobjDatabase(pobjDatabase) {}

  void Run(const std::shared_ptr<Workflow>& pobjWorkflow);

 private:
  void Gather(const std::shared_ptr<Workflow>& pobjWorkflow);
  void Save(const std::shared_ptr<Workflow>& pobjWorkflow);
  void SaveAll();
  void CheckFailures() const;

  VNTRDB& mobjDatabase;
  SavedMarks mMarks;
  std::vector<std::shared_ptr<Workflow>> mcolWorkflows;  // inner ones first
};

namespace {

std::shared_ptr<Workflow> EmbeddedIn(const Transition& pobjTransition) { return pobjTransition.EmbeddedWorkflow(); }

}  // namespace

// Depth first, with a stack: lists a workflow after all that it embeds.
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
      if (auto inner = EmbeddedIn(*transition)) waiting.push_back({std::move(inner), false});
    }
  }
}

void WholeSaving::CheckFailures() const {
  if (const auto& failure = mobjDatabase.mobjAccess->FirstFailure()) throw Error(*failure);
}

void WholeSaving::Save(const std::shared_ptr<Workflow>& pobjWorkflow) {
  for (const auto& transition : pobjWorkflow->Transitions) {
    if (const auto inner = EmbeddedIn(*transition)) transition->SubflowId = inner->RecId;
  }
  mobjDatabase.SaveWorkFlow(pobjWorkflow);
  CheckFailures();
  if (pobjWorkflow->ChartColor) SaveChartColor(*mobjDatabase.Connection, pobjWorkflow->RecId, *pobjWorkflow->ChartColor);
  for (const auto& place : pobjWorkflow->Places) {
    if (!place->TokenProperties) continue;
    mobjDatabase.SaveTokenProperties(place);
    CheckFailures();
  }
}

void WholeSaving::SaveAll() {
  mobjDatabase.mobjAccess->ForgetFirstFailure();
  for (const auto& workflow : mcolWorkflows) Save(workflow);
}

void WholeSaving::Run(const std::shared_ptr<Workflow>& pobjWorkflow) {
  const auto connection = mobjDatabase.Connection;
  if (!connection || !pobjWorkflow) throw Error(vntErrObjectNotSet);
  Gather(pobjWorkflow);
  for (const auto& workflow : mcolWorkflows) mMarks.KeepChart(workflow);
  connection->BeginTrans(Transaction::Write);
  try {
    SaveAll();
  } catch (...) {
    connection->RollbackTrans();
    mMarks.Restore();
    CheckFailures();  // the failure shown first says more than its consequences
    throw;
  }
  try {
    connection->CommitTrans();
  } catch (...) {
    mMarks.Restore();
    throw;
  }
}

void SaveWhole(VNTRDB& pobjDatabase, const std::shared_ptr<Workflow>& pobjWorkflow) { WholeSaving(pobjDatabase).Run(pobjWorkflow); }

}  // namespace vantrel
