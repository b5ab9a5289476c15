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

/// A net as numbers: what both games are built from. Places and transitions count from 0.
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

/// The rules of the token game once more, told as plainly as can be: everything is looked at again each time, everything
/// calls everything, nothing survives an endless loop.
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
    bool Enabled = false, Dated = false;
  };
  struct RefPlace {
    std::vector<int> Tokens;
    bool CaseEnabled = false;
  };

  std::vector<std::size_t> ArcsOf(std::size_t pTransition, bool pblnInput) const;
  std::vector<std::size_t> FedBy(std::size_t pPlace) const;
  int Create(std::size_t pPlace, int pTransition, int pCase);
  void Add(std::size_t pPlace, int pToken);
  void Mark(std::size_t pTransition, int pCase);
  void SetEnabled(std::size_t pTransition, bool pblnOn);
  std::vector<int> TakeAny(std::size_t pTransition) const;
  std::vector<int> TakeOf(std::size_t pTransition, int pCase) const;
  bool Choose(std::size_t pTransition, int& pCase);
  std::optional<std::string> Ask(std::size_t pTransition, const std::string& pstrPrompt, const std::vector<std::string>& pcolOptions);
  bool HoldsCase(std::size_t pPlace, int pCase) const;
  bool Produce(std::size_t pTransition, int pCase);
  bool ProduceOn(std::size_t pTransition, int pCase, const std::string* pGuard);
  void Tolerant(const std::function<void()>& pStep) const;

  NetPlan mPlan;
  std::vector<PlannedCase> mCases;
  Asks mAsk;
  std::vector<RefToken> mTokens;
  std::vector<RefPlace> mPlaces;
  std::vector<char> mEnabled;
  std::vector<std::size_t> mStack;
  std::string mLog;
};

}  // namespace vantrel::test
