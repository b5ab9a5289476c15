#include "persistence/CaseTokens.h"

namespace vantrel {

std::vector<std::shared_ptr<Token>> CaseTokens::Of(Workflow& pobjWorkflow, const WorkCase* pobjCase) {
  Follow(pobjWorkflow);
  std::vector<std::shared_ptr<Token>> tokens;
  const auto group = mcolGroups.find(pobjCase);
  if (group == mcolGroups.end()) return tokens;
  for (std::uint32_t at = group->second.First; at != kNone; at = mcolNext[at]) {
    Token* const token = mcolTokens[at];
    auto shared = pobjWorkflow.Tokens.Find(token->Key);
    // A token whose key was changed in place is written all the same.
    tokens.push_back(shared.get() == token ? std::move(shared) : std::shared_ptr<Token>(std::shared_ptr<Token>(), token));
  }
  return tokens;
}

bool CaseTokens::OnlyGrew(const Workflow& pobjWorkflow) const {
  if (!(mobjWorkflow == &pobjWorkflow) || mlngCaseChanges != pobjWorkflow.CaseChanges()) return false;
  const auto& tokens = pobjWorkflow.Tokens;
  const std::uint64_t added = static_cast<std::uint64_t>(tokens.Count()) - mcolTokens.size();
  if (tokens.Changes() - mlngTokenChanges != added) return false;
  // Holes left by removals may have been closed, which moves all ranks.
  return mcolTokens.empty() || tokens.RankOf(mcolTokens.back()->Key, mcolTokens.back()) == mlngLastRank;
}

void CaseTokens::Follow(Workflow& pobjWorkflow) {
  if (!OnlyGrew(pobjWorkflow)) Forget();
  mobjWorkflow = &pobjWorkflow;
  const auto& tokens = pobjWorkflow.Tokens;
  Collection<Token>::Cursor cursor(tokens, mlngLastRank + 1);
  while (Token* token = cursor.Next()) {
    Add(token);
    mlngLastRank = cursor.Rank();
  }
  mlngTokenChanges = tokens.Changes();
  mlngCaseChanges = pobjWorkflow.CaseChanges();
}

void CaseTokens::Forget() {
  mcolGroups.clear();
  mcolTokens.clear();
  mcolNext.clear();
  mlngLastRank = -1;
}

void CaseTokens::Add(Token* pobjToken) {
  const auto at = static_cast<std::uint32_t>(mcolTokens.size());
  mcolTokens.push_back(pobjToken);
  mcolNext.push_back(kNone);
  const auto [group, isNew] = mcolGroups.try_emplace(pobjToken->WorkCase.get(), Group{at, at});
  if (isNew) return;
  mcolNext[group->second.Last] = at;
  group->second.Last = at;
}

}  // namespace vantrel
