#include "model/game/TokenRules.h"

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "model/game/CaseIndex.h"

namespace vantrel {

namespace {

template <class Accepts>
Token* FirstFree(const Collection<Token>& pcolTokens, Accepts&& pAccepts) {
  Collection<Token>::Cursor tokens(pcolTokens);
  while (Token* token = tokens.Next()) {
    if (TokenRules::IsFree(*token) && pAccepts(*token)) return token;
  }
  return nullptr;
}

bool Any(const Token&) { return true; }

}  // namespace

bool TokenRules::CaseTracking(const Node& pobjNode) {
  const auto* own = pobjNode.Workflow.get();
  const auto* leading = own ? &own->Leading() : gobjWorkflow.get();
  return leading && leading->CaseTracking;
}

Token* TokenRules::FirstBehind(const Place& pobjPlace) { return FirstFree(pobjPlace.Tokens(), Any); }

Token* TokenRules::FirstOf(const Place& pobjPlace, const WorkCase* pobjCase) {
  if (const auto* index = CaseIndex::Of(pobjPlace)) {
    const auto* tokens = index->TokensOf(pobjCase);
    return tokens ? FirstFree(*tokens, Any) : nullptr;
  }
  return FirstFree(pobjPlace.Tokens(), [&](const Token& pobjToken) { return pobjToken.WorkCase.get() == pobjCase; });
}

bool TokenRules::ServesCase(const Place& pobjPlace, const WorkCase* pobjCase) {
  return FirstOf(pobjPlace, pobjCase) || (pobjCase && FirstOf(pobjPlace, nullptr));
}

bool TokenRules::HoldsEnabledBehind(const Place& pobjPlace) {
  const auto* index = CaseIndex::Of(pobjPlace);
  const auto& tokens = index ? index->Marked() : pobjPlace.Tokens();
  return FirstFree(tokens, [](const Token& pobjToken) { return pobjToken.mblnCaseEnabled; }) != nullptr;
}

void TokenRules::MarkEnabled(Place& pobjPlace, const WorkCase* pobjCase) {
  if (auto* index = CaseIndex::Of(pobjPlace)) {
    index->MarkAll(pobjCase);
    return;
  }
  for (Collection<Token>::Cursor cursor(pobjPlace.Tokens()); Token* token = cursor.Next();) {
    if (token->WorkCase.get() == pobjCase) token->CaseEnabled(true);
  }
}

}  // namespace vantrel
