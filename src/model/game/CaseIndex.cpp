#include "model/game/CaseIndex.h"

#include "model/Workflow.h"

namespace vantrel {

namespace {

constexpr std::int32_t kCrowd = 64;

}  // namespace

CaseIndex::CaseIndex(const Place& pobjPlace) : mlngTokenChanges(pobjPlace.Tokens().Changes()), mlngCaseChanges(CaseLink::Changes()) {
  for (const auto& token : pobjPlace.Tokens()) Insert(token);
}

CaseIndex* CaseIndex::Of(const Place& pobjPlace) {
  auto& index = pobjPlace.mobjCases;
  if (pobjPlace.Tokens().Count() < kCrowd) {
    index.reset();
  } else if (!index || !index->IsFresh(pobjPlace)) {
    index = std::make_unique<CaseIndex>(pobjPlace);
  }
  return index.get();
}

bool CaseIndex::IsFresh(const Place& pobjPlace) const {
  return mlngTokenChanges == pobjPlace.Tokens().Changes() && mlngCaseChanges == CaseLink::Changes();
}

const Collection<Token>* CaseIndex::TokensOf(const WorkCase* pobjCase) const {
  const auto group = mcolGroups.find(pobjCase);
  return group == mcolGroups.end() ? nullptr : &group->second.All;
}

void CaseIndex::Insert(const std::shared_ptr<Token>& pobjToken) {
  Group& group = mcolGroups[pobjToken->WorkCase.get()];
  group.All.Add(pobjToken, pobjToken->Key);
  (pobjToken->mblnCaseEnabled ? mcolMarked : group.Unmarked).Add(pobjToken, pobjToken->Key);
}

void CaseIndex::MarkAll(const WorkCase* pobjCase) {
  const auto group = mcolGroups.find(pobjCase);
  if (group == mcolGroups.end()) return;
  auto& unmarked = group->second.Unmarked;
  while (!unmarked.IsEmpty()) {
    const auto token = unmarked.TakeFirst();
    token->CaseEnabled(true);
    mcolMarked.Add(token, token->Key);
  }
}

void CaseIndex::Added(const Place& pobjPlace, const std::shared_ptr<Token>& pobjToken) {
  if (++mlngTokenChanges == pobjPlace.Tokens().Changes()) Insert(pobjToken);
}

void CaseIndex::Removed(const Place& pobjPlace, const Token& pobjToken) {
  const auto group = mcolGroups.find(pobjToken.WorkCase.get());
  if (++mlngTokenChanges != pobjPlace.Tokens().Changes() || group == mcolGroups.end()) return;
  group->second.All.RemoveIfThere(pobjToken.Key);
  group->second.Unmarked.RemoveIfThere(pobjToken.Key);
  mcolMarked.RemoveIfThere(pobjToken.Key);
  if (group->second.All.IsEmpty()) mcolGroups.erase(group);
}

}  // namespace vantrel
