#include "app/database/AsNew.h"

#include <cstdint>
#include <unordered_map>

#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

void RenewPlace(Place& pobjPlace) {
  pobjPlace.RecId(0);
  pobjPlace.Dirty(true);
  const auto definitions = pobjPlace.TokenProperties;
  if (!definitions) return;
  for (const auto& definition : *definitions) definition->Id = 0;
}

template <class T>
void RenewRecord(T& pobjObject) {
  pobjObject.RecId = 0;
  pobjObject.Dirty = true;
}

class Renewal {
 public:
  void Renew(const std::shared_ptr<Workflow>& pobjWorkflow) {
    mcolKnown.emplace(pobjWorkflow->RecId, pobjWorkflow);
    for (const auto& transition : pobjWorkflow->Transitions) RenewEmbedded(*transition);
    ForgetRecords(*pobjWorkflow);
  }

  std::vector<std::string> Missing;

 private:
  void RenewEmbedded(Transition& pobjTransition) {
    const auto inner = pobjTransition.EmbeddedWorkflow();
    if (!inner) {
      if (pobjTransition.SubflowId == 0) return;
      Missing.push_back("transition " + QuotedForMessage(pobjTransition.Name()) + " embeds workflow " +
                        std::to_string(pobjTransition.SubflowId) + ", which is not there");
      pobjTransition.SubflowId = 0;
      return;
    }
    const auto known = mcolKnown.find(pobjTransition.SubflowId);
    if (known == mcolKnown.end()) {
      Renew(inner);
    } else if (known->second != inner) {
      pobjTransition.Object(known->second);
    }
  }

  std::unordered_map<std::int32_t, std::shared_ptr<Workflow>> mcolKnown;  // by the ids that they had
};

}  // namespace

void ForgetRecords(Workflow& pobjWorkflow) {
  pobjWorkflow.RecId = 0;
  pobjWorkflow.GUID = Variant();
  for (const auto& place : pobjWorkflow.Places) RenewPlace(*place);
  for (const auto& transition : pobjWorkflow.Transitions) RenewRecord(*transition);
  for (const auto& arc : pobjWorkflow.Arcs) RenewRecord(*arc);
  for (const auto& vector : pobjWorkflow.Vectors) vector->RecId = 0;
  for (const auto& notation : pobjWorkflow.Notations) RenewRecord(*notation);
}

std::vector<std::string> MakeNew(const std::shared_ptr<Workflow>& pobjWorkflow) {
  Renewal renewal;
  renewal.Renew(pobjWorkflow);
  return renewal.Missing;
}

}  // namespace vantrel
