// From one object of the chart to the next.
#pragma once

#include <memory>
#include <string>

#include "util/Ref.h"

namespace vantrel {

class Element;
class Vantrel;

/// The element of the object after or before the current one: places, then transitions, then notes, each in the workflow's order.
/// Without a current object the first or the last; nothing at the ends and without a workflow.
Ref<Element> NextOnTour(const Vantrel& pobjControl, bool pblnForward);

/// The label that holds the text of the current object: its caption, a note's text, or an arc's weight (or else its guard), if shown.
/// Null for an object without one.
Ref<Element> TextOnTour(const Vantrel& pobjControl);

/// The tool tip for an element's object: name and description. Empty for an object without a name.
std::string TipOf(const Vantrel& pobjControl, const Element& pobjElement);

}  // namespace vantrel
