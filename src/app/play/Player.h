#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "app/play/Account.h"
#include "app/play/PlayHost.h"
#include "app/play/PlayOptions.h"
#include "app/play/PlayStore.h"
#include "app/play/PlayedNets.h"
#include "app/play/RandomIndex.h"
#include "interchange/PnmlImport.h"
#include "model/DesignerState.h"
#include "util/Event.h"

namespace vantrel {

/// How far a run has come.
struct PlayCounts {
  std::int64_t Firings = 0, TokensCreated = 0, CasesFinished = 0;
};

/// Plays a net without a user: puts tokens into it, then fires enabled transitions until there are none. Make one for each run: while it
/// lives it is the process's designer. It changes the net's workflows.
class Player {
 public:
  /// Is called before every case and every firing; false ends the run there. With a store the run ends between two firings, so that no
  /// half of one is stored.
  using Watch = std::function<bool(const PlayCounts&)>;

  /// The net must have a start place, unless it is played from its marking. Play throws what the store throws, except an Error.
  explicit Player(LoadedNet pobjNet, const PlayOptions& pobjOptions = {}, Watch pWatch = {}, PlayStore* pobjStore = nullptr);

  Account Play();

 private:
  static constexpr std::int64_t kMostTokens = 10'000'000;  // at the beginning: about three gigabytes

  void Prepare();
  std::vector<Subscription> Listen();
  void Run();
  void TakeUp();
  void StartCases();
  void PutMarking();
  void CountFinished(const Token& pobjToken);
  void Add(const std::shared_ptr<Place>& pobjPlace, const std::shared_ptr<WorkCase>& pobjCase);
  void FireUntilQuiet();
  // The transition that fires next, by the option Pick; null when none is left that could do anything.
  std::shared_ptr<Transition> NextReady();
  std::shared_ptr<Transition> DrawReady();
  // Changes with every firing that does anything.
  std::pair<std::int64_t, std::int64_t> Happened() const;
  void Record(const PlayedNet& pobjNet, const Transition& pobjTransition);
  // Between two firings.
  void Pass();
  void AskWatch();
  bool MayGoOn() const;
  std::string NewCaseKey();
  std::int64_t TokensCreated() const;
  void Describe();

  LoadedNet mNet;
  PlayOptions mOptions;
  Watch mWatch;
  PlayStore* mStore;
  RandomIndex mRandom;
  std::vector<PlayedNet> mPlayed;
  Account mAccount;
  std::unordered_set<std::string> mFinished;    // keys of cases
  std::unordered_set<std::string> mTakenUp;     // keys of cases
  std::unordered_set<const Transition*> mIdle;  // fired in vain since anything happened
  std::int64_t mlngLastCase = 0;                // the number in the last key made
  bool mblnStop = false;                        // the watch wants the run to end
  PlayHost mHost;
  DesignerStateScope mStateBefore;
};

}  // namespace vantrel
