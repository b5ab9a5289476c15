#pragma once

#include <cstdint>
#include <random>

namespace vantrel {

/// Draws positions, all with the same chance. The numbers drawn depend on the seed alone, not on the platform.
class RandomIndex {
 public:
  explicit RandomIndex(std::uint64_t plngSeed) : mGenerator(plngSeed) {}

  /// From 0 to one less than the count, which must not be 0.
  std::uint64_t Below(std::uint64_t plngCount) {
    // 2^64 modulo the count: the numbers below it would make some positions likelier than others.
    const std::uint64_t refused = (0 - plngCount) % plngCount;
    std::uint64_t number = mGenerator();
    while (number < refused) number = mGenerator();
    return number % plngCount;
  }

 private:
  std::mt19937_64 mGenerator;
};

}  // namespace vantrel
