// Property records in the order in which a grid shows them.
#pragma once

#include "model/PropertyRecord.h"
#include "model/SharedCollection.h"
#include "util/Collection.h"
#include "util/Object.h"

namespace vantrel {

/// Records keyed by their names. An Object, because a record's value may be such a collection.
class PropertyCollection final : public Object, public Collection<PropertyRecord> {
 public:
  std::string Class() const override { return "VNTR.PropertyCollection.1"; }
};

using SharedProperties = SharedCollection<PropertyCollection>;

}  // namespace vantrel
