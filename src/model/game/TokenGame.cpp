#include "model/game/TokenGame.h"

#include <algorithm>

#include "model/Transition.h"

namespace vantrel {

constinit TokenGame TokenGame::sGame;

namespace {

[[noreturn]] void ThrowEndless(const Transition& pobjTransition) {
  const std::string key = pobjTransition.Key == pobjTransition.Name() ? "" : " (" + pobjTransition.Key + ")";
  throw Error(vntErrOutOfStack, "Transition \"" + pobjTransition.Name() + "\"" + key + " fires without end.");
}

}  // namespace

TokenGame::Nesting::Nesting(TokenGame& pobjGame) : mGame(pobjGame), mBefore(pobjGame.mOutermost) {
  const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
  if (mBefore == 0) {
    mGame.mOutermost = here;
  } else if (std::max(here, mBefore) - std::min(here, mBefore) > kMostThreadStack) {
    mGame.ThrowTooDeep();
  }
}

void TokenGame::ThrowTooDeep() const {
  for (const GameStep* step = mTop; step; step = step->mBelow) {
    if (const auto* transition = step->Refired()) ThrowEndless(*transition);
  }
  throw Error(vntErrOutOfStack, "Listeners of token events move tokens inside one another without end.");
}

void TokenGame::NextChunk() {
  const std::uint32_t next = mChunks.empty() ? 0 : mChunk + 1;
  if (next >= mChunks.size()) mChunks.push_back(std::make_unique_for_overwrite<std::byte[]>(kChunkSize));
  mChunk = next;
  mOffset = 0;
}

void TokenGame::LeaveChunk(std::uint32_t plngChunk) {
  mChunk = plngChunk;
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
      Abandon(pobjBelow);
      throw;
    }
  }
}

void TokenGame::Abandon(const GameStep* pobjBelow) {
  while (mTop != pobjBelow) Pop();
}

bool TokenGame::Absorbed(const Error& pobjError, const GameStep* pobjBelow) {
  try {
    while (mTop != pobjBelow) {
      if (mTop->Absorb(pobjError)) return true;
      Pop();
    }
  } catch (...) {  // thrown by the presenter of the message
    Abandon(pobjBelow);
    throw;
  }
  return false;
}

std::vector<std::shared_ptr<Token>> TokenGame::BorrowList() {
  if (mSpareLists.empty()) return {};
  auto list = std::move(mSpareLists.back());
  mSpareLists.pop_back();
  return list;
}

void TokenGame::GiveBackList(std::vector<std::shared_ptr<Token>>&& pcolTokens) {
  constexpr std::size_t kMostSpare = 16;
  pcolTokens.clear();
  if (mSpareLists.size() < kMostSpare) mSpareLists.push_back(std::move(pcolTokens));
}

void TokenGame::CheckDepth(const Transition& pobjTransition) const {
  if (mChunk >= kMostChunks) ThrowEndless(pobjTransition);
}

void TokenGame::CheckRounds(const Transition& pobjTransition, std::int64_t plngRounds, std::int64_t plngDepth) {
  const bool manyTokens = plngRounds * pobjTransition.OutArcs.Count() > kMostLoopTokens;
  const bool longLoop = plngRounds >= kMostRounds / 10 && plngDepth >= kMostLoopFirings;
  if (plngRounds >= kMostRounds || manyTokens || longLoop) ThrowEndless(pobjTransition);
}

}  // namespace vantrel
