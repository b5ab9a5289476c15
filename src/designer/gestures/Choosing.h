// Chooses objects by mouse.
#pragma once

#include "chart/Element.h"
#include "designer/PointerInput.h"
#include "util/Ref.h"

namespace vantrel {

class Vantrel;

/// Chooses the object of an element and no other; null chooses nothing.
void ChooseAlone(Vantrel& pobjControl, const Ref<Element>& pobjElement);

/// Chooses the object, label or arc under the pointer, or nothing. One of several chosen objects keeps them chosen.
void ChooseUnder(Vantrel& pobjControl, const PointerInput& pobjInput);

}  // namespace vantrel
