// A token leaves a place.
#pragma once

#include <memory>

#include "model/Place.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Enables and disables the transitions that a place feeds, by the tokens that it and their other inputs hold now.
class Reevaluation : public GameStep {
 public:
  explicit Reevaluation(std::shared_ptr<Place> pobjPlace);
  bool Advance(TokenGame& pobjGame) override;

 protected:
  std::shared_ptr<Place> mobjPlace;

 private:
  Collection<Arc>::Cursor mArcs;
  bool mblnTracking;
};

/// Takes the token out of the place (for a token without a key, the first one), then asks the transitions that the place feeds again.
class Departure final : public Reevaluation {
 public:
  enum Reason : std::uint8_t {
    kByHand,   ///< Error 5 when the token is not there; a firing that has chosen it is told
    kConsumed  ///< by the firing that has chosen it
  };
  Departure(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken, Reason pReason);
  bool Advance(TokenGame& pobjGame) override;

 private:
  void Take();

  std::shared_ptr<Token> mobjToken;
  Reason mReason;
  bool mblnTaken = false;
};

}  // namespace vantrel
