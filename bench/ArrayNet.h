// The limit that the token game is compared with.
#pragma once

#include <cstdint>
#include <vector>

namespace vantrel::bench {

/// The leanest simulator of a place/transition net: a count for each place, a count of missing inputs for each transition, and a queue
/// of enabled transitions. No objects, no cases, no history.
class ArrayNet {
 public:
  ArrayNet(std::int32_t plngPlaces, std::int32_t plngTransitions)
      : mTokens(static_cast<std::size_t>(plngPlaces)),
        mConsumers(static_cast<std::size_t>(plngPlaces)),
        mMissing(static_cast<std::size_t>(plngTransitions)),
        mQueued(static_cast<std::size_t>(plngTransitions)),
        mInputs(static_cast<std::size_t>(plngTransitions)),
        mOutputs(static_cast<std::size_t>(plngTransitions)) {}

  void AddInput(std::int32_t plngPlace, std::int32_t plngTransition) {
    mInputs[static_cast<std::size_t>(plngTransition)].push_back(plngPlace);
    mConsumers[static_cast<std::size_t>(plngPlace)].push_back(plngTransition);
    ++mMissing[static_cast<std::size_t>(plngTransition)];
  }
  void AddOutput(std::int32_t plngTransition, std::int32_t plngPlace) {
    mOutputs[static_cast<std::size_t>(plngTransition)].push_back(plngPlace);
  }

  void Put(std::int32_t plngPlace) {
    ++mCreated;
    if (mTokens[static_cast<std::size_t>(plngPlace)]++ > 0) return;
    for (const std::int32_t transition : mConsumers[static_cast<std::size_t>(plngPlace)]) {
      if (--mMissing[static_cast<std::size_t>(transition)] == 0) Queue(transition);
    }
  }

  bool FireNext() {
    while (mHead < mQueue.size()) {
      const std::int32_t transition = mQueue[mHead++];
      if (mHead == mQueue.size()) {
        mQueue.clear();
        mHead = 0;
      }
      mQueued[static_cast<std::size_t>(transition)] = 0;
      if (mMissing[static_cast<std::size_t>(transition)] != 0) continue;
      for (const std::int32_t place : mOutputs[static_cast<std::size_t>(transition)]) Put(place);
      for (const std::int32_t place : mInputs[static_cast<std::size_t>(transition)]) Take(place);
      if (mMissing[static_cast<std::size_t>(transition)] == 0) Queue(transition);
      return true;
    }
    return false;
  }

  std::int64_t Created() const { return mCreated; }

 private:
  void Queue(std::int32_t plngTransition) {
    if (mQueued[static_cast<std::size_t>(plngTransition)]++ == 0) mQueue.push_back(plngTransition);
  }
  void Take(std::int32_t plngPlace) {
    if (--mTokens[static_cast<std::size_t>(plngPlace)] > 0) return;
    for (const std::int32_t transition : mConsumers[static_cast<std::size_t>(plngPlace)]) {
      ++mMissing[static_cast<std::size_t>(transition)];
    }
  }

  std::vector<std::int32_t> mTokens;
  std::vector<std::vector<std::int32_t>> mConsumers;
  std::vector<std::int32_t> mMissing;
  std::vector<std::int8_t> mQueued;
  std::vector<std::vector<std::int32_t>> mInputs, mOutputs;
  std::vector<std::int32_t> mQueue;
  std::size_t mHead = 0;
  std::int64_t mCreated = 0;
};

}  // namespace vantrel::bench
