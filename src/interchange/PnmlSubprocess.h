#pragma once

#include <set>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "interchange/PnmlDocument.h"

namespace vantrel {

/// Finds the start and end among the places that a sub-process shares with the net around its transition: both have them under one id.
class PnmlSubprocessBorder {
 public:
  /// pobjOuter is the net with the transition; its nodes and arcs must stay while this lives.
  explicit PnmlSubprocessBorder(const PnmlNet& pobjOuter);

  /// Sets Border of the shared places: Start if no arc of the sub-process leads in, End if none leads out. For a place without any arc
  /// inside, the arcs between it and the transition decide.
  void Mark(PnmlNet& pobjSubnet, std::string_view pstrTransition) const;

 private:
  using Ends = std::pair<std::string_view, std::string_view>;

  PnmlBorder Kind(std::string_view pstrPlace, std::string_view pstrTransition, bool pblnEntered, bool pblnLeft) const;

  std::unordered_set<std::string_view> mPlaces;
  std::set<Ends> mArcs;  // source and target
};

}  // namespace vantrel
