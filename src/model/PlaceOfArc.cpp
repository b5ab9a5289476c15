#include "model/PlaceOfArc.h"

#include "model/Arc.h"
#include "model/Place.h"

namespace vantrel {

void PlaceOfArc::Set(const Ref<Place>& pobjPlace) {
  if (mlngPosition != kUnlisted) {
    auto& arcs = get()->mcolArcs;
    arcs.back()->Place.mlngPosition = mlngPosition;
    arcs[mlngPosition] = arcs.back();
    arcs.pop_back();
    mlngPosition = kUnlisted;
  }
  Ref<Place>::operator=(pobjPlace);
  if (auto* place = get()) {
    mlngPosition = static_cast<std::uint32_t>(place->mcolArcs.size());
    place->mcolArcs.push_back(&mobjArc);
  }
}

}  // namespace vantrel
