// One operation of the token game, cut into bits so that operations can nest as deep as memory reaches.
#pragma once

#include <cstdint>

#include "util/Error.h"

namespace vantrel {

class TokenGame;

/// Adding a token may fire a transition, which adds tokens, and so on: instead of calling one another, the operations are
/// steps on TokenGame's own stack. A step that needs another operation calls it through TokenGame::Call, returns, and is
/// advanced again when that one has ended.
class GameStep {
 public:
  virtual ~GameStep() = default;
  GameStep(const GameStep&) = delete;
  GameStep& operator=(const GameStep&) = delete;

  /// Goes on until the next operation called (at most one a time, and then it must return true) or to the end. False when
  /// the step is through.
  virtual bool Advance(TokenGame& pobjGame) = 0;

  /// Hears of an Error from the step itself or from what it called. True when it deals with it and wants to go on (it is
  /// then advanced again); false to let it pass to the step below.
  virtual bool Absorb(const Error& /*pobjError*/) { return false; }

 protected:
  GameStep() = default;

 private:
  friend class TokenGame;
  GameStep* mBelow = nullptr;
  bool mblnFromOutside = false;
  std::uint32_t mChunk = 0, mOffset = 0;  // where the room of the stack ended before this step
};

}  // namespace vantrel
