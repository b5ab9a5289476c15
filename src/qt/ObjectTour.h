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

/// The label in which the user may write what the current object says: its caption, a note's text, or of an arc the weight or else
/// the guard that is shown. None for an object without one.
Ref<Element> TextOnTour(const Vantrel& pobjControl);

/// What a tip says of an element's object: name and description. Empty for an object without a name.
std::string TipOf(const Vantrel& pobjControl, const Element& pobjElement);

}  // namespace vantrel
