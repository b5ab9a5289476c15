// One operation of the token game, in pieces, so that operations can nest as deep as memory allows.
#pragma once

#include <cstdint>

#include "util/Error.h"

namespace vantrel {

class TokenGame;
class Transition;

/// Adding a token may fire a transition, which adds tokens, and so on: instead of calling one another, the operations are
/// steps on TokenGame's own stack. A step that needs another operation calls it through TokenGame::Call, returns, and is
/// advanced again when that one has ended.
class GameStep {
 public:
  virtual ~GameStep() = default;
  GameStep(const GameStep&) = delete;
  GameStep& operator=(const GameStep&) = delete;

  /// Goes on until it calls the next operation (at most one at a time; then it must return true) or to the end. False when the step is
  /// done.
  virtual bool Advance(TokenGame& pobjGame) = 0;

  /// Gets an Error of the step itself or of an operation that it called. True when the step handles it and goes on (it is then advanced
  /// again); false to pass it to the step below.
  virtual bool Absorb(const Error& /*pobjError*/) { return false; }

  /// The transition that fires here and in a firing further down, or null.
  virtual const Transition* Refired() const { return nullptr; }

 protected:
  GameStep() = default;

 private:
  friend class TokenGame;
  GameStep* mBelow = nullptr;
  bool mblnFromOutside = false;
  std::uint32_t mChunk = 0, mOffset = 0;  // where the room of the stack ended before this step
};

}  // namespace vantrel
