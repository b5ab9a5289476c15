#include "model/game/Firing.h"

#include <algorithm>

#include "model/DesignerState.h"
#include "model/Workflow.h"
#include "model/game/Arrival.h"
#include "model/game/CaseIndex.h"
#include "model/game/Departure.h"
#include "model/game/FiringNext.h"
#include "model/game/TokenRules.h"
#include "util/Lookup.h"
#include "util/MsgBox.h"

namespace vantrel {

namespace {

constexpr const char* kOther = "<other>";

}  // namespace

Firing::Firing(std::shared_ptr<Transition> pobjTransition, std::shared_ptr<WorkCase> pobjCase)
    : mobjTransition(std::move(pobjTransition)),
      mobjCase(std::move(pobjCase)),
      mcolConsumed(TokenGame::Instance().BorrowList()),
      mOutputs(mobjTransition->OutArcs),
      mblnTracking(TokenRules::CaseTracking(*mobjTransition)) {
  ++mobjTransition->mFiringsUnderWay;
}

Firing::~Firing() {
  EndOutput();
  --mobjTransition->mFiringsUnderWay;
  TokenGame::Instance().GiveBackList(std::move(mcolConsumed));
}

void Firing::EndOutput() {
  if (!mobjGame) return;
  mobjGame->LeaveOutput(*mobjTransition);
  mobjGame = nullptr;
}

bool Firing::Absorb(const Error& pobjError) { return mblnIgnoreErrors && pobjError.Number != vntErrOutOfStack; }

bool Firing::Advance(TokenGame& pobjGame) {
  while (mStage != kEnd) {
    DoStage(pobjGame);
    if (!pobjGame.IsTop(*this)) return true;
  }
  return false;
}

void Firing::DoStage(TokenGame& pobjGame) {
  switch (mStage) {
    case kConsume:
      mStage = kEnd;  // where a failure of the stage itself leaves it
      pobjGame.CheckDepth(*mobjTransition);
      mStage = Consume();
      break;
    case kStartSubflow:
      mStage = kReleaseSubflow;
      mStage = StartSubflow(pobjGame);
      break;
    case kFireSubflow:
      mStage = kReleaseSubflow;
      mStage = FireSubflow(pobjGame);
      break;
    case kReleaseSubflow:
      mStage = ReleaseSubflow(pobjGame);
      break;
    case kPrepareOutput:
      mStage = kEnd;
      mStage = PrepareOutput(pobjGame);
      break;
    case kProduce:
      mStage = Produce(pobjGame);
      break;
    case kDated:
      mcolConsumed[mlngNext++]->DateConsumed = Date::Now();
      [[fallthrough]];
    case kWithdraw:
      mStage = kDated;
      mStage = Withdraw(pobjGame);
      break;
    case kEnd:
      break;
  }
}

Firing::Stage Firing::Consume() {
  if (mblnTracking) {
    if (!ChooseCase()) return kEnd;
    TakeOfCase();
  } else {
    TakeWithoutCases();
  }
  if (const auto* workflow = mobjTransition->Workflow.get()) workflow->OnFiring.Raise(mobjTransition);
  const auto& object = mobjTransition->Object();
  const bool isWorkflow = object && StripQualifier(object->Class()) == "Workflow";
  return isWorkflow ? kStartSubflow : kPrepareOutput;
}

bool Firing::Uses(const Token& pobjToken) const {
  return std::any_of(mcolConsumed.begin(), mcolConsumed.end(), [&](const auto& token) { return token.get() == &pobjToken; });
}

// The token that the place's selection type names; two arcs from one place take two tokens.
std::shared_ptr<Token> Firing::NextUnused(const Place& pobjPlace) const {
  const auto usable = [&](const Token& token) { return TokenRules::IsFree(token) && !Uses(token); };
  const auto& tokens = pobjPlace.Tokens();
  const bool newest = pobjPlace.SelectionType == vntSelectionTypeLIFO;
  if (tokens.IsEmpty()) return nullptr;
  const auto& nearest = newest ? tokens.Last() : tokens.First();
  if (usable(*nearest)) return nearest;
  std::shared_ptr<Token> chosen;
  for (Collection<Token>::Cursor cursor(tokens); const Token* token = cursor.Next();) {
    if (!usable(*token)) continue;
    chosen = cursor.Shared();
    if (!newest) break;
  }
  return chosen;
}

std::shared_ptr<Token> Firing::NextUnusedOfCase(const Place& pobjPlace) const {
  const auto* index = CaseIndex::Of(pobjPlace);
  const auto* ofCase = index ? index->TokensOf(mobjCase.get()) : &pobjPlace.Tokens();
  if (!ofCase) return nullptr;
  for (Collection<Token>::Cursor tokens(*ofCase); const Token* token = tokens.Next();) {
    if (token->WorkCase == mobjCase && TokenRules::IsFree(*token) && !Uses(*token)) return tokens.Shared();
  }
  return nullptr;
}

void Firing::TakeWithoutCases() {
  for (Collection<Arc>::Cursor inputs(mobjTransition->InArcs); const Arc* arc = inputs.Next();) {
    auto token = NextUnused(*arc->Place);
    if (!token) throw Error(vntErrInvalidCall);
    mcolConsumed.push_back(std::move(token));
  }
}

bool Firing::ChooseCase() {
  const Place* scarcest = nullptr;
  for (Collection<Arc>::Cursor inputs(mobjTransition->InArcs); const Arc* arc = inputs.Next();) {
    if (!scarcest || arc->Place->Tokens().Count() < scarcest->Tokens().Count()) scarcest = arc->Place.get();
  }
  mblnIgnoreErrors = true;
  const TriggerTypes trigger = mobjTransition->TriggerType();
  if (trigger != vntUser && trigger != vntAutomatic) return true;

  const bool fifo = scarcest && scarcest->SelectionType == vntSelectionTypeFIFO;
  const bool oldestWins = trigger == vntAutomatic ? fifo : gobjVantrel->TakesFirstCase();
  Collection<WorkCase> candidates;
  if (scarcest) {
    for (Collection<Token>::Cursor tokens(scarcest->Tokens()); const Token* token = tokens.Next();) {
      const auto& workCase = token->WorkCase;
      if (!workCase || candidates.Contains(workCase->Key)) continue;
      Collection<Arc>::Cursor inputs(mobjTransition->InArcs);
      const Arc* arc = inputs.Next();
      while (arc && TokenRules::FirstOf(*arc->Place, workCase.get())) arc = inputs.Next();
      if (arc) continue;
      candidates.Add(workCase, workCase->Key);
      if (oldestWins) break;
    }
  }
  if (trigger == vntUser) return AskForCase(candidates);
  if (!candidates.IsEmpty()) mobjCase = oldestWins ? candidates.First() : candidates.Last();
  return true;
}

bool Firing::AskForCase(const Collection<WorkCase>& pcolCandidates) {
  std::vector<std::string> names;
  for (Collection<WorkCase>::Cursor cases(pcolCandidates); const WorkCase* candidate = cases.Next();) {
    names.push_back(candidate->Name);
  }
  const auto chosen = gobjVantrel->SelectOption("Select workcase for consumption.", names);
  if (!chosen) {
    if (!names.empty()) mobjTransition->WaitAgain();
    return false;
  }
  if (auto candidate = pcolCandidates.Find(*chosen)) mobjCase = std::move(candidate);
  return true;
}

void Firing::TakeOfCase() {
  for (Collection<Arc>::Cursor inputs(mobjTransition->InArcs); const Arc* arc = inputs.Next();) {
    const Place* place = arc->Place.get();
    auto token = place ? NextUnusedOfCase(*place) : nullptr;
    if (token) mcolConsumed.push_back(std::move(token));
  }
}

Firing::Stage Firing::StartSubflow(TokenGame& pobjGame) {
  mobjSubflow = std::dynamic_pointer_cast<Workflow>(mobjTransition->Object());
  if (!mobjSubflow) throw Error(vntErrTypeMismatch);
  const auto start = mobjSubflow->StartPlace.Lock();
  if (!start) {
    throw Error(vntErrObjectNotSet, "The workflow in transition \"" + mobjTransition->Name() + "\" has no start place.");
  }
  mobjTransition->Subflow(mobjSubflow);
  const auto token = mobjSubflow->CreateToken(start, mobjTransition, mobjCase);
  const auto run = std::make_shared<SubflowRun>(*mobjTransition, mcolConsumed, mobjCase);
  mobjTransition->mcolRuns.push_back(run);
  mobjRun = run;
  if (!mcolConsumed.empty()) token->Tag = mcolConsumed.front()->Tag;
  token->mobjRun = run;
  pobjGame.Call<Arrival>(start, token);
  return kFireSubflow;
}

Firing::Stage Firing::FireSubflow(TokenGame& pobjGame) {
  pobjGame.Call<FiringNext>(mobjSubflow, nullptr);
  return kReleaseSubflow;
}

// What this firing took no longer counts for others; what else lies in its input places may let it fire again.
Firing::Stage Firing::ReleaseSubflow(TokenGame& pobjGame) {
  while (!mobjRun.expired() && mlngNext < mcolConsumed.size()) {
    const auto place = mcolConsumed[mlngNext++]->Place.Lock();
    if (!place) continue;
    pobjGame.Call<Reevaluation>(place);
    return kReleaseSubflow;
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
  auto chosen = gobjVantrel->SelectOption("Select ouputs:", options);
  if (!chosen) {
    if (!options.empty()) mobjTransition->WaitAgain();
    return false;
  }
  mstrGuard = std::make_unique<std::string>(std::move(*chosen));
  return true;
}

Firing::Stage Firing::PrepareOutput(TokenGame& pobjGame) {
  switch (mobjTransition->OutputType()) {
    case vntSelect:
      if (!ChooseOutputs()) return kEnd;
      break;
    case vntDistribute:
      gobjVantrel->SelectTokens(*mobjTransition->Workflow, *mobjTransition);
      return kEnd;
    case vntProgrammed:
      if (mobjTransition->Action.empty()) {
        MsgBox("Programmed output must be performed by a Action.");
        return kEnd;
      }
      mStage = kWithdraw;  // an action that fails has been run all the same
      gobjVantrel->RunAction(*mobjTransition);
      mblnOutputDone = true;
      return kWithdraw;
    default:
      break;
  }
  pobjGame.EnterOutput(*mobjTransition);
  mobjGame = &pobjGame;
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
    token->mobjRun = RunOf(mcolConsumed);
    mblnOutputDone = true;
    pobjGame.Call<Arrival>(std::move(place), std::move(token));
    return kProduce;
  }
  EndOutput();
  return mblnOutputDone ? kWithdraw : kEnd;
}

Firing::Stage Firing::Withdraw(TokenGame& pobjGame) {
  if (mlngNext >= mcolConsumed.size()) return kEnd;
  const auto& token = mcolConsumed[mlngNext];
  token->ConsumeTransition = mobjTransition;
  token->Dirty = true;
  pobjGame.Call<Departure>(token->Place->Share(), token);
  return kDated;
}

}  // namespace vantrel
