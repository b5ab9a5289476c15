#include "app/database/NetImport.h"

#include <nlohmann/json.hpp>

#include "app/Json.h"
#include "interchange/PnmlImport.h"

namespace vantrel {

namespace {

std::string Counted(std::int64_t plngCount, const std::string& pstrWhat) {
  return std::to_string(plngCount) + ' ' + pstrWhat + (plngCount == 1 ? "" : "s");
}

// Every case begins with a token in the start place.
std::string LostMarking(const LoadedNet& pobjNet) {
  std::int64_t tokens = 0;
  for (const InitialTokens& initial : pobjNet.Marking) tokens += initial.Count;
  const bool isStart = tokens == 1 && pobjNet.Workflow->StartPlace == pobjNet.Marking.front().Where;
  if (tokens == 0 || isStart) return {};
  return "its initial marking is not stored: " + Counted(tokens, "token") + " in " +
         Counted(static_cast<std::int64_t>(pobjNet.Marking.size()), "place");
}

void Store(OpenDatabase& pobjDatabase, const LoadedNet& pobjNet, ImportOutcome& pobjOutcome) {
  pobjOutcome.NetId = pobjNet.Id;
  pobjOutcome.NetName = pobjNet.Name;
  pobjDatabase.Save(pobjNet.Workflow);
  pobjOutcome.Id = pobjNet.Workflow->RecId;
  for (const std::string& arc : pobjNet.Skipped) pobjOutcome.Notes.push_back("left out: " + arc);
  if (auto lost = LostMarking(pobjNet); !lost.empty()) pobjOutcome.Notes.push_back(std::move(lost));
}

nlohmann::ordered_json OutcomeJson(const ImportOutcome& pobjOutcome) {
  const bool stored = pobjOutcome.Id != 0;
  return {{"file", pobjOutcome.File},   {"id", stored ? nlohmann::ordered_json(pobjOutcome.Id) : nullptr},
          {"net", pobjOutcome.NetId},   {"name", pobjOutcome.NetName},
          {"notes", pobjOutcome.Notes}, {"error", stored ? nullptr : nlohmann::ordered_json(pobjOutcome.Failure)}};
}

}  // namespace

ImportOutcome ImportNet(OpenDatabase& pobjDatabase, const std::string& pstrFile, const PnmlOptions& pobjOptions) {
  ImportOutcome outcome;
  outcome.File = pstrFile;
  try {
    Store(pobjDatabase, ImportPnml(pstrFile, pobjOptions), outcome);
  } catch (const Error& error) {
    outcome.Failure = error.Description;
  } catch (const DatabaseFailure& failure) {
    outcome.Failure = failure.what();
  }
  return outcome;
}

std::string ImportJson(const std::vector<ImportOutcome>& pcolOutcomes) {
  auto imported = nlohmann::ordered_json::array();
  for (const ImportOutcome& outcome : pcolOutcomes) imported.push_back(OutcomeJson(outcome));
  return OneLine({{"imported", std::move(imported)}});
}

}  // namespace vantrel
