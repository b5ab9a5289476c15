#include "model/PropertyRecord.h"

namespace vantrel {

std::shared_ptr<PropertyRecord> PropertyRecord::Copy() const {
  auto copy = std::make_shared<PropertyRecord>();
  copy->Id = Id;
  copy->Name = Name;
  copy->Caption = Caption;
  copy->Type = Type;
  copy->Value = Value;
  copy->Description = Description;
  copy->Attributes = Attributes;
  copy->ReadOnly = ReadOnly;
  for (const auto& option : Options) copy->AddOption(option->Prompt, option->Value);
  return copy;
}

void PropertyRecord::AddOption(const std::string& pstrPrompt, const Variant& pvarValue) {
  Options.Add(std::make_shared<PropertyOption>(PropertyOption{pstrPrompt, pvarValue}), pstrPrompt);
}

}  // namespace vantrel
