// The text that a label lets the user edit.
#pragma once

#include <string>

#include "chart/Label.h"

namespace vantrel {

class Vantrel;

/// The caption of the label's object; for an arc its guard, without the brackets that the label shows, or its weight. The label's own text
/// when its object is gone.
std::string TextOf(const Vantrel& pobjControl, const Label& pobjLabel);

/// Stores it there, redraws and marks the workflow dirty.
void StoreText(Vantrel& pobjControl, const Label& pobjLabel, const std::string& pstrText);

}  // namespace vantrel
