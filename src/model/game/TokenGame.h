// The stack on which the token game runs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "model/Forward.h"
#include "model/game/GameStep.h"

namespace vantrel {

/// Runs operations (GameStep) depth first, in the order in which plain calls would run, without the depth of plain calls.
/// One per process, for the one thread that the model lives in.
///
/// Transitions that feed themselves would run for ever. Three bounds stop them with Error 28, which names the transition:
/// rounds, memory, and the thread's stack. What was produced until then stays, and no token is half moved.
class TokenGame {
 public:
  /// Runs an operation with all that it calls. May be called while one is running, from a listener of an event.
  template <class Step, class... Args>
  static void Run(Args&&... args) {
    TokenGame& game = Instance();
    const Nesting nesting(game);
    GameStep* const below = game.mTop;
    game.Call<Step>(std::forward<Args>(args)...);
    game.mTop->mblnFromOutside = true;
    game.RunDownTo(below);
  }

  static TokenGame& Instance() { return sGame; }

  /// True when everything that the step called has run.
  bool IsTop(const GameStep& pobjStep) const { return mTop == &pobjStep; }

  /// Puts an operation on the stack, to be run before the step that calls this is advanced again.
  template <class Step, class... Args>
  void Call(Args&&... args) {
    static_assert(sizeof(Step) <= kChunkSize);
    static_assert(alignof(Step) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    const Room room = Take(sizeof(Step));
    Step* step = nullptr;
    try {
      step = new (room.At) Step(std::forward<Args>(args)...);
    } catch (...) {
      GiveBack(room.Chunk, room.Offset);
      throw;
    }
    step->mChunk = room.Chunk;
    step->mOffset = room.Offset;
    step->mBelow = mTop;
    mTop = step;
  }

  /// True for a step that came from outside (Run), not from another step.
  static bool IsCalledFromOutside(const GameStep& pobjStep) { return pobjStep.mblnFromOutside; }

  /// Throws Error 28 when the stack is so deep that the firing which is to begin can only be part of a loop.
  void CheckDepth(const Transition& pobjTransition) const;
  /// An empty list with room, to be given back. There are millions of firings, and most consume a token or two.
  std::vector<std::shared_ptr<Token>> BorrowList();
  void GiveBackList(std::vector<std::shared_ptr<Token>>&& pcolTokens);

  /// Throws Error 28 for a firing whose tokens descend from so many earlier firings of its transition that only a loop can
  /// be the reason. `plngDepth` counts the firings of other transitions, too.
  static void CheckRounds(const Transition& pobjTransition, std::int64_t plngRounds, std::int64_t plngDepth);

 private:
  static constexpr std::size_t kChunkSize = 64 * 1024;
  // Room for the steps of a chain of a million automatic transitions, or of a place from which an automatic transition takes a million
  // tokens, each inside the removal of the one before. With the tokens it stays under a gigabyte.
  static constexpr std::size_t kMostChunks = 256 * 1024 * 1024 / kChunkSize;
  // Users may leave a loop by a choice, but not after so many rounds; nor after a tenth of them when they are long.
  static constexpr std::int64_t kMostRounds = 10'000;
  static constexpr std::int64_t kMostLoopFirings = 50'000;
  // Each round leaves a token in every output place, so with many outputs fewer rounds fill the memory.
  static constexpr std::int64_t kMostLoopTokens = 1'000'000;
  // Listeners and actions that move tokens use the thread's stack, which usually has eight megabytes.
  static constexpr std::size_t kMostThreadStack = 3 * 1024 * 1024;

  struct Room {
    void* At;
    std::uint32_t Chunk, Offset;  // the end of the stack before
  };
  class Nesting {
   public:
    explicit Nesting(TokenGame& pobjGame);
    ~Nesting() { mGame.mOutermost = mBefore; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    TokenGame& mGame;
    std::uintptr_t mBefore;
  };

  [[noreturn]] void ThrowTooDeep() const;
  void RunDownTo(GameStep* pobjBelow);
  void Pop();
  void Abandon(const GameStep* pobjBelow);
  bool Absorbed(const Error& pobjError, const GameStep* pobjBelow);
  Room Take(std::size_t plngSize) {
    constexpr std::size_t kAlignment = alignof(std::max_align_t);
    const auto size = static_cast<std::uint32_t>((plngSize + kAlignment - 1) & ~(kAlignment - 1));
    const std::uint32_t chunk = mChunk, offset = mOffset;
    if (mOffset + size > kChunkSize || mChunks.empty()) NextChunk();
    void* const at = mChunks[mChunk].get() + mOffset;
    mOffset += size;
    return {at, chunk, offset};
  }
  void GiveBack(std::uint32_t plngChunk, std::uint32_t plngOffset) {
    mOffset = plngOffset;
    if (mChunk != plngChunk) LeaveChunk(plngChunk);
  }
  void NextChunk();
  void LeaveChunk(std::uint32_t plngChunk);

  static TokenGame sGame;

  GameStep* mTop = nullptr;
  std::vector<std::unique_ptr<std::byte[]>> mChunks;
  std::uint32_t mChunk = 0, mOffset = 0;
  std::vector<std::vector<std::shared_ptr<Token>>> mSpareLists;
  std::uintptr_t mOutermost = 0;  // where the outermost Run stands on the thread's stack; 0 while none runs
};

}  // namespace vantrel
