#include "model/game/TokenRules.h"

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "model/game/TokenIndex.h"

namespace vantrel {

namespace {

constexpr std::int32_t kCrowd = 64;  // below this a walk is as fast as a look-up

template <class Accepts>
Token* FirstThat(const Place& pobjPlace, Accepts&& pAccepts) {
  Collection<Token>::Cursor tokens(pobjPlace.Tokens());
  Token* token = tokens.Next();
  while (token && !pAccepts(*token)) token = tokens.Next();
  return token;
}

}  // namespace

bool TokenRules::CaseTracking(const Node& pobjNode) {
  const auto* own = pobjNode.Workflow.get();
  const auto* leading = own ? &own->Leading() : gobjWorkflow.get();
  return leading && leading->CaseTracking;
}

void TokenRules::Recount(const Place& pobjPlace) {
  pobjPlace.mobjIndex.reset();
  pobjPlace.mlngTaken = 0;
  pobjPlace.mlngKnownChanges = pobjPlace.Tokens().Changes();
  for (Collection<Token>::Cursor tokens(pobjPlace.Tokens()); const Token* token = tokens.Next();) {
    pobjPlace.mlngTaken += token->mblnTaken;
    // Put in by hand: the place will not hear of its changes, so it is asked anew each time.
    if (!(token->Place == &pobjPlace)) Forget(pobjPlace);
  }
}

void TokenRules::Forget(const Place& pobjPlace) { pobjPlace.mlngKnownChanges = pobjPlace.Tokens().Changes() - 1; }

TokenIndex* TokenRules::IndexOf(const Place& pobjPlace) {
  Refresh(pobjPlace);
  auto& index = pobjPlace.mobjIndex;
  const auto count = pobjPlace.Tokens().Count();
  if (index && count < kCrowd / 2) index.reset();
  if (!index && count >= kCrowd) index = std::make_unique<TokenIndex>(pobjPlace.Tokens());
  return index.get();
}

bool TokenRules::HoldsOf(const Place& pobjPlace, const WorkCase* pobjCase, Which pWhich) {
  if (!Holds(pobjPlace, pWhich)) return false;
  if (const auto* index = IndexOf(pobjPlace)) return pWhich == kAll ? index->HasAnyOf(pobjCase) : index->FreeOf(pobjCase) != nullptr;
  return FirstThat(pobjPlace, [&](const Token& token) { return token.WorkCase.get() == pobjCase && Counts(token, pWhich); });
}

bool TokenRules::HoldsMarked(const Place& pobjPlace, Which pWhich) {
  if (!Holds(pobjPlace, pWhich)) return false;
  if (const auto* index = IndexOf(pobjPlace)) return pWhich == kAll ? index->HasMarked() : index->HasFreeMarked();
  return FirstThat(pobjPlace, [&](const Token& token) { return token.mblnCaseEnabled && Counts(token, pWhich); });
}

Token* TokenRules::Next(const Place& pobjPlace) {
  if (FreeCount(pobjPlace) <= 0) return nullptr;
  const auto& tokens = pobjPlace.Tokens();
  const bool newest = pobjPlace.SelectionType == vntSelectionTypeLIFO;
  Token* const nearest = (newest ? tokens.Last() : tokens.First()).get();
  if (IsFree(*nearest)) return nearest;
  if (const auto* index = IndexOf(pobjPlace)) return newest ? index->Free().rbegin()->second : index->Free().begin()->second;
  Token* chosen = nullptr;
  VisitFree(pobjPlace, [&](Token& token) {
    chosen = &token;
    return newest;
  });
  return chosen;
}

Token* TokenRules::NextOf(const Place& pobjPlace, const WorkCase* pobjCase) {
  if (FreeCount(pobjPlace) <= 0) return nullptr;
  if (const auto* index = IndexOf(pobjPlace)) {
    const auto* free = index->FreeOf(pobjCase);
    return free ? free->begin()->second : nullptr;
  }
  return FirstThat(pobjPlace, [&](const Token& token) { return token.WorkCase.get() == pobjCase && IsFree(token); });
}

bool TokenRules::MarkEnabled(Place& pobjPlace, const WorkCase* pobjCase) {
  bool any = false;
  if (auto* index = IndexOf(pobjPlace)) {
    any = index->HasAnyOf(pobjCase);
    index->MarkAll(pobjCase);
  } else {
    for (Collection<Token>::Cursor tokens(pobjPlace.Tokens()); Token* token = tokens.Next();) {
      if (token->WorkCase.get() != pobjCase) continue;
      token->mblnCaseEnabled.mblnOn = any = true;
    }
  }
  if (any) pobjPlace.CaseEnabled(true);
  return any && pobjPlace.Image;
}

// A token that is moved by hand may lie in two places for a while. What the other one knows of it is no longer true.
void TokenRules::ForgetOtherPlace(const Place& pobjPlace, const Token& pobjToken) {
  const auto* other = pobjToken.Place.get();
  if (other && other != &pobjPlace) Forget(*other);
}

void TokenRules::Add(Place& pobjPlace, const std::shared_ptr<Token>& pobjToken) {
  ForgetOtherPlace(pobjPlace, *pobjToken);
  auto& tokens = pobjPlace.Tokens();
  tokens.Add(pobjToken, pobjToken->Key);
  if (++pobjPlace.mlngKnownChanges != tokens.Changes()) return Forget(pobjPlace);
  auto& index = pobjPlace.mobjIndex;
  if (!index) return;
  if (index->IsWornOut()) {
    index.reset();
  } else {
    index->Add(*pobjToken);
  }
}

std::shared_ptr<Token> TokenRules::Remove(Place& pobjPlace, const Token* pobjToken) {
  auto& tokens = pobjPlace.Tokens();
  auto token = pobjToken && !pobjToken->Key.empty() ? tokens.Take(pobjToken->Key) : tokens.TakeFirst();
  if (++pobjPlace.mlngKnownChanges == tokens.Changes()) {
    pobjPlace.mlngTaken -= token->mblnTaken;
    if (auto* index = pobjPlace.mobjIndex.get()) index->Remove(*token);
  } else {
    Forget(pobjPlace);
  }
  token->mblnTaken = false;
  ForgetOtherPlace(pobjPlace, *token);
  return token;
}

void TokenRules::Take(Place& pobjPlace, Token& pobjToken) {
  Refresh(pobjPlace);
  pobjToken.mblnTaken = true;
  ++pobjPlace.mlngTaken;
  if (auto* index = pobjPlace.mobjIndex.get()) index->Take(pobjToken);
}

void TokenRules::GiveBack(Token& pobjToken) {
  pobjToken.mblnTaken = false;
  const auto* place = pobjToken.Place.get();
  if (!place || place->mlngKnownChanges != place->Tokens().Changes()) return;  // will be counted anew
  if (place->Tokens().Find(pobjToken.Key).get() != &pobjToken) return;
  --place->mlngTaken;
  if (auto* index = place->mobjIndex.get()) index->GiveBack(pobjToken);
}

}  // namespace vantrel
