#include "model/game/TokenGame.h"

#include "model/Transition.h"

namespace vantrel {

TokenGame& TokenGame::Instance() {
  static TokenGame game;
  return game;
}

TokenGame::Nesting::Nesting(TokenGame& pobjGame) : mGame(pobjGame) {
  if (mGame.mNestedRuns >= kDeepestNesting) {
    throw Error(vntErrOutOfStack, "Listeners of token events move tokens inside one another without end.");
  }
  ++mGame.mNestedRuns;
}

TokenGame::Room TokenGame::Take(std::size_t plngSize) {
  const auto size = static_cast<std::uint32_t>((plngSize + alignof(std::max_align_t) - 1) & ~(alignof(std::max_align_t) - 1));
  const Room before{nullptr, mChunk, mOffset};
  if (mOffset + size > kChunkSize) {
    ++mChunk;
    mOffset = 0;
  }
  if (mChunk >= mChunks.size()) mChunks.push_back(std::make_unique_for_overwrite<std::byte[]>(kChunkSize));
  void* const at = mChunks[mChunk].get() + mOffset;
  mOffset += size;
  return {at, before.Chunk, before.Offset};
}

void TokenGame::GiveBack(std::uint32_t plngChunk, std::uint32_t plngOffset) {
  mChunk = plngChunk;
  mOffset = plngOffset;
  if (mChunks.size() > std::size_t{mChunk} + 2) mChunks.resize(std::size_t{mChunk} + 2);  // one to spare
}

void TokenGame::Pop() {
  GameStep* const step = mTop;
  const auto chunk = step->mChunk, offset = step->mOffset;
  mTop = step->mBelow;
  step->~GameStep();
  GiveBack(chunk, offset);
}

void TokenGame::RunDownTo(GameStep* pobjBelow) {
  while (mTop != pobjBelow) {
    try {
      while (mTop != pobjBelow) {
        if (!mTop->Advance(*this)) Pop();
      }
    } catch (const Error& error) {
      if (!Absorbed(error, pobjBelow)) throw;
    } catch (...) {
      while (mTop != pobjBelow) Pop();
      throw;
    }
  }
}

bool TokenGame::Absorbed(const Error& pobjError, const GameStep* pobjBelow) {
  while (mTop != pobjBelow) {
    if (mTop->Absorb(pobjError)) return true;
    Pop();
  }
  return false;
}

void TokenGame::EnterOutput(Transition& pobjTransition) {
  if (pobjTransition.mOutputsUnderWay >= kMostRounds || mOutputsUnderWay >= kDeepestFiring) {
    throw Error(vntErrOutOfStack, "Transition \"" + pobjTransition.Name() + "\" fires itself without end.");
  }
  ++pobjTransition.mOutputsUnderWay;
  ++mOutputsUnderWay;
}

void TokenGame::LeaveOutput(Transition& pobjTransition) {
  --pobjTransition.mOutputsUnderWay;
  --mOutputsUnderWay;
}

}  // namespace vantrel
