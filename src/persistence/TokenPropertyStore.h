// The definitions of token properties, and the tokens' own values.
#pragma once

#include <cstdint>
#include <memory>

#include "model/Workflow.h"
#include "persistence/DatabaseAccess.h"

namespace vantrel {

/// In the order in which they were saved; never null.
std::shared_ptr<PropertyCollection> ReadTokenProperties(DatabaseAccess& pobjAccess, std::int32_t plngPlaceId);
/// Never null.
std::shared_ptr<Collection<PropertyOption>> ReadPropertyOptions(DatabaseAccess& pobjAccess, std::int32_t plngPropertyId);
/// Replaces the stored definitions of the place.
void SaveTokenProperties(DatabaseAccess& pobjAccess, const Place& pobjPlace);

/// Writes what differs from the definitions' defaults or has a row already. Each value remembers its row in its Id. Throws
/// Error 5 for a value without definition.
void SaveTokenValues(DatabaseAccess& pobjAccess, SavedMarks& pobjMarks, const Token& pobjToken);

}  // namespace vantrel
