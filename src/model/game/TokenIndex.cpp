#include "model/game/TokenIndex.h"

#include "model/Token.h"

namespace vantrel {

TokenIndex::TokenIndex(const Collection<Token>& pcolTokens) {
  for (Collection<Token>::Cursor tokens(pcolTokens); Token* token = tokens.Next();) Add(*token);
}

const TokenIndex::ByArrival* TokenIndex::FreeOf(const WorkCase* pobjCase) const {
  const auto group = mcolGroups.find(pobjCase);
  return group == mcolGroups.end() || group->second.Free.empty() ? nullptr : &group->second.Free;
}

void TokenIndex::MarkAll(const WorkCase* pobjCase) {
  const auto group = mcolGroups.find(pobjCase);
  if (group == mcolGroups.end()) return;
  for (const auto& [arrival, token] : group->second.Unmarked) {
    token->mblnCaseEnabled.mblnOn = true;
    ++mlngMarked;
    mlngFreeMarked += !token->mblnTaken;
  }
  group->second.Unmarked.clear();
}

void TokenIndex::Add(Token& pobjToken) {
  pobjToken.mlngArrival = mlngArrivals++;
  Group& group = mcolGroups[pobjToken.WorkCase.get()];
  ++group.Count;
  if (pobjToken.mblnCaseEnabled) {
    ++mlngMarked;
  } else {
    group.Unmarked.emplace_hint(group.Unmarked.end(), pobjToken.mlngArrival, &pobjToken);
  }
  if (!pobjToken.mblnTaken) GiveBack(pobjToken);
}

void TokenIndex::Remove(const Token& pobjToken) {
  if (!pobjToken.mblnTaken) Take(pobjToken);
  const auto group = mcolGroups.find(pobjToken.WorkCase.get());
  if (pobjToken.mblnCaseEnabled) {
    --mlngMarked;
  } else {
    group->second.Unmarked.erase(pobjToken.mlngArrival);
  }
  if (--group->second.Count == 0) mcolGroups.erase(group);
}

void TokenIndex::Take(const Token& pobjToken) {
  mcolFree.erase(pobjToken.mlngArrival);
  mcolGroups.find(pobjToken.WorkCase.get())->second.Free.erase(pobjToken.mlngArrival);
  mlngFreeMarked -= pobjToken.mblnCaseEnabled;
}

void TokenIndex::GiveBack(Token& pobjToken) {
  mcolFree.emplace_hint(mcolFree.end(), pobjToken.mlngArrival, &pobjToken);
  auto& free = mcolGroups.find(pobjToken.WorkCase.get())->second.Free;
  free.emplace_hint(free.end(), pobjToken.mlngArrival, &pobjToken);
  mlngFreeMarked += pobjToken.mblnCaseEnabled;
}

}  // namespace vantrel
