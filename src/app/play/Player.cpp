#include "app/play/Player.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vantrel {

namespace {

/// Leaves a run, even from inside a firing. Not an Error, so that the token game does not catch it.
struct RunEnded {};

AccountEntry EntryOf(const PlayedNet& pobjNet, const Node& pobjNode) { return {pobjNet.Prefix + pobjNode.Key, pobjNode.Name()}; }

std::optional<AccountEntry> EntryOf(const PlayedNet& pobjNet, const Ref<Place>& pobjPlace) {
  if (!pobjPlace) return std::nullopt;
  return EntryOf(pobjNet, *pobjPlace);
}

}  // namespace

Player::Player(LoadedNet pobjNet, const PlayOptions& pobjOptions, Watch pWatch, PlayStore* pobjStore)
    : mNet(std::move(pobjNet)),
      mOptions(pobjOptions),
      mWatch(std::move(pWatch)),
      mStore(pobjStore),
      mRandom(pobjOptions.Seed),
      mPlayed(PlayedNetsOf(mNet.Workflow)),
      mHost(mNet.Workflow, !pobjOptions.FromMarking) {
  gobjVantrel = &mHost;
  gobjWorkflow = mNet.Workflow;
  gintUseMode = vntRun;
}

Account Player::Play() {
  Prepare();
  const auto subscriptions = Listen();
  Run();
  Describe();
  return std::move(mAccount);
}

void Player::Prepare() {
  for (const PlayedNet& net : mPlayed) {
    if (mOptions.CaseTracking) net.Workflow->CaseTracking = true;
    if (mOptions.KeepHistory) net.Workflow->KeepHistory = true;
    if (!mOptions.Automatic) continue;
    for (const auto& transition : net.Workflow->Transitions) transition->TriggerType(vntAutomatic);
  }
}

std::vector<Subscription> Player::Listen() {
  std::vector<Subscription> subscriptions;
  for (const PlayedNet& net : mPlayed) {
    subscriptions.push_back(
        net.Workflow->OnFiring.Connect([this, &net](const std::shared_ptr<Transition>& pobjTransition) { Record(net, *pobjTransition); }));
  }
  subscriptions.push_back(
      mNet.Workflow->OnCaseFinished.Connect([this](const std::shared_ptr<Token>& pobjToken) { CountFinished(*pobjToken); }));
  return subscriptions;
}

void Player::Run() {
  try {
    if (mOptions.Resume) TakeUp();
    if (mOptions.FromMarking) {
      PutMarking();
    } else {
      StartCases();
    }
    FireUntilQuiet();
  } catch (const RunEnded&) {
    mAccount.Stopped = StopReason::Limit;
  } catch (const Error& error) {
    mAccount.Stopped = StopReason::Error;
    mAccount.Error = error.Description;
  }
  // A firing that failed may have moved half of its tokens, so the state stored before it is kept.
  if (mStore && mAccount.Stopped != StopReason::Error) mStore->Finish();
}

void Player::TakeUp() {
  const TakenUp before = mStore->TakeUp();
  mAccount.CasesTakenUp = before.CasesUnderWay;
  mTakenUp.insert(before.CaseKeys.begin(), before.CaseKeys.end());
  mFinished.insert(before.Finished.begin(), before.Finished.end());
}

void Player::StartCases() {
  if (mOptions.Cases > kMostTokens) throw Error(vntErrOverflow, "no more than " + std::to_string(kMostTokens) + " cases can be played");
  const auto start = mNet.Workflow->StartPlace.Lock();
  while (mAccount.CasesStarted < mOptions.Cases) {
    AskWatch();
    Pass();
    const auto workCase = std::make_shared<WorkCase>();
    workCase->Key = NewCaseKey();
    workCase->Name = workCase->Key;
    workCase->DateCreated = Date::Now();
    ++mAccount.CasesStarted;
    Add(start, workCase);
  }
}

std::string Player::NewCaseKey() {
  std::string key;
  do {
    key = "WorkCase" + std::to_string(++mlngLastCase);
  } while (mTakenUp.count(key) > 0);
  return key;
}

// An unsound net finishes a case more than once. Tokens know their case only under case tracking; without it, every end counts.
void Player::CountFinished(const Token& pobjToken) {
  ++mAccount.CasesFinished;
  const auto* const workCase = pobjToken.WorkCase.get();
  if (!workCase || mFinished.insert(workCase->Key).second) ++mAccount.DifferentCasesFinished;
}

void Player::PutMarking() {
  std::int64_t total = 0;
  for (const InitialTokens& initial : mNet.Marking) total += initial.Count;
  if (total > kMostTokens) {
    throw Error(vntErrOverflow,
                "the net's marking has " + std::to_string(total) + " tokens; " + std::to_string(kMostTokens) + " can be played");
  }
  for (const InitialTokens& tokens : mNet.Marking) {
    for (std::int32_t i = 0; i < tokens.Count; ++i) {
      AskWatch();
      Add(tokens.Where, nullptr);
    }
  }
}

void Player::Add(const std::shared_ptr<Place>& pobjPlace, const std::shared_ptr<WorkCase>& pobjCase) {
  pobjPlace->AddToken(mNet.Workflow->CreateToken(pobjPlace, nullptr, pobjCase));
  mHost.ThrowFailure();
}

// A firing that ends early leaves its transition on the stack: no more than once round while nothing else happens.
void Player::FireUntilQuiet() {
  std::int64_t calls = 0;  // more than the firings when a transition finds its tokens gone
  while (const auto transition = NextReady()) {
    Pass();
    if (std::max(calls++, mAccount.Firings) >= mOptions.MaxFirings) throw RunEnded();
    const auto before = Happened();
    transition->Workflow->FireNext(transition);
    mHost.ThrowFailure();
    if (Happened() == before) {
      mIdle.insert(transition.get());
    } else {
      mIdle.clear();
    }
  }
}

std::pair<std::int64_t, std::int64_t> Player::Happened() const { return {TokensCreated(), mHost.Actions()}; }

std::shared_ptr<Transition> Player::NextReady() {
  if (mOptions.Pick == Pick::Random && mIdle.empty()) return DrawReady();
  std::vector<Transition*> ready;
  for (const PlayedNet& net : mPlayed) {
    Collection<Transition>::Cursor stack(net.Workflow->FiringStack);
    while (Transition* transition = stack.Next()) {
      if (mIdle.contains(transition)) continue;
      if (mOptions.Pick == Pick::First) return transition->Share();
      ready.push_back(transition);
    }
  }
  return ready.empty() ? nullptr : ready[mRandom.Below(ready.size())]->Share();
}

// Draws from all stacks; at least one is not empty.
std::shared_ptr<Transition> Player::DrawReady() {
  std::int64_t entries = 0;
  for (const PlayedNet& net : mPlayed) entries += net.Workflow->FiringStack.Count();
  if (entries == 0) return nullptr;
  auto drawn = static_cast<std::int64_t>(mRandom.Below(static_cast<std::uint64_t>(entries)));
  auto net = mPlayed.begin();
  for (; drawn >= net->Workflow->FiringStack.Count(); ++net) drawn -= net->Workflow->FiringStack.Count();
  return net->Workflow->FiringStack.Item(static_cast<std::int32_t>(drawn) + 1);
}

void Player::Record(const PlayedNet& pobjNet, const Transition& pobjTransition) {
  AskWatch();
  ++mAccount.Firings;
  if (mOptions.KeepTrace) mAccount.Trace.push_back(EntryOf(pobjNet, pobjTransition));
}

void Player::Pass() {
  if (mblnStop) throw RunEnded();
  if (mStore) mStore->Pass(mAccount.Firings + mAccount.CasesStarted);
}

void Player::AskWatch() {
  if (mblnStop || MayGoOn()) return;
  if (!mStore) throw RunEnded();
  mblnStop = true;
}

bool Player::MayGoOn() const { return !mWatch || mWatch({mAccount.Firings, TokensCreated(), mAccount.CasesFinished}); }

std::int64_t Player::TokensCreated() const {
  std::int64_t tokens = 0;
  for (const PlayedNet& net : mPlayed) tokens += net.Workflow->Tokens.Count();
  return tokens;
}

void Player::Describe() {
  const PlayedNet& outermost = mPlayed.front();
  const Workflow& workflow = *mNet.Workflow;
  mAccount.Net = mNet.Name;
  mAccount.Places = workflow.Places.Count();
  mAccount.Transitions = workflow.Transitions.Count();
  mAccount.Arcs = workflow.Arcs.Count();
  mAccount.Start = EntryOf(outermost, workflow.StartPlace);
  mAccount.End = EntryOf(outermost, workflow.EndPlace());
  mAccount.TokensCreated = TokensCreated();
  mAccount.Actions = mHost.Actions();
  for (const PlayedNet& net : mPlayed) {
    for (const auto& place : net.Workflow->Places) {
      const std::int32_t tokens = place->Tokens().Count();
      if (tokens > 0) mAccount.Marking.push_back({EntryOf(net, *place), tokens});
    }
  }
}

}  // namespace vantrel
