#pragma once

#include <optional>
#include <string>
#include <type_traits>

#include "interchange/PnmlXml.h"
#include "interchange/section/SectionText.h"

namespace vantrel {

/// The reading side of SectionFields: an attribute sets its field. Throws PnmlError for a text that is not a value of the field's type;
/// ignores unknown attributes.
class SectionReader {
 public:
  SectionReader(const PnmlXml& pobjXml, const pugi::xml_node& pobjElement) : mXml(pobjXml), mElement(pobjElement) {}

  /// Empty when the element has no such attribute.
  template <class T>
  std::optional<T> Value(const char* pstrName) const {
    const pugi::xml_attribute attribute = mElement.attribute(pstrName);
    if (!attribute) return std::nullopt;
    std::optional<T> value = FromSectionText<T>(attribute.value());
    if (!value) Refuse(pstrName);
    return value;
  }
  template <class T>
  void Field(const char* pstrName, T& pValue, const std::type_identity_t<T>& /*pUsual*/) {
    if (auto value = Value<T>(pstrName)) pValue = std::move(*value);
  }
  template <class T, class Set>
  void Property(const char* pstrName, const T& /*pValue*/, const std::type_identity_t<T>& /*pUsual*/, Set&& pSet) {
    if (const auto value = Value<T>(pstrName)) pSet(*value);
  }

  /// Throws the PnmlError for an attribute with an invalid value.
  [[noreturn]] void Refuse(const char* pstrName) const {
    mXml.Fail(
        "the value " + QuotedForMessage(mElement.attribute(pstrName).value()) + " of " + pstrName + " in the section of Vantrel is invalid",
        mElement);
  }

 private:
  const PnmlXml& mXml;
  pugi::xml_node mElement;
};

}  // namespace vantrel
