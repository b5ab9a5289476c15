#include "interchange/section/SectionRecords.h"

#include <cmath>
#include <memory>
#include <string>
#include <string_view>

#include "interchange/section/SectionFields.h"
#include "interchange/section/SectionReader.h"
#include "interchange/section/SectionWriter.h"

namespace vantrel {

namespace {

constexpr const char* kProperty = "property";
constexpr const char* kOption = "option";
constexpr const char* kValue = "value";
constexpr const char* kValueType = "valueType";

// A text, the usual value, has no type beside it.
void WriteTyped(pugi::xml_node pobjElement, const char* pstrType, const std::string& pstrValue) {
  pobjElement.append_attribute(kValueType) = pstrType;
  pobjElement.append_attribute(kValue) = pstrValue.c_str();
}

// Only a comparison tells which kind of number a variant holds, and wider kinds must be tried first.
void WriteNumber(const pugi::xml_node& pobjElement, const Variant& pvarValue) {
  const double number = pvarValue.ToDouble();
  if (std::isnan(number) || pvarValue == Variant(number)) return WriteTyped(pobjElement, "double", ToSectionText(number));
  if (pvarValue == Variant(pvarValue.ToSingle())) return WriteTyped(pobjElement, "single", ToSectionText(pvarValue.ToSingle()));
  const bool isLong = pvarValue == Variant(pvarValue.ToInt32());
  WriteTyped(pobjElement, isLong ? "long" : "short", ToSectionText(pvarValue.ToInt32()));
}

void WriteValue(pugi::xml_node pobjElement, const Variant& pvarValue) {
  if (pvarValue.IsText()) {
    pobjElement.append_attribute(kValue) = EncodeText(pvarValue.ToText()).c_str();
  } else if (pvarValue.IsNull()) {
    pobjElement.append_attribute(kValueType) = "null";
  } else if (pvarValue.IsBoolean()) {
    WriteTyped(pobjElement, "boolean", ToSectionText(pvarValue.ToBoolean()));
  } else if (pvarValue.IsDate()) {
    WriteTyped(pobjElement, "date", ToSectionText(pvarValue.ToDate()));
  } else if (pvarValue.IsNumber()) {
    WriteNumber(pobjElement, pvarValue);
  }
}

template <class T>
Variant ReadAs(const SectionReader& pobjReader) {
  const auto value = pobjReader.Value<T>(kValue);
  return value ? Variant(*value) : Variant();
}

Variant ReadValue(const SectionReader& pobjReader) {
  const std::string type = pobjReader.Value<std::string>(kValueType).value_or("");
  if (type.empty()) return ReadAs<std::string>(pobjReader);
  if (type == "null") return Variant::Null;
  if (type == "boolean") return ReadAs<bool>(pobjReader);
  if (type == "date") return ReadAs<Date>(pobjReader);
  if (type == "double") return ReadAs<double>(pobjReader);
  if (type == "single") return ReadAs<float>(pobjReader);
  if (type == "long") return ReadAs<std::int32_t>(pobjReader);
  if (type == "short") return ReadAs<std::int16_t>(pobjReader);
  pobjReader.Refuse(kValueType);
}

void ReadOptions(const PnmlXml& pobjXml, const pugi::xml_node& pobjElement, PropertyRecord& pobjRecord) {
  for (const pugi::xml_node& child : pobjElement.children()) {
    if (LocalName(child) != kOption) continue;
    const SectionReader reader(pobjXml, child);
    const std::string prompt = reader.Value<std::string>("prompt").value_or("");
    if (pobjRecord.Options.Contains(prompt)) pobjXml.Fail("the option " + QuotedForMessage(prompt) + " is there twice", child);
    pobjRecord.AddOption(prompt, ReadValue(reader));
  }
}

}  // namespace

void WriteRecords(pugi::xml_node pobjElement, const PropertyCollection& pcolRecords) {
  for (const auto& record : pcolRecords) {
    pugi::xml_node property = pobjElement.append_child(kProperty);
    SectionWriter writer(property);
    RecordFields(writer, std::as_const(*record));
    WriteValue(property, record->Value);
    for (const auto& option : record->Options) {
      const pugi::xml_node element = property.append_child(kOption);
      SectionWriter(element).Field("prompt", option->Prompt, {});
      WriteValue(element, option->Value);
    }
  }
}

void ReadRecords(const PnmlXml& pobjXml, const pugi::xml_node& pobjElement, PropertyCollection& pcolRecords) {
  for (const pugi::xml_node& child : pobjElement.children()) {
    if (LocalName(child) != kProperty) continue;
    auto record = std::make_shared<PropertyRecord>();
    SectionReader reader(pobjXml, child);
    RecordFields(reader, *record);
    record->Value = ReadValue(reader);
    ReadOptions(pobjXml, child, *record);
    const std::string key = pcolRecords.Contains(record->Name) ? std::string() : record->Name;
    pcolRecords.Add(std::move(record), key);
  }
}

}  // namespace vantrel
