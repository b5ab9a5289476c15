#include "model/game/Firing.h"

#include <algorithm>
#include <utility>

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "model/game/Arrival.h"
#include "model/game/Departure.h"
#include "model/game/Enabling.h"
#include "model/game/FiringNext.h"
#include "model/game/SecondLook.h"
#include "model/game/TokenRules.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

constexpr const char* kOther = "<other>";

}  // namespace

Firing::Firing(std::shared_ptr<Transition> pobjTransition, std::shared_ptr<WorkCase> pobjCase)
    : mobjTransition(std::move(pobjTransition)),
      mobjCase(std::move(pobjCase)),
      mChosen(*mobjTransition),
      mOutputs(mobjTransition->OutArcs),
      mobjEarlier(mobjTransition->mobjUnderWay),
      mblnTracking(TokenRules::CaseTracking(*mobjTransition)) {
  ++mobjTransition->mFiringsUnderWay;
}

Firing::~Firing() {
  if (mobjTransition->mobjUnderWay == this) mobjTransition->mobjUnderWay = mobjEarlier;
  Delivered();
  if (const auto run = mobjRun.lock()) run->Starter(nullptr);
}

void Firing::Delivered() {
  if (!std::exchange(mblnDelivered, true)) --mobjTransition->mFiringsUnderWay;
}

// A loop of transitions lets the tokens of a firing descend from an earlier firing of the same transition. Tokens that merely
// wait side by side, however many are worked off inside one another, do not.
void Firing::FollowTokens() {
  for (const auto& token : mChosen.Tokens()) {
    const auto* maker = token->CreateTransition.get();
    const auto* made = maker ? maker->mobjUnderWay : nullptr;
    if (made) mlngDepth = std::max(mlngDepth, made->mlngDepth + 1);
  }
  if (mobjEarlier) mlngRounds = mobjEarlier->mlngRounds + (mlngDepth > mobjEarlier->mlngDepth);
  mobjTransition->mobjUnderWay = this;
  if (mlngRounds > 0) TokenGame::CheckRounds(*mobjTransition, mlngRounds, mlngDepth);
}

bool Firing::Absorb(const Error& pobjError) {
  if (mblnIgnoreErrors && pobjError.Number != vntErrOutOfStack) return true;
  mChosen.GiveBack();
  Enabling::Settle(*mobjTransition);
  for (const auto& token : mChosen.Tokens()) {
    if (token) Enabling::SettleAround(*token);
  }
  return false;
}

bool Firing::Advance(TokenGame& pobjGame) {
  while (mStage != kEnd) {
    DoStage(pobjGame);
    if (!pobjGame.IsTop(*this)) return true;
  }
  return false;
}

// When a stage fails under case tracking, the firing goes on with the stage set before it.
void Firing::DoStage(TokenGame& pobjGame) {
  switch (mStage) {
    case kChoose:
      mStage = kGiveBack;
      pobjGame.CheckDepth(*mobjTransition);
      mStage = Choose();
      break;
    case kStartSubflow:
      mStage = kReevaluate;
      mStage = StartSubflow(pobjGame);
      break;
    case kFireSubflow:
      mStage = kReevaluate;
      mStage = FireSubflow(pobjGame);
      break;
    case kReevaluate:
      mStage = Reevaluate(pobjGame);
      break;
    case kPrepareOutput:
      mStage = kGiveBack;
      mStage = PrepareOutput();
      break;
    case kProduce:
      mStage = Produce(pobjGame);
      break;
    case kDated:
      if (const auto token = mChosen.Leave(mlngNext++)) token->DateConsumed = Date::Now();
      [[fallthrough]];
    case kWithdraw:
      mStage = kDated;
      mStage = Withdraw(pobjGame);
      break;
    case kGiveBack:
      mStage = GiveBack(pobjGame);
      break;
    case kEnd:
      break;
  }
}

Firing::Stage Firing::Choose() {
  if (mblnTracking) {
    if (!ChooseCase()) return kGiveBack;
    TakeOfCase();
  } else {
    TakeWithoutCases();
  }
  FollowTokens();
  if (const auto* workflow = mobjTransition->Workflow.get()) workflow->OnFiring.Raise(mobjTransition);
  const auto& object = mobjTransition->Object();
  const bool isWorkflow = object && StripQualifier(object->Class()) == "Workflow";
  return isWorkflow ? kStartSubflow : kPrepareOutput;
}

// Two arcs from one place take two tokens.
void Firing::TakeWithoutCases() {
  for (Collection<Arc>::Cursor inputs(mobjTransition->InArcs); const Arc* arc = inputs.Next();) {
    auto token = TokenRules::Shared(*arc->Place, TokenRules::Next(*arc->Place));
    if (!token) throw Error(vntErrInvalidCall);
    mChosen.Take(*arc->Place, std::move(token));
  }
}

bool Firing::ChooseCase() {
  const Place* scarcest = nullptr;
  for (Collection<Arc>::Cursor inputs(mobjTransition->InArcs); const Arc* arc = inputs.Next();) {
    if (!scarcest || TokenRules::FreeCount(*arc->Place) < TokenRules::FreeCount(*scarcest)) scarcest = arc->Place.get();
  }
  mblnIgnoreErrors = true;
  const TriggerTypes trigger = mobjTransition->TriggerType();
  if (trigger != vntUser && trigger != vntAutomatic) return true;

  const bool fifo = scarcest && scarcest->SelectionType == vntSelectionTypeFIFO;
  const bool oldestWins = trigger == vntAutomatic ? fifo : gobjVantrel->TakesFirstCase();
  Collection<WorkCase> candidates;
  const auto addCaseOf = [&](const Token& pobjToken) {
    const std::shared_ptr<WorkCase>& workCase = pobjToken.WorkCase;
    if (!workCase || candidates.Contains(workCase->Key)) return true;
    Collection<Arc>::Cursor inputs(mobjTransition->InArcs);
    const Arc* arc = inputs.Next();
    while (arc && TokenRules::HoldsOf(*arc->Place, workCase.get())) arc = inputs.Next();
    if (!arc) candidates.Add(workCase, workCase->Key);
    return arc || !oldestWins;
  };
  if (scarcest) TokenRules::VisitFree(*scarcest, addCaseOf);
  if (trigger == vntUser && (candidates.IsEmpty() || !oldestWins)) return AskForCase(candidates);
  if (!candidates.IsEmpty()) mobjCase = oldestWins ? candidates.First() : candidates.Last();
  return true;
}

bool Firing::AskForCase(const Collection<WorkCase>& pcolCandidates) {
  std::vector<std::string> names;
  for (Collection<WorkCase>::Cursor cases(pcolCandidates); const WorkCase* candidate = cases.Next();) {
    names.push_back(candidate->Name);
  }
  mblnCanFireAgain = !names.empty();
  const auto chosen = gobjVantrel->SelectOption("Select workcase for consumption.", names);
  if (!chosen) return false;
  if (auto candidate = pcolCandidates.Find(*chosen)) mobjCase = std::move(candidate);
  return true;
}

void Firing::TakeOfCase() {
  for (Collection<Arc>::Cursor inputs(mobjTransition->InArcs); const Arc* arc = inputs.Next();) {
    Place* place = arc->Place.get();
    auto token = place ? TokenRules::Shared(*place, TokenRules::NextOf(*place, mobjCase.get())) : nullptr;
    if (token) mChosen.Take(*place, std::move(token));
  }
}

Firing::Stage Firing::StartSubflow(TokenGame& pobjGame) {
  mobjSubflow = mobjTransition->EmbeddedWorkflow();
  if (!mobjSubflow) throw Error(vntErrTypeMismatch);
  const auto start = mobjSubflow->StartPlace.Lock();
  if (!start) {
    throw Error(vntErrObjectNotSet, "The workflow in transition \"" + mobjTransition->Name() + "\" has no start place.");
  }
  mobjTransition->Subflow(mobjSubflow);
  const auto token = mobjSubflow->CreateToken(start, mobjTransition, mobjCase);
  const auto& chosen = mChosen.Tokens();
  if (!chosen.empty()) token->Tag = chosen.front()->Tag;
  const auto run = SubflowRun::Start(*mobjTransition, std::move(mChosen), *this, mobjCase);
  mobjRun = run;
  token->mobjRun = run;
  pobjGame.Call<Arrival>(start, token);
  return kFireSubflow;
}

Firing::Stage Firing::FireSubflow(TokenGame& pobjGame) {
  pobjGame.Call<FiringNext>(mobjSubflow, nullptr);
  return kReevaluate;
}

// The chosen tokens no longer count for others; what else lies in the input places may let the transition fire again.
Firing::Stage Firing::Reevaluate(TokenGame& pobjGame) {
  const auto run = mobjRun.lock();
  if (!run) return mChosen.Tokens().empty() ? kEnd : kGiveBack;
  while (mlngNext < run->Tokens().size()) {
    const auto& token = run->Tokens()[mlngNext++];
    auto place = token ? token->Place.Lock() : nullptr;
    if (!place) continue;
    pobjGame.Call<Reevaluation>(std::move(place));
    return kReevaluate;
  }
  return kEnd;
}

bool Firing::ChooseOutputs() {
  std::vector<std::string> options;
  bool hasUnguarded = false;
  for (Collection<Arc>::Cursor outputs(mobjTransition->OutArcs); const Arc* arc = outputs.Next();) {
    if (arc->Guard().empty()) {
      hasUnguarded = true;
    } else {
      options.push_back(arc->Guard());
    }
  }
  if (hasUnguarded) options.emplace_back(kOther);
  mblnCanFireAgain = !options.empty();
  auto chosen = gobjVantrel->SelectOption("Select ouputs:", options);
  if (!chosen) return false;
  mstrGuard = std::make_unique<std::string>(std::move(*chosen));
  return true;
}

Firing::Stage Firing::PrepareOutput() {
  switch (mobjTransition->OutputType()) {
    case vntSelect:
      if (!ChooseOutputs()) return kGiveBack;
      break;
    case vntDistribute:
      gobjVantrel->SelectTokens(*mobjTransition->Workflow, *mobjTransition);
      return kGiveBack;
    case vntProgrammed:
      if (mobjTransition->Action.empty()) {
        gobjVantrel->Tell("Programmed output must be performed by a Action.");
        return kGiveBack;
      }
      mStage = kWithdraw;  // an action that fails has been run all the same
      gobjVantrel->RunAction(*mobjTransition);
      mblnOutputDone = true;
      return kWithdraw;
    default:
      mblnCanFireAgain = !mobjTransition->OutArcs.IsEmpty();
      break;
  }
  mobjOuter = RunOf(mChosen.Tokens());
  return kProduce;
}

bool Firing::Accepts(const Arc& pobjArc) const {
  if (!mstrGuard) return true;
  return *mstrGuard == pobjArc.Guard() || (*mstrGuard == kOther && pobjArc.Guard().empty());
}

Firing::Stage Firing::Produce(TokenGame& pobjGame) {
  while (const Arc* arc = mOutputs.Next()) {
    if (!Accepts(*arc)) continue;
    auto place = arc->Place.Lock();
    auto token = mobjTransition->Workflow->CreateToken(arc->Place, mobjTransition, mobjCase);
    token->mobjRun = mobjOuter;
    mblnOutputDone = true;
    pobjGame.Call<Arrival>(std::move(place), std::move(token));
    return kProduce;
  }
  return mblnOutputDone ? kWithdraw : kGiveBack;
}

Firing::Stage Firing::Withdraw(TokenGame& pobjGame) {
  for (; mlngNext < mChosen.Tokens().size(); ++mlngNext) {
    const auto& token = mChosen.Tokens()[mlngNext];
    auto place = token ? token->Place.Lock() : nullptr;
    if (!place) continue;
    token->ConsumeTransition = mobjTransition;
    token->Dirty = true;
    pobjGame.Call<Departure>(std::move(place), token, Departure::kConsumed);
    return kDated;
  }
  return kEnd;
}

Firing::Stage Firing::GiveBack(TokenGame& pobjGame) {
  if (mlngNext == 0) {
    mChosen.GiveBack();
    if (mblnCanFireAgain) Enabling::Settle(*mobjTransition);
  }
  while (mlngNext < mChosen.Tokens().size()) {
    const auto& token = mChosen.Tokens()[mlngNext++];
    auto place = token ? token->Place.Lock() : nullptr;
    if (!place) continue;
    pobjGame.Call<SecondLook>(std::move(place));
    return kGiveBack;
  }
  return kEnd;
}

}  // namespace vantrel
