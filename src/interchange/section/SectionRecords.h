// Property records in a section: the definitions of a place's token properties, the roles of a transition.
#pragma once

#include "interchange/PnmlXml.h"
#include "model/PropertyCollection.h"

namespace vantrel {

/// Appends an element `property` for each record. Values that are objects of the host are left out.
void WriteRecords(pugi::xml_node pobjElement, const PropertyCollection& pcolRecords);

/// Adds a record for each `property` in the element, under its name if that is free. Throws PnmlError for an invalid value and for an
/// option that is given twice.
void ReadRecords(const PnmlXml& pobjXml, const pugi::xml_node& pobjElement, PropertyCollection& pcolRecords);

}  // namespace vantrel
