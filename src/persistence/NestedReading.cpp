#include "persistence/NestedReading.h"

#include <string>
#include <unordered_map>

#include "model/DesignerState.h"
#include "persistence/WorkflowDatabase.h"
#include "persistence/WorkflowReading.h"

namespace vantrel {

namespace {

NestedReading* gobjThatAsks = nullptr;

// Transitions ask the control's database, and this one where no control is.
class ReaderScope {
 public:
  explicit ReaderScope(WorkflowReader& pobjReader) : mobjBefore(std::exchange(gobjWorkflowReader, &pobjReader)) {}
  ~ReaderScope() { gobjWorkflowReader = mobjBefore; }
  ReaderScope(const ReaderScope&) = delete;
  ReaderScope& operator=(const ReaderScope&) = delete;

 private:
  WorkflowReader* mobjBefore;
};

}  // namespace

NestedReading* NestedReading::ThatAsks() { return gobjThatAsks; }

NestedReading::Asking::Asking(NestedReading& pobjReading) : mobjBefore(std::exchange(gobjThatAsks, &pobjReading)) {}

NestedReading::Asking::~Asking() { gobjThatAsks = mobjBefore; }

NestedReading::Item& NestedReading::ItemOf(WorkflowDatabase& pobjDatabase, std::int32_t plngId) {
  auto& item = mcolItems[{&pobjDatabase, plngId}];
  if (!item) item = std::make_unique<Item>(Item{&pobjDatabase, plngId, std::make_shared<vantrel::Workflow>(), {}, false});
  return *item;
}

std::shared_ptr<Workflow> NestedReading::Embedded(WorkflowDatabase& pobjDatabase, std::int32_t plngId) {
  const std::size_t known = mcolItems.size();
  Item& item = ItemOf(pobjDatabase, plngId);
  if (mcolItems.size() > known) {
    mcolWaiting.push_back(&item);
  } else {
    CheckCircle(*mobjNow, item);
  }
  mobjNow->Embeds.push_back(&item);
  return item.Workflow;
}

// Walks down from the inner one; what leads to the outer one would close a circle.
void NestedReading::CheckCircle(const Item& pobjOuter, const Item& pobjInner) const {
  std::unordered_map<const Item*, const Item*> from = {{&pobjInner, nullptr}};
  std::vector<const Item*> waiting = {&pobjInner};
  while (!waiting.empty()) {
    const Item* const item = waiting.back();
    waiting.pop_back();
    if (item == &pobjOuter) {
      std::string chain = std::to_string(pobjInner.Id);
      for (const Item* step = item; step != nullptr; step = from.at(step)) chain.insert(0, std::to_string(step->Id) + " > ");
      throw Error(vntErrInvalidCall, "Workflow " + std::to_string(pobjInner.Id) + " is embedded in itself in the database: " + chain + ".");
    }
    for (const Item* inner : item->Embeds) {
      if (from.emplace(inner, item).second) waiting.push_back(inner);
    }
  }
}

std::shared_ptr<Workflow> NestedReading::Run(WorkflowDatabase& pobjDatabase, std::int32_t plngId) {
  const ReaderScope reader(pobjDatabase);
  Item& outermost = ItemOf(pobjDatabase, plngId);
  gobjWorkflow = outermost.Workflow;
  pobjDatabase.mobjAccess.Read([&] {
    ReadAll(outermost);
    return outermost.IsFound;
  });
  TakeOutMissing();
  MakeLastCurrent(outermost);
  return outermost.IsFound ? outermost.Workflow : nullptr;
}

void NestedReading::ReadAll(Item& pobjOutermost) {
  for (mcolWaiting = {&pobjOutermost}; !mcolWaiting.empty();) {
    Item& item = *mcolWaiting.back();
    mcolWaiting.pop_back();
    if (item.Database == pobjOutermost.Database) {
      Read(item);
    } else {
      item.Database->mobjAccess.Read([&] {
        Read(item);
        return item.IsFound;
      });
    }
  }
}

void NestedReading::Read(Item& pobjItem) {
  mobjNow = &pobjItem;
  gobjWorkflow = pobjItem.Workflow;
  pobjItem.IsFound = WorkflowReading(pobjItem.Database->mobjAccess, pobjItem.Workflow, *this).Run(pobjItem.Id);
}

// A transition whose workflow is not there has no object.
void NestedReading::TakeOutMissing() {
  for (const auto& [key, outer] : mcolItems) {
    for (const auto& transition : outer->Workflow->Transitions) {
      for (const Item* inner : outer->Embeds) {
        if (!inner->IsFound && transition->Object() == inner->Workflow) transition->Object(nullptr);
      }
    }
  }
}

// As if every embedded workflow had been read inside the reading of the one around it.
void NestedReading::MakeLastCurrent(Item& pobjOutermost) {
  const Item* last = &pobjOutermost;
  while (!last->Embeds.empty()) last = last->Embeds.back();
  gobjWorkflow = last->Workflow;
  if (!last->IsFound) last->Database->mobjNothingFound = last->Workflow;
}

}  // namespace vantrel
