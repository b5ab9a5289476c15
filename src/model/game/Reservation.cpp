#include "model/game/Reservation.h"

#include <algorithm>
#include <utility>

#include "model/Transition.h"
#include "model/game/TokenGame.h"
#include "model/game/TokenRules.h"

namespace vantrel {

Reservation::Reservation(Transition& pobjTransition) : mobjTransition(pobjTransition), mcolTokens(TokenGame::Instance().BorrowList()) {
  Link();
}

Reservation::Reservation(Reservation&& pobjOther) noexcept
    : mobjTransition(pobjOther.mobjTransition), mcolTokens(std::move(pobjOther.mcolTokens)) {
  pobjOther.mcolTokens.clear();
  Link();
}

Reservation::~Reservation() {
  GiveBack();
  Unlink();
  TokenGame::Instance().GiveBackList(std::move(mcolTokens));
}

void Reservation::Link() {
  mobjOlder = mobjTransition.mobjReservations;
  if (mobjOlder) mobjOlder->mobjNewer = this;
  mobjTransition.mobjReservations = this;
}

void Reservation::Unlink() {
  (mobjNewer ? mobjNewer->mobjOlder : mobjTransition.mobjReservations) = mobjOlder;
  if (mobjOlder) mobjOlder->mobjNewer = mobjNewer;
}

void Reservation::Take(Place& pobjPlace, std::shared_ptr<Token> pobjToken) {
  Token& token = *pobjToken;
  mcolTokens.push_back(std::move(pobjToken));
  TokenRules::Take(pobjPlace, token);
}

void Reservation::GiveBack() {
  if (std::exchange(mblnGivenBack, true)) return;  // others may have chosen them since
  for (const auto& token : mcolTokens) {
    if (token && !TokenRules::IsFree(*token)) TokenRules::GiveBack(*token);
  }
}

void Reservation::Forget(const Transition& pobjTransition, const Token& pobjToken) {
  for (auto* reservation = pobjTransition.mobjReservations; reservation; reservation = reservation->mobjOlder) {
    for (auto& token : reservation->mcolTokens) {
      if (token.get() == &pobjToken) token.reset();
    }
  }
}

}  // namespace vantrel
