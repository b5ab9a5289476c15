// The base class of everything that a variant, a property grid or a host can hold as an object.
#pragma once

#include <string>

#include "util/Ref.h"

namespace vantrel {

/// An object with a class identifier such as "VNTR.Place.1". Hosts derive from it to link objects of their own.
class Object : public Referable {
 public:
  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;
  virtual ~Object() = default;

  /// The class identifier, the same for every object of a class.
  virtual std::string Class() const = 0;

  /// The name that lists and property grids show for the object; empty if it has none.
  virtual std::string NameText() const { return {}; }
};

}  // namespace vantrel
