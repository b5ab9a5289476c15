#pragma once

#include <cstdint>

namespace vantrel {

/// Which of the enabled transitions fires next.
enum class Pick : std::uint8_t { First, Random };

/// How a run starts, goes on and ends.
struct PlayOptions {
  std::int32_t Cases = 1;    ///< tokens put into the start place, each with its own case
  bool Resume = false;       ///< first take up what the store has
  bool FromMarking = false;  ///< use the file's initial marking instead; its tokens have no case
  vantrel::Pick Pick = Pick::First;
  std::uint64_t Seed = 1;     ///< of Pick::Random; a run with the same seed is the same on every machine
  bool Automatic = false;     ///< make every transition automatic
  bool CaseTracking = false;  ///< also if the net has it switched off
  bool KeepHistory = false;   ///< also if the net has it switched off
  std::int64_t MaxFirings = 100'000;
  bool KeepTrace = false;  ///< list every firing in the account
};

}  // namespace vantrel
