// The reference of an arc to its place.
#pragma once

#include <cstdint>

#include "model/Forward.h"
#include "util/Ref.h"

namespace vantrel {

/// The place lists the arcs that refer to it: showing them all needs no walk through the workflow.
class PlaceOfArc final : public Ref<Place> {
 public:
  explicit PlaceOfArc(Arc& pobjArc) : mobjArc(pobjArc) {}
  PlaceOfArc(const PlaceOfArc&) = delete;
  ~PlaceOfArc() { Set(nullptr); }
  PlaceOfArc& operator=(const PlaceOfArc& pobjOther) { return *this = static_cast<const Ref<Place>&>(pobjOther); }
  PlaceOfArc& operator=(const Ref<Place>& pobjPlace) {
    Set(pobjPlace);
    return *this;
  }

 private:
  friend class Place;

  static constexpr std::uint32_t kUnlisted = 0xFFFFFFFF;
  void Set(const Ref<Place>& pobjPlace);

  Arc& mobjArc;
  std::uint32_t mlngPosition = kUnlisted;
};

}  // namespace vantrel
