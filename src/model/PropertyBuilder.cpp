#include "model/PropertyBuilder.h"

#include "model/Enumerations.h"

namespace vantrel {

PropertyRecord& PropertyBuilder::Add(const std::string& pstrName, PropertyType pType, const std::string& pstrDescription,
                                     const Variant& pvarValue, Options pOptions) {
  auto record = std::make_shared<PropertyRecord>();
  record->Name = pstrName;
  record->Type = pType;
  record->Description = pstrDescription;
  record->Value = pvarValue;
  for (const auto& [prompt, value] : pOptions) record->AddOption(prompt, value);
  mcolRecords->Add(record, pstrName);
  return *record;
}

void PropertyBuilder::AddPositions(std::int32_t plngInput, std::int32_t plngOutput) {
  const Options sides = {{"Left", std::int32_t{vntLeft}},
                         {"Top", std::int32_t{vntTop}},
                         {"Right", std::int32_t{vntRight}},
                         {"Bottom", std::int32_t{vntBottom}}};
  Add("InputPosition", vntPropertyChoice, "Flowcharting input location.", plngInput, sides);
  Add("OutputPosition", vntPropertyChoice, "Flowcharting output location.", plngOutput, sides);
}

}  // namespace vantrel
