// From one object of the chart to the next.
#pragma once

#include <memory>
#include <string>

#include "util/Ref.h"

namespace vantrel {

class Element;
class Vantrel;

/// The element that stands for the object behind or before the current one: places, then transitions, then notes, each in the
/// workflow's order. Without a current object the first or the last; nothing beyond the ends and without a workflow.
Ref<Element> NextOnTour(const Vantrel& pobjControl, bool pblnForward);

/// What a tip says of an element's object: name and description. Empty for an object without a name.
std::string TipOf(const Vantrel& pobjControl, const Element& pobjElement);

}  // namespace vantrel
