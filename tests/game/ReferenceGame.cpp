#include "game/ReferenceGame.h"

#include <algorithm>
#include <utility>

namespace vantrel::test {

ReferenceGame::ReferenceGame(NetPlan pPlan, std::vector<PlannedCase> pCases, Asks pAsk)
    : mPlan(std::move(pPlan)),
      mCases(std::move(pCases)),
      mAsk(std::move(pAsk)),
      mPlaces(mPlan.Places.size()),
      mEnabled(mPlan.Transitions.size()) {}

std::vector<std::size_t> ReferenceGame::ArcsOf(std::size_t pTransition, bool pblnInput) const {
  std::vector<std::size_t> arcs;
  for (std::size_t i = 0; i < mPlan.Arcs.size(); ++i) {
    if (mPlan.Arcs[i].Transition == pTransition && mPlan.Arcs[i].IsInput == pblnInput) arcs.push_back(i);
  }
  return arcs;
}

std::vector<std::size_t> ReferenceGame::FedBy(std::size_t pPlace) const {
  std::vector<std::size_t> transitions;
  for (const auto& arc : mPlan.Arcs) {
    if (arc.Place == pPlace && arc.IsInput) transitions.push_back(arc.Transition);
  }
  return transitions;
}

void ReferenceGame::Tolerant(const std::function<void()>& pStep) const {
  if (!mPlan.CaseTracking) return pStep();
  try {
    pStep();
  } catch (const Refused&) {
  }
}

int ReferenceGame::Create(std::size_t pPlace, int pTransition, int pCase) {
  RefToken token;
  token.Place = pPlace;
  token.Creator = pTransition;
  token.Case = pCase;
  mTokens.push_back(token);
  return static_cast<int>(mTokens.size()) - 1;
}

void ReferenceGame::Put(std::size_t pPlace, int pCase) { Add(pPlace, Create(pPlace, kNone, pCase)); }

void ReferenceGame::ChangeByHand(int pToken, int pCase) {
  mTokens[pToken].Case = pCase;
  mTokens[pToken].Enabled = false;
}

void ReferenceGame::StartCase(int pCase) {
  for (std::size_t place = 0; place < mPlaces.size(); ++place) {
    const bool isFed =
        std::any_of(mPlan.Arcs.begin(), mPlan.Arcs.end(), [&](const auto& arc) { return arc.Place == place && !arc.IsInput; });
    if (!isFed) Put(place, pCase);
  }
}

void ReferenceGame::Add(std::size_t pPlace, int pToken) {
  const int workCase = mTokens[pToken].Case;
  mPlaces[pPlace].Tokens.push_back(pToken);
  for (const auto transition : FedBy(pPlace)) {
    const auto inputs = ArcsOf(transition, true);
    const auto satisfied = std::count_if(inputs.begin(), inputs.end(), [&](std::size_t arc) {
      const auto& held = mPlaces[mPlan.Arcs[arc].Place].Tokens;
      return std::any_of(held.begin(), held.end(),
                         [&](int token) { return !mPlan.CaseTracking || mTokens[token].Case == kNone || mTokens[token].Case == workCase; });
    });
    if (satisfied != static_cast<std::ptrdiff_t>(inputs.size())) continue;
    Mark(transition, workCase);
    SetEnabled(transition, true);
  }
  mLog += "+" + std::to_string(pPlace) + ":" + std::to_string(pToken + 1) + " ";
  if (pPlace + 1 != mPlaces.size()) return;
  if (!mPlan.KeepHistory) Remove(pPlace, pToken);
  mLog += "end:" + std::to_string(pToken + 1) + " ";
}

void ReferenceGame::Mark(std::size_t pTransition, int pCase) {
  for (const auto arc : ArcsOf(pTransition, true)) {
    auto& place = mPlaces[mPlan.Arcs[arc].Place];
    for (const int token : place.Tokens) {
      if (mTokens[token].Case == pCase) mTokens[token].Enabled = place.CaseEnabled = true;
    }
  }
}

void ReferenceGame::Remove(std::size_t pPlace, int pToken) {
  auto& tokens = mPlaces[pPlace].Tokens;
  const auto found = pToken == kNone ? tokens.begin() : std::find(tokens.begin(), tokens.end(), pToken);
  if (found == tokens.end()) throw Refused{5};
  tokens.erase(found);
  for (const auto transition : FedBy(pPlace)) {
    bool all = true;
    for (const auto arc : ArcsOf(transition, true)) {
      auto& place = mPlaces[mPlan.Arcs[arc].Place];
      bool holds = !place.Tokens.empty();
      if (mPlan.CaseTracking) {
        holds = std::any_of(place.Tokens.begin(), place.Tokens.end(), [&](int token) { return mTokens[token].Enabled; });
        place.CaseEnabled = holds;
      }
      all = all && holds;
    }
    SetEnabled(transition, all);
  }
}

void ReferenceGame::SetEnabled(std::size_t pTransition, bool pblnOn) {
  mEnabled[pTransition] = pblnOn;
  const auto entry = std::find(mStack.begin(), mStack.end(), pTransition);
  if (pblnOn && entry == mStack.end()) mStack.push_back(pTransition);
  if (!pblnOn && entry != mStack.end()) mStack.erase(entry);
  if (pblnOn && mPlan.Transitions[pTransition].Trigger == vntAutomatic) Fire(pTransition, kNone);
}

void ReferenceGame::FireNext(int pTransition) {
  try {
    if (pTransition == kNone && mStack.empty()) throw Refused{5};
    const std::size_t transition = pTransition == kNone ? mStack.front() : static_cast<std::size_t>(pTransition);
    const auto entry = std::find(mStack.begin(), mStack.end(), transition);
    if (entry == mStack.end()) throw Refused{5};
    mStack.erase(entry);
    Fire(transition, kNone);
  } catch (const Refused& refused) {
    if (refused.Number != 5) mLog += "box ";
  }
}

std::vector<int> ReferenceGame::TakeAny(std::size_t pTransition) const {
  std::vector<int> taken;
  for (const auto arc : ArcsOf(pTransition, true)) {
    const auto place = mPlan.Arcs[arc].Place;
    auto held = mPlaces[place].Tokens;
    std::erase_if(held, [&](int token) { return std::find(taken.begin(), taken.end(), token) != taken.end(); });
    if (held.empty()) throw Refused{5};
    taken.push_back(mPlan.Places[place].Selection == vntSelectionTypeFIFO ? held.front() : held.back());
  }
  return taken;
}

std::vector<int> ReferenceGame::TakeOf(std::size_t pTransition, int pCase) const {
  std::vector<int> taken;
  for (const auto arc : ArcsOf(pTransition, true)) {
    const auto& held = mPlaces[mPlan.Arcs[arc].Place].Tokens;
    const auto found = std::find_if(held.begin(), held.end(), [&](int token) {
      return mTokens[token].Case == pCase && std::find(taken.begin(), taken.end(), token) == taken.end();
    });
    if (found != held.end()) taken.push_back(*found);
  }
  return taken;
}

bool ReferenceGame::HoldsCase(std::size_t pPlace, int pCase) const {
  const auto& held = mPlaces[pPlace].Tokens;
  return std::any_of(held.begin(), held.end(), [&](int token) { return mTokens[token].Case == pCase; });
}

std::optional<std::string> ReferenceGame::Ask(std::size_t pTransition, const std::string& pstrPrompt,
                                              const std::vector<std::string>& pcolOptions) {
  const auto answer = mAsk(pstrPrompt, pcolOptions);
  const bool waits = std::find(mStack.begin(), mStack.end(), pTransition) != mStack.end();
  if (!answer && !pcolOptions.empty() && mEnabled[pTransition] && !waits) mStack.push_back(pTransition);
  return answer;
}

bool ReferenceGame::Choose(std::size_t pTransition, int& pCase) {
  const auto inputs = ArcsOf(pTransition, true);
  std::vector<int> candidates;
  SelectionTypes selection = vntSelectionTypeFIFO;
  if (!inputs.empty()) {
    const auto scarcest =
        mPlan
            .Arcs[*std::min_element(inputs.begin(), inputs.end(),
                                    [&](std::size_t a, std::size_t b) {
                                      return mPlaces[mPlan.Arcs[a].Place].Tokens.size() < mPlaces[mPlan.Arcs[b].Place].Tokens.size();
                                    })]
            .Place;
    selection = mPlan.Places[scarcest].Selection;
    for (const int token : mPlaces[scarcest].Tokens) {
      const int workCase = mTokens[token].Case;
      if (workCase == kNone || std::find(candidates.begin(), candidates.end(), workCase) != candidates.end()) continue;
      const bool all =
          std::all_of(inputs.begin(), inputs.end(), [&](std::size_t arc) { return HoldsCase(mPlan.Arcs[arc].Place, workCase); });
      if (all) candidates.push_back(workCase);
    }
  }
  const auto trigger = mPlan.Transitions[pTransition].Trigger;
  if (trigger == vntAutomatic && !candidates.empty()) {
    pCase = selection == vntSelectionTypeFIFO ? candidates.front() : candidates.back();
  }
  if (trigger != vntUser) return true;
  std::vector<std::string> names;
  for (const int candidate : candidates) names.push_back(mCases[candidate].Name);
  const auto answer = Ask(pTransition, "Select workcase for consumption.", names);
  if (!answer) return false;
  for (const int candidate : candidates) {
    if (mCases[candidate].Key == *answer) pCase = candidate;
  }
  return true;
}

void ReferenceGame::Fire(std::size_t pTransition, int pCase) {
  if (mPlan.CaseTracking && !Choose(pTransition, pCase)) return;
  const auto consumed = mPlan.CaseTracking ? TakeOf(pTransition, pCase) : TakeAny(pTransition);
  if (!Produce(pTransition, pCase)) return;
  for (const int token : consumed) {
    mTokens[token].Consumer = static_cast<int>(pTransition);
    Tolerant([&] { Remove(mTokens[token].Place, token); });
    mTokens[token].Dated = true;
  }
}

bool ReferenceGame::Produce(std::size_t pTransition, int pCase) {
  const auto& planned = mPlan.Transitions[pTransition];
  if (planned.Output == vntDistribute) {
    mLog += "distribute ";
    return false;
  }
  if (planned.Output == vntProgrammed) {
    mLog += planned.HasAction ? "run " : "box ";
    return planned.HasAction;
  }
  if (planned.Output != vntSelect) return ProduceOn(pTransition, pCase, nullptr);
  std::vector<std::string> guards;
  bool hasUnguarded = false;
  for (const auto arc : ArcsOf(pTransition, false)) {
    if (mPlan.Arcs[arc].Guard.empty()) {
      hasUnguarded = true;
    } else {
      guards.push_back(mPlan.Arcs[arc].Guard);
    }
  }
  if (hasUnguarded) guards.emplace_back("<other>");
  const auto answer = Ask(pTransition, "Select ouputs:", guards);
  return answer && ProduceOn(pTransition, pCase, &*answer);
}

bool ReferenceGame::ProduceOn(std::size_t pTransition, int pCase, const std::string* pGuard) {
  bool done = false;
  for (const auto arc : ArcsOf(pTransition, false)) {
    const auto& guard = mPlan.Arcs[arc].Guard;
    if (pGuard && *pGuard != guard && !(*pGuard == "<other>" && guard.empty())) continue;
    const auto place = mPlan.Arcs[arc].Place;
    const int token = Create(place, static_cast<int>(pTransition), pCase);
    Tolerant([&] { Add(place, token); });
    done = true;
  }
  return done;
}

std::string ReferenceGame::Dump() const {
  std::string text = mLog + "\n";
  for (const auto& place : mPlaces) {
    text += place.CaseEnabled ? "P*" : "P";
    for (const int token : place.Tokens) text += " " + std::to_string(token + 1);
    text += "\n";
  }
  for (const auto& token : mTokens) {
    text += "case " + (token.Case == kNone ? "" : mCases[token.Case].Key) + " by " + std::to_string(token.Creator) + " to " +
            std::to_string(token.Consumer) + (token.Enabled ? " enabled" : "") + (token.Dated ? " dated" : "") + "\n";
  }
  for (const char enabled : mEnabled) text += enabled ? "1" : "0";
  for (const auto transition : mStack) text += " " + std::to_string(transition);
  return text;
}

}  // namespace vantrel::test
