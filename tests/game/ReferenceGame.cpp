#include "game/ReferenceGame.h"

#include <algorithm>
#include <utility>

namespace vantrel::test {

ReferenceGame::ReferenceGame(NetPlan pPlan, std::vector<PlannedCase> pCases, Asks pAsk)
    : mPlan(std::move(pPlan)),
      mCases(std::move(pCases)),
      mAsk(std::move(pAsk)),
      mPlaces(mPlan.Places.size()),
      mEnabled(mPlan.Transitions.size()),
      mUnderWay(mPlan.Transitions.size()),
      mStacks(mPlan.Nets.size()),
      mObservers(mPlan.Nets.size()) {}

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
  const auto net = mPlan.Places[pPlace].Net;
  token.Number = 1 + static_cast<int>(std::count_if(mTokens.begin(), mTokens.end(),
                                                    [&](const RefToken& other) { return mPlan.Places[other.Place].Net == net; }));
  token.Place = pPlace;
  token.Creator = pTransition;
  token.Case = pCase;
  mTokens.push_back(token);
  return static_cast<int>(mTokens.size()) - 1;
}

void ReferenceGame::Put(std::size_t pPlace, int pCase) { Add(pPlace, Create(pPlace, kNone, pCase)); }

void ReferenceGame::ChangeByHand(std::size_t pPlace, int pPosition, int pCase) {
  auto& token = mTokens[mPlaces[pPlace].Tokens[pPosition]];
  token.Case = pCase;
  token.Enabled = false;
}

void ReferenceGame::StartCase(int pCase) {
  for (std::size_t place = 0; place < mPlaces.size(); ++place) {
    const bool isFed =
        std::any_of(mPlan.Arcs.begin(), mPlan.Arcs.end(), [&](const auto& arc) { return arc.Place == place && !arc.IsInput; });
    if (!isFed && mPlan.Places[place].Net == 0) Put(place, pCase);
  }
}

void ReferenceGame::Add(std::size_t pPlace, int pToken) {
  const int workCase = mTokens[pToken].Case;
  mPlaces[pPlace].Tokens.push_back(pToken);
  for (const auto transition : FedBy(pPlace)) {
    if (Arrived(transition, workCase)) SetEnabled(transition, true);
  }
  mLog += "+" + std::to_string(pPlace) + ":" + std::to_string(mTokens[pToken].Number) + " ";
  const auto net = mPlan.Places[pPlace].Net;
  if (pPlace == mPlan.Nets[net].End) EndCase(net, pPlace, pToken);
}

void ReferenceGame::EndCase(std::size_t pNet, std::size_t pPlace, int pToken) {
  if (!mPlan.Nets[pNet].KeepHistory) Remove(pPlace, pToken);
  mLog += "end:" + std::to_string(mTokens[pToken].Number) + " ";
  const auto& token = mTokens[pToken];
  if (token.Run != kNone) {
    if (!mRuns[token.Run].Over) Deliver(mRuns[token.Run].Transition, pToken);
    return;
  }
  const auto observers = mObservers[pNet];
  const auto first = std::find_if(observers.begin(), observers.end(),
                                  [&](std::size_t transition) { return OldestRun(transition, mTokens[pToken].Case) != kNone; });
  if (first != observers.end()) return Deliver(*first, pToken);
  for (const auto observer : observers) Deliver(observer, pToken);
}

int ReferenceGame::OldestRun(std::size_t pTransition, int pCase) const {
  const auto run = std::find_if(mRuns.begin(), mRuns.end(),
                                [&](const Run& other) { return !other.Over && other.Transition == pTransition && other.Case == pCase; });
  return run == mRuns.end() ? kNone : static_cast<int>(run - mRuns.begin());
}

int ReferenceGame::RunOf(const std::vector<int>& pTokens) const {
  const auto known = std::find_if(pTokens.begin(), pTokens.end(), [&](int token) { return mTokens[token].Run != kNone; });
  return known == pTokens.end() ? kNone : mTokens[*known].Run;
}

void ReferenceGame::RunSubflow(std::size_t pTransition, int pCase, int pFiring, std::vector<int>& pTaken) {
  const auto net = mPlan.Transitions[pTransition].Embeds;
  const auto start = mPlan.Nets[net].Start;
  auto& observers = mObservers[net];
  if (std::find(observers.begin(), observers.end(), pTransition) == observers.end()) observers.push_back(pTransition);
  const int token = Create(start, static_cast<int>(pTransition), pCase);
  const std::size_t run = mRuns.size();
  mRuns.push_back({pTransition, pFiring, pCase, RunOf(pTaken), std::exchange(pTaken, {})});
  mTokens[token].Run = static_cast<int>(run);
  Tolerant([&] { Add(start, token); });
  Tolerant([&] { FireNextIn(net, kNone); });
  for (std::size_t at = 0; !mRuns[run].Over && at < mRuns[run].Tokens.size(); ++at) {
    const int taken = mRuns[run].Tokens[at];
    if (mTokens[taken].TakenBy == pFiring) Tolerant([&] { Reevaluate(mTokens[taken].Place); });
  }
}

void ReferenceGame::Deliver(std::size_t pTransition, int pToken) {
  int run = mTokens[pToken].Run;
  if (run == kNone || mRuns[run].Over || mRuns[run].Transition != pTransition) run = OldestRun(pTransition, mTokens[pToken].Case);
  if (run != kNone) mRuns[run].Over = true;
  const auto ended = run == kNone ? Run{pTransition, kNone, kNone, kNone, {}} : mRuns[run];
  try {
    for (const auto arc : ArcsOf(pTransition, false)) {
      const int token = Create(mPlan.Arcs[arc].Place, static_cast<int>(pTransition), mTokens[pToken].Case);
      mTokens[token].Run = ended.Outer;
      Add(mPlan.Arcs[arc].Place, token);
    }
    for (const int token : ended.Tokens) {
      if (mTokens[token].TakenBy != ended.Firing) continue;
      mTokens[token].Consumer = static_cast<int>(pTransition);
      Leave(mTokens[token].Place, token);
      mTokens[token].Dated = true;
    }
  } catch (const Refused&) {
    if (run != kNone) GiveBack(pTransition, ended.Tokens, ended.Firing, true, false);
    throw;
  }
  if (run != kNone && std::exchange(mRuns[run].StarterUnderWay, false)) --mUnderWay[pTransition];
  FireNextIn(mPlan.Transitions[pTransition].Net, kNone);
}

// A chosen token counts for no firing, unless the question is what would be without that.
bool ReferenceGame::Passes(const Question& pQuestion, std::size_t pPlace, bool pblnTakenToo) const {
  const auto& held = mPlaces[pPlace].Tokens;
  return std::any_of(held.begin(), held.end(), [&](int index) {
    const auto& token = mTokens[index];
    if (token.TakenBy != kNone && !pblnTakenToo) return false;
    if (!mPlan.CaseTracking) return true;
    return pQuestion.ByDeparture ? token.Enabled : token.Case == kNone || token.Case == pQuestion.Case;
  });
}

bool ReferenceGame::Complete(const Question& pQuestion, bool pblnTakenToo) const {
  const auto inputs = ArcsOf(pQuestion.Transition, true);
  return std::all_of(inputs.begin(), inputs.end(), [&](std::size_t arc) { return Passes(pQuestion, mPlan.Arcs[arc].Place, pblnTakenToo); });
}

bool ReferenceGame::Ask(const Question& pQuestion) {
  const bool complete = Complete(pQuestion, false);
  const bool heldUp = !complete && Complete(pQuestion, true);
  const auto known = std::find(mHeldUp.begin(), mHeldUp.end(), pQuestion);
  if (heldUp && known == mHeldUp.end()) mHeldUp.push_back(pQuestion);
  if (!heldUp && known != mHeldUp.end()) mHeldUp.erase(known);
  return complete;
}

bool ReferenceGame::Arrived(std::size_t pTransition, int pCase) {
  if (!Ask({pTransition, pCase, false})) return false;
  Mark(pTransition, pCase);
  return true;
}

bool ReferenceGame::Left(std::size_t pTransition) {
  const Question question{pTransition, kNone, true};
  if (mPlan.CaseTracking) {
    for (const auto arc : ArcsOf(pTransition, true)) {
      const auto place = mPlan.Arcs[arc].Place;
      mPlaces[place].CaseEnabled = Passes(question, place, false);
    }
  }
  return Ask(question);
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
  Leave(pPlace, *found);
}

void ReferenceGame::Leave(std::size_t pPlace, int pToken) {
  std::erase(mPlaces[pPlace].Tokens, pToken);
  mTokens[pToken].TakenBy = kNone;
  Reevaluate(pPlace);
}

void ReferenceGame::Reevaluate(std::size_t pPlace) {
  for (const auto transition : FedBy(pPlace)) SetEnabled(transition, Left(transition));
}

// True when the transition has to fire now.
bool ReferenceGame::Switch(std::size_t pTransition, bool pblnOn) {
  mEnabled[pTransition] = pblnOn;
  auto& stack = StackOf(pTransition);
  const auto entry = std::find(stack.begin(), stack.end(), pTransition);
  if (pblnOn && entry == stack.end()) stack.push_back(pTransition);
  if (!pblnOn && entry != stack.end()) stack.erase(entry);
  return pblnOn && mPlan.Transitions[pTransition].Trigger == vntAutomatic;
}

void ReferenceGame::SetEnabled(std::size_t pTransition, bool pblnOn) {
  if (Switch(pTransition, pblnOn)) Fire(pTransition, kNone);
}

void ReferenceGame::FireNext(int pTransition) { FireNextIn(0, pTransition); }

void ReferenceGame::FireNextIn(std::size_t pNet, int pTransition) {
  auto& stack = mStacks[pNet];
  try {
    const auto entry = std::find_if(stack.begin(), stack.end(), [&](std::size_t transition) {
      return pTransition == kNone ? mUnderWay[transition] == 0 : transition == static_cast<std::size_t>(pTransition);
    });
    if (entry == stack.end()) throw Refused{5};
    const auto transition = *entry;
    stack.erase(entry);
    Fire(transition, kNone);
  } catch (const Refused& refused) {
    if (refused.Number != 5) mLog += "box ";
  }
}

std::vector<int> ReferenceGame::FreeIn(std::size_t pPlace) const {
  auto free = mPlaces[pPlace].Tokens;
  std::erase_if(free, [&](int token) { return mTokens[token].TakenBy != kNone; });
  return free;
}

void ReferenceGame::TakeAny(std::size_t pTransition, int pFiring, std::vector<int>& pTaken) {
  for (const auto arc : ArcsOf(pTransition, true)) {
    const auto place = mPlan.Arcs[arc].Place;
    const auto free = FreeIn(place);
    if (free.empty()) throw Refused{5};
    pTaken.push_back(mPlan.Places[place].Selection == vntSelectionTypeFIFO ? free.front() : free.back());
    mTokens[pTaken.back()].TakenBy = pFiring;
  }
}

void ReferenceGame::TakeOf(std::size_t pTransition, int pCase, int pFiring, std::vector<int>& pTaken) {
  for (const auto arc : ArcsOf(pTransition, true)) {
    const auto free = FreeIn(mPlan.Arcs[arc].Place);
    const auto found = std::find_if(free.begin(), free.end(), [&](int token) { return mTokens[token].Case == pCase; });
    if (found == free.end()) continue;
    pTaken.push_back(*found);
    mTokens[*found].TakenBy = pFiring;
  }
}

bool ReferenceGame::HoldsCase(std::size_t pPlace, int pCase) const {
  const auto free = FreeIn(pPlace);
  return std::any_of(free.begin(), free.end(), [&](int token) { return mTokens[token].Case == pCase; });
}

bool ReferenceGame::Choose(std::size_t pTransition, int& pCase, bool& pblnCanFireAgain) {
  const auto inputs = ArcsOf(pTransition, true);
  std::vector<int> candidates;
  SelectionTypes selection = vntSelectionTypeFIFO;
  if (!inputs.empty()) {
    const auto fewer = [&](std::size_t a, std::size_t b) {
      return FreeIn(mPlan.Arcs[a].Place).size() < FreeIn(mPlan.Arcs[b].Place).size();
    };
    const auto scarcest = mPlan.Arcs[*std::min_element(inputs.begin(), inputs.end(), fewer)].Place;
    selection = mPlan.Places[scarcest].Selection;
    for (const int token : FreeIn(scarcest)) {
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
  pblnCanFireAgain = !names.empty();
  const auto answer = mAsk("Select workcase for consumption.", names);
  if (!answer) return false;
  for (const int candidate : candidates) {
    if (mCases[candidate].Key == *answer) pCase = candidate;
  }
  return true;
}

void ReferenceGame::Fire(std::size_t pTransition, int pCase) {
  const int firing = mFirings++;
  std::vector<int> taken;
  bool canFireAgain = true;
  ++mUnderWay[pTransition];
  try {
    bool done = true;
    if (mPlan.CaseTracking) {
      done = Choose(pTransition, pCase, canFireAgain);
      if (done) TakeOf(pTransition, pCase, firing, taken);
    } else {
      TakeAny(pTransition, firing, taken);
    }
    if (done) mLog += "!" + std::to_string(pTransition) + " ";
    if (done && mPlan.Transitions[pTransition].Embeds != 0) {
      RunSubflow(pTransition, pCase, firing, taken);
    } else if (done && Produce(pTransition, pCase, RunOf(taken), canFireAgain)) {
      Withdraw(pTransition, taken, firing);
    } else {
      GiveBack(pTransition, taken, firing, canFireAgain, true);
    }
  } catch (const Refused&) {
    GiveBack(pTransition, taken, firing, true, false);
    Ended(pTransition, firing);
    throw;
  }
  Ended(pTransition, firing);
}

// Unless its subflow delivered before.
void ReferenceGame::Ended(std::size_t pTransition, int pFiring) {
  const auto run = std::find_if(mRuns.begin(), mRuns.end(), [&](const Run& other) { return other.Firing == pFiring; });
  if (run == mRuns.end() || std::exchange(run->StarterUnderWay, false)) --mUnderWay[pTransition];
}

void ReferenceGame::Withdraw(std::size_t pTransition, const std::vector<int>& pTaken, int pFiring) {
  for (const int token : pTaken) {
    if (mTokens[token].TakenBy != pFiring) continue;  // taken away by hand
    mTokens[token].Consumer = static_cast<int>(pTransition);
    Tolerant([&] { Leave(mTokens[token].Place, token); });
    mTokens[token].Dated = true;
  }
}

void ReferenceGame::GiveBack(std::size_t pTransition, const std::vector<int>& pTaken, int pFiring, bool pblnCanFireAgain, bool pblnFires) {
  auto kept = pTaken;
  std::erase_if(kept, [&](int token) { return mTokens[token].TakenBy != pFiring; });
  for (const int token : kept) mTokens[token].TakenBy = kNone;
  if (pblnCanFireAgain) Settle(pTransition);
  for (const int token : kept) Tolerant([&] { LookAgain(mTokens[token].Place, pblnFires); });
}

// Enabled means on the stack; FireNext took the transition off.
void ReferenceGame::Settle(std::size_t pTransition) {
  if (!mEnabled[pTransition] ||
      std::find(StackOf(pTransition).begin(), StackOf(pTransition).end(), pTransition) != StackOf(pTransition).end()) {
    return;
  }
  const auto inputs = ArcsOf(pTransition, true);
  const bool canFire = std::all_of(inputs.begin(), inputs.end(), [&](std::size_t arc) { return !FreeIn(mPlan.Arcs[arc].Place).empty(); });
  const bool heldUp = !canFire && std::all_of(inputs.begin(), inputs.end(),
                                              [&](std::size_t arc) { return !mPlaces[mPlan.Arcs[arc].Place].Tokens.empty(); });
  const Question question{pTransition, kNone, true};
  if (heldUp && std::find(mHeldUp.begin(), mHeldUp.end(), question) == mHeldUp.end()) mHeldUp.push_back(question);
  Switch(pTransition, canFire);
}

void ReferenceGame::LookAgain(std::size_t pPlace, bool pblnFires) {
  for (const auto transition : FedBy(pPlace)) {
    auto questions = mHeldUp;
    std::erase_if(questions, [&](const Question& question) { return question.Transition != transition; });
    for (const auto& question : questions) {
      if (std::erase(mHeldUp, question) == 0) continue;
      const bool enabled = question.ByDeparture ? Left(transition) : Arrived(transition, question.Case);
      if (enabled && Switch(transition, true) && pblnFires) Fire(transition, kNone);
    }
  }
}

bool ReferenceGame::Produce(std::size_t pTransition, int pCase, int pRun, bool& pblnCanFireAgain) {
  const auto& planned = mPlan.Transitions[pTransition];
  if (planned.Output == vntDistribute) {
    mLog += "distribute ";
    return false;
  }
  if (planned.Output == vntProgrammed) {
    mLog += planned.HasAction ? "run " : "box ";
    return planned.HasAction;
  }
  if (planned.Output != vntSelect) {
    pblnCanFireAgain = !ArcsOf(pTransition, false).empty();
    return ProduceOn(pTransition, pCase, pRun, nullptr);
  }
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
  pblnCanFireAgain = !guards.empty();
  const auto answer = mAsk("Select ouputs:", guards);
  return answer && ProduceOn(pTransition, pCase, pRun, &*answer);
}

bool ReferenceGame::ProduceOn(std::size_t pTransition, int pCase, int pRun, const std::string* pGuard) {
  bool done = false;
  for (const auto arc : ArcsOf(pTransition, false)) {
    const auto& guard = mPlan.Arcs[arc].Guard;
    if (pGuard && *pGuard != guard && !(*pGuard == "<other>" && guard.empty())) continue;
    const auto place = mPlan.Arcs[arc].Place;
    const int token = Create(place, static_cast<int>(pTransition), pCase);
    mTokens[token].Run = pRun;
    Tolerant([&] { Add(place, token); });
    done = true;
  }
  return done;
}

std::string ReferenceGame::Dump() const {
  std::string text = mLog + "\n";
  for (const auto& place : mPlaces) {
    text += place.CaseEnabled ? "P*" : "P";
    for (const int token : place.Tokens) text += " " + std::to_string(mTokens[token].Number);
    text += "\n";
  }
  for (std::size_t net = 0; net < mPlan.Nets.size(); ++net) {
    for (const auto& token : mTokens) {
      if (mPlan.Places[token.Place].Net != net) continue;
      text += "case " + (token.Case == kNone ? "" : mCases[token.Case].Key) + " by " + std::to_string(token.Creator) + " to " +
              std::to_string(token.Consumer) + (token.Enabled ? " enabled" : "") + (token.Dated ? " dated" : "") + "\n";
    }
  }
  for (const char enabled : mEnabled) text += enabled ? "1" : "0";
  for (const auto& stack : mStacks) {
    for (const auto transition : stack) text += " " + std::to_string(transition);
    text += "\n";
  }
  return text;
}

}  // namespace vantrel::test
