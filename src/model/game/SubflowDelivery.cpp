#include "model/game/SubflowDelivery.h"

#include "model/DesignerState.h"
#include "model/game/Arrival.h"
#include "model/game/Departure.h"
#include "model/game/Enabling.h"
#include "model/game/Firing.h"
#include "model/game/FiringNext.h"

namespace vantrel {

SubflowDelivery::SubflowDelivery(std::shared_ptr<Transition> pobjTransition, std::shared_ptr<Token> pobjFinished, Manner pManner)
    : mobjTransition(std::move(pobjTransition)),
      mobjFinished(std::move(pobjFinished)),
      mOutputs(mobjTransition->OutArcs),
      mManner(pManner) {}

bool SubflowDelivery::Advance(TokenGame& pobjGame) {
  if (mStage == kStart) {
    EndRun();
    if (mManner == kAllAtOnce) MakeAll();
    mStage = mManner == kAllAtOnce ? kAdd : kProduce;
  }
  if (mStage == kDated) {
    if (const auto token = mChosen->Leave(mlngNext++)) token->DateConsumed = Date::Now();
    mStage = kWithdraw;
  }
  switch (mStage) {
    case kProduce:
      mStage = Produce(pobjGame);
      break;
    case kAdd:
      mStage = Add(pobjGame);
      break;
    case kWithdraw:
      mStage = Withdraw(pobjGame);
      break;
    case kGoOn:
      mStage = kEnd;
      if (mManner == kAllAtOnce || !mobjTransition->Workflow) return false;
      pobjGame.Call<FiringNext>(mobjTransition->Workflow.Lock(), nullptr);
      break;
    default:
      return false;
  }
  return true;
}

// The run is over: others may use the tokens that stay.
bool SubflowDelivery::Absorb(const Error& /*pobjError*/) {
  if (!mChosen) return false;
  mChosen->GiveBack();
  Enabling::Settle(*mobjTransition);
  for (const auto& token : mChosen->Tokens()) {
    if (token) Enabling::SettleAround(*token);
  }
  return false;
}

// From here on this run delivers nothing more.
void SubflowDelivery::EndRun() {
  SubflowRun* run = mobjFinished->Run().get();
  if (!run || !(run->Owner() == mobjTransition)) run = SubflowRun::OldestOf(*mobjTransition, mobjFinished->WorkCase.get());
  if (!run) return;
  mobjOuter = run->Outer();
  mobjStarter = run->Starter();
  mChosen.emplace(run->End());
}

std::shared_ptr<Token> SubflowDelivery::MakeToken(const Arc& pobjArc, Workflow& pobjWorkflow) const {
  auto token = pobjWorkflow.CreateToken(pobjArc.Place, mobjTransition, mobjFinished->WorkCase);
  token->Tag = mobjFinished->Tag;
  token->CustomProperties(mobjFinished->CustomProperties());
  token->mobjRun = mobjOuter;
  return token;
}

void SubflowDelivery::MakeAll() {
  Workflow& workflow = gobjWorkflow ? *gobjWorkflow : *mobjTransition->Workflow;
  while (const Arc* arc = mOutputs.Next()) mcolMade.push_back(MakeToken(*arc, workflow));
}

SubflowDelivery::Stage SubflowDelivery::Produce(TokenGame& pobjGame) {
  const Arc* arc = mOutputs.Next();
  if (!arc) {
    return kWithdraw;
  }
  const auto token = MakeToken(*arc, *mobjTransition->Workflow);
  pobjGame.Call<Arrival>(arc->Place->Share(), token);
  return kProduce;
}

SubflowDelivery::Stage SubflowDelivery::Add(TokenGame& pobjGame) {
  if (mlngNext >= mcolMade.size()) {
    mlngNext = 0;
    return kWithdraw;
  }
  const auto& token = mcolMade[mlngNext++];
  pobjGame.Call<Arrival>(token->Place->Share(), token);
  return kAdd;
}

SubflowDelivery::Stage SubflowDelivery::Withdraw(TokenGame& pobjGame) {
  for (; mChosen && mlngNext < mChosen->Tokens().size(); ++mlngNext) {
    const auto& token = mChosen->Tokens()[mlngNext];
    auto place = token ? token->Place.Lock() : nullptr;
    if (!place) continue;
    token->ConsumeTransition = mobjTransition;
    token->Dirty = true;
    pobjGame.Call<Departure>(std::move(place), token, Departure::kConsumed);
    return kDated;
  }
  if (mobjStarter) mobjStarter->Delivered();
  return kGoOn;
}

}  // namespace vantrel
