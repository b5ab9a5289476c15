// A token stays in its place after all.
#pragma once

#include <memory>
#include <vector>

#include "model/Place.h"
#include "model/game/Enabling.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Asks again the transitions after a place that a token chosen by a firing kept from being enabled, and fires the automatic ones.
class SecondLook final : public GameStep {
 public:
  explicit SecondLook(std::shared_ptr<Place> pobjPlace);
  bool Advance(TokenGame& pobjGame) override;

 private:
  bool NextTransition();

  std::shared_ptr<Place> mobjPlace;
  Collection<Arc>::Cursor mArcs;
  std::shared_ptr<Transition> mobjTransition;
  std::vector<Enabling::Question> mcolQuestions;  // of the transition
  std::size_t mlngNext = 0;                       // of the questions
  bool mblnTracking;
};

}  // namespace vantrel
