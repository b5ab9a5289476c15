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
  };
  struct PlannedTransition {
    TriggerTypes Trigger = vntUser;
    OutputTypes Output = vntBroadcast;
    bool HasAction = false;
  };
  struct PlannedArc {
    std::size_t Place, Transition;
    bool IsInput;
    std::string Guard;
  };
  std::vector<PlannedPlace> Places;
  std::vector<PlannedTransition> Transitions;
  std::vector<PlannedArc> Arcs;
  bool CaseTracking = false, KeepHistory = false;  // the last place is the end place
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
  void Remove(std::size_t pPlace, int pToken);
  void Fire(std::size_t pTransition, int pCase);
  void FireNext(int pTransition);
  void StartCase(int pCase);
  void ChangeByHand(int pToken, int pCase);
  std::vector<int> TokensIn(std::size_t pPlace) const { return mPlaces[pPlace].Tokens; }
  std::string Dump() const;

 private:
  struct RefToken {
    int Case = kNone, Creator = kNone, Consumer = kNone;
    std::size_t Place = 0;
    int TakenBy = kNone;  // the firing that chose it
    bool Enabled = false, Dated = false;
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
  bool Produce(std::size_t pTransition, int pCase, bool& pblnCanFireAgain);
  bool ProduceOn(std::size_t pTransition, int pCase, const std::string* pGuard);
  void Withdraw(std::size_t pTransition, const std::vector<int>& pTaken, int pFiring);
  void GiveBack(std::size_t pTransition, const std::vector<int>& pTaken, int pFiring, bool pblnCanFireAgain, bool pblnFires);
  void Settle(std::size_t pTransition);
  void LookAgain(std::size_t pPlace, bool pblnFires);
  void Tolerant(const std::function<void()>& pStep) const;

  NetPlan mPlan;
  std::vector<PlannedCase> mCases;
  Asks mAsk;
  std::vector<RefToken> mTokens;
  std::vector<RefPlace> mPlaces;
  std::vector<char> mEnabled;
  std::vector<int> mUnderWay;  // firings of each transition
  std::vector<std::size_t> mStack;
  std::vector<Question> mHeldUp;
  int mFirings = 0;
  std::string mLog;
};

}  // namespace vantrel::test
