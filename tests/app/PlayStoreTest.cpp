#include <gtest/gtest.h>

#include "app/SmallNets.h"
#include "app/play/Player.h"

namespace vantrel {

namespace {

using test::NetOf;

/// Notes when a run offers its state.
class NotedStore final : public PlayStore {
 public:
  explicit NotedStore(std::shared_ptr<Workflow> pobjWorkflow) : mobjWorkflow(std::move(pobjWorkflow)) {}

  TakenUp TakeUp() override { return Before; }
  void Pass(std::int64_t) override { Note(); }
  void Finish() override {
    ++Finishes;
    Note();
  }

  TakenUp Before;
  int Finishes = 0;
  std::vector<std::int32_t> TokensInPlaces;

 private:
  void Note() {
    std::int32_t tokens = 0;
    for (const auto& place : mobjWorkflow->Places) tokens += place->Tokens().Count();
    TokensInPlaces.push_back(tokens);
  }

  std::shared_ptr<Workflow> mobjWorkflow;
};

/// A run over a chain of transitions along which one token moves: a state with none or two is one inside a firing.
struct ChainRun {
  explicit ChainRun(const std::string& pstrArcs) : Net(BuildWorkflow(NetOf(pstrArcs))), Store(Net.Workflow) { Options.KeepHistory = true; }
  Account Play(Player::Watch pWatch = {}) { return Player(Net, Options, std::move(pWatch), &Store).Play(); }

  LoadedNet Net;
  NotedStore Store;
  PlayOptions Options;
};

constexpr const char* kChain = "in>t1 t1>p1 p1>t2 t2>p2 p2>t3 t3>out";

TEST(PlayStore, SeesWholeStatesOnly) {
  ChainRun run(kChain);
  run.Play();
  EXPECT_EQ(run.Store.TokensInPlaces, (std::vector<std::int32_t>{0, 1, 1, 1, 1}));
}

TEST(PlayStore, RunThatIsToEndEndsBehindTheFiringsUnderWay) {
  ChainRun run(kChain);
  run.Options.Automatic = true;
  run.Options.Cases = 3;
  const Account account = run.Play([](const PlayCounts& pobjCounts) { return pobjCounts.Firings < 1; });
  EXPECT_EQ(account.Stopped, StopReason::Limit);
  EXPECT_EQ(account.Firings, 3);
  EXPECT_EQ(account.CasesFinished, 1);
  EXPECT_EQ(run.Store.TokensInPlaces, (std::vector<std::int32_t>{0, 1}));
}

TEST(PlayStore, FiringThatFailsIsNotStored) {
  ChainRun run("in>t1 t1>p1 p1>t2 t2>p1");
  run.Options.Automatic = true;
  EXPECT_EQ(run.Play().Stopped, StopReason::Error);
  EXPECT_EQ(run.Store.Finishes, 0);
}

TEST(PlayStore, CasesTakenUpCountUntilTheyFinish) {
  ChainRun run(kChain);
  run.Options.Resume = true;
  run.Options.CaseTracking = true;
  run.Options.Cases = 2;
  run.Store.Before.CaseKeys = {"WorkCase1", "WorkCase2"};
  run.Store.Before.Finished = {"WorkCase2"};
  run.Store.Before.CasesUnderWay = 1;
  const Account account = run.Play();
  EXPECT_EQ(account.CasesTakenUp, 1);
  EXPECT_EQ(account.DifferentCasesFinished, 2) << "the cases started now need keys of their own";
  EXPECT_FALSE(account.IsFinished()) << "the one taken up is not in the net";
}

}  // namespace

}  // namespace vantrel
