#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Enumerations.h"

namespace vantrel::test {

/// Asked for one of the options; nothing stands for "cancel".
using Asks = std::function<std::optional<std::string>(const std::string& prompt, const std::vector<std::string>& options)>;

/// A net as numbers, from which both games are made. Places and transitions count from 0.
struct NetPlan {
  struct PlannedPlace {
    SelectionTypes Selection = vntSelectionTypeFIFO;
    std::size_t Net = 0;
  };
  struct PlannedTransition {
    TriggerTypes Trigger = vntUser;
    OutputTypes Output = vntBroadcast;
    bool HasAction = false;
    std::size_t Net = 0, Embeds = 0;  // a net that it runs as its subflow; 0 for none
  };
  struct PlannedNet {
    std::size_t Start = 0, End = 0;
    bool KeepHistory = false;
  };
  struct PlannedArc {
    std::size_t Place, Transition;
    bool IsInput;
    std::string Guard;
  };
  std::vector<PlannedPlace> Places;
  std::vector<PlannedTransition> Transitions;
  std::vector<PlannedArc> Arcs;
  std::vector<PlannedNet> Nets = {{}};  // the first is shown, the others are embedded in it
  bool CaseTracking = false;
};

struct PlannedCase {
  std::string Key, Name;
};

/// The rules of the token game again, as simple as possible: it looks at everything each time, calls recursively, and an endless loop
/// never ends.
class ReferenceGame {
 public:
  static constexpr int kNone = -1;
  struct Refused {
    int Number;
  };

  ReferenceGame(NetPlan pPlan, std::vector<PlannedCase> pCases, Asks pAsk);

  void Put(std::size_t pPlace, int pCase);
  /// `pPosition` counts from 0; kNone lets the game choose.
  void RemoveAt(std::size_t pPlace, int pPosition) { Remove(pPlace, pPosition == kNone ? kNone : mPlaces[pPlace].Tokens[pPosition]); }
  void Fire(std::size_t pTransition, int pCase);
  void FireNext(int pTransition);
  void StartCase(int pCase);
  void ChangeByHand(std::size_t pPlace, int pPosition, int pCase);
  std::size_t CountIn(std::size_t pPlace) const { return mPlaces[pPlace].Tokens.size(); }
  std::string Dump() const;

 private:
  struct RefToken {
    int Number = 0;  // in its net
    int Case = kNone, Creator = kNone, Consumer = kNone;
    int Run = kNone;  // of a subflow, in which it takes part
    std::size_t Place = 0;
    int TakenBy = kNone;  // the firing that chose it
    bool Enabled = false, Dated = false;
  };
  struct Run {
    std::size_t Transition;
    int Firing, Case, Outer;
    std::vector<int> Tokens;
    bool Over = false, StarterUnderWay = true;
  };
  struct Question {
    std::size_t Transition;
    int Case;
    bool ByDeparture;
    bool operator==(const Question&) const = default;
  };
  struct RefPlace {
    std::vector<int> Tokens;
    bool CaseEnabled = false;
  };

  std::vector<std::size_t> ArcsOf(std::size_t pTransition, bool pblnInput) const;
  std::vector<std::size_t> FedBy(std::size_t pPlace) const;
  int Create(std::size_t pPlace, int pTransition, int pCase);
  void Add(std::size_t pPlace, int pToken);
  void Remove(std::size_t pPlace, int pToken);
  void Leave(std::size_t pPlace, int pToken);
  bool Passes(const Question& pQuestion, std::size_t pPlace, bool pblnTakenToo) const;
  bool Complete(const Question& pQuestion, bool pblnTakenToo) const;
  bool Ask(const Question& pQuestion);
  bool Arrived(std::size_t pTransition, int pCase);
  bool Left(std::size_t pTransition);
  void Mark(std::size_t pTransition, int pCase);
  bool Switch(std::size_t pTransition, bool pblnOn);
  void SetEnabled(std::size_t pTransition, bool pblnOn);
  std::vector<int> FreeIn(std::size_t pPlace) const;
  void TakeAny(std::size_t pTransition, int pFiring, std::vector<int>& pTaken);
  void TakeOf(std::size_t pTransition, int pCase, int pFiring, std::vector<int>& pTaken);
  bool Choose(std::size_t pTransition, int& pCase, bool& pblnCanFireAgain);
  bool HoldsCase(std::size_t pPlace, int pCase) const;
  bool Produce(std::size_t pTransition, int pCase, int pRun, bool& pblnCanFireAgain);
  bool ProduceOn(std::size_t pTransition, int pCase, int pRun, const std::string* pGuard);
  void Withdraw(std::size_t pTransition, const std::vector<int>& pTaken, int pFiring);
  void GiveBack(std::size_t pTransition, const std::vector<int>& pTaken, int pFiring, bool pblnCanFireAgain, bool pblnFires);
  void RunSubflow(std::size_t pTransition, int pCase, int pFiring, std::vector<int>& pTaken);
  void EndCase(std::size_t pNet, std::size_t pPlace, int pToken);
  void Deliver(std::size_t pTransition, int pToken);
  void Ended(std::size_t pTransition, int pFiring);
  int RunOf(const std::vector<int>& pTokens) const;
  int OldestRun(std::size_t pTransition, int pCase) const;
  void Reevaluate(std::size_t pPlace);
  void FireNextIn(std::size_t pNet, int pTransition);
  std::vector<std::size_t>& StackOf(std::size_t pTransition) { return mStacks[mPlan.Transitions[pTransition].Net]; }
  void Settle(std::size_t pTransition);
  void LookAgain(std::size_t pPlace, bool pblnFires);
  void Tolerant(const std::function<void()>& pStep) const;

  NetPlan mPlan;
  std::vector<PlannedCase> mCases;
  Asks mAsk;
  std::vector<RefToken> mTokens;
  std::vector<RefPlace> mPlaces;
  std::vector<char> mEnabled;
  std::vector<int> mUnderWay;                     // firings of each transition
  std::vector<std::vector<std::size_t>> mStacks;  // of each net
  std::vector<Run> mRuns;
  std::vector<std::vector<std::size_t>> mObservers;  // of each net
  std::vector<Question> mHeldUp;
  int mFirings = 0;
  std::string mLog;
};

}  // namespace vantrel::test
