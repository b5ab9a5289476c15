// Builds the property records of one object.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include "model/PropertyCollection.h"

namespace vantrel {

/// Adds records to a new collection, in the order of the calls.
class PropertyBuilder {
 public:
  using Options = std::initializer_list<std::pair<const char*, Variant>>;

  PropertyBuilder() : mcolRecords(std::make_shared<PropertyCollection>()) {}

  /// Adds a record and returns it, for options that are not known beforehand. The reference is valid as long as the collection.
  PropertyRecord& Add(const std::string& pstrName, PropertyType pType, const std::string& pstrDescription, const Variant& pvarValue,
                      Options pOptions = {});

  /// The two connector sides, with the options that both share.
  void AddPositions(std::int32_t plngInput, std::int32_t plngOutput);

  std::shared_ptr<PropertyCollection> Done() { return std::move(mcolRecords); }

 private:
  std::shared_ptr<PropertyCollection> mcolRecords;
};

}  // namespace vantrel
