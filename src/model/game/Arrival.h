// A token arrives in a place.
#pragma once

#include <memory>

#include "model/Place.h"
#include "model/game/TokenGame.h"

namespace vantrel {

/// Puts the token into the place, enables what it completes (automatic transitions fire here), and reports it.
class Arrival final : public GameStep {
 public:
  Arrival(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken);
  bool Advance(TokenGame& pobjGame) override;

  /// The same for a stored token: nothing fires and nothing is reported.
  static void PutBack(std::shared_ptr<Place> pobjPlace, std::shared_ptr<Token> pobjToken);

 private:
  enum Stage : std::uint8_t { kPut, kEnable, kReport, kEnd };
  void Put();
  // The next transition that the token enables and that has to fire at once; null at the end.
  std::shared_ptr<Transition> EnableNext();
  void Report(TokenGame& pobjGame);

  std::shared_ptr<Place> mobjPlace;
  std::shared_ptr<Token> mobjToken;
  std::shared_ptr<WorkCase> mobjCase;
  Collection<Arc>::Cursor mArcs;
  Stage mStage = kPut;
  bool mblnTracking;
};

}  // namespace vantrel
