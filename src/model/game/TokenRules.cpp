#include "model/game/TokenRules.h"

#include "model/DesignerState.h"
#include "model/Workflow.h"

namespace vantrel {

namespace {

template <class Accepts>
Token* FirstWhere(const Place& pobjPlace, Accepts&& pAccepts) {
  Collection<Token>::Cursor tokens(pobjPlace.Tokens());
  while (Token* token = tokens.Next()) {
    if (TokenRules::IsFree(*token) && pAccepts(*token)) return token;
  }
  return nullptr;
}

}  // namespace

bool TokenRules::CaseTracking(const Node& pobjNode) {
  if (const auto* shown = gobjWorkflow.get()) return shown->CaseTracking;
  const auto* own = pobjNode.Workflow.get();
  return own && own->CaseTracking;
}

Token* TokenRules::FirstBehind(const Place& pobjPlace) {
  return FirstWhere(pobjPlace, [](const Token&) { return true; });
}

Token* TokenRules::Last(const Place& pobjPlace) {
  const auto& tokens = pobjPlace.Tokens();
  if (tokens.IsEmpty()) return nullptr;
  if (Token* last = tokens.Last().get(); IsFree(*last)) return last;
  Token* found = nullptr;
  for (Collection<Token>::Cursor cursor(tokens); Token* token = cursor.Next();) {
    if (IsFree(*token)) found = token;
  }
  return found;
}

Token* TokenRules::FirstOf(const Place& pobjPlace, const WorkCase* pobjCase) {
  return FirstWhere(pobjPlace, [&](const Token& pobjToken) { return pobjToken.WorkCase.get() == pobjCase; });
}

bool TokenRules::ServesCase(const Place& pobjPlace, const WorkCase* pobjCase) {
  return FirstWhere(pobjPlace, [&](const Token& pobjToken) { return !pobjToken.WorkCase || pobjToken.WorkCase.get() == pobjCase; }) !=
         nullptr;
}

bool TokenRules::HoldsEnabled(const Place& pobjPlace) {
  return FirstWhere(pobjPlace, [](const Token& pobjToken) { return pobjToken.mblnCaseEnabled; }) != nullptr;
}

void TokenRules::MarkEnabled(Place& pobjPlace, const WorkCase* pobjCase) {
  for (Collection<Token>::Cursor cursor(pobjPlace.Tokens()); Token* token = cursor.Next();) {
    if (token->WorkCase.get() == pobjCase) token->CaseEnabled(true);
  }
}

}  // namespace vantrel
