#pragma once

#include <type_traits>

#include <pugixml.hpp>

#include "interchange/section/SectionText.h"

namespace vantrel {

/// The writing side of SectionFields: writes a field as an attribute of an element, unless it has its default value.
class SectionWriter {
 public:
  explicit SectionWriter(const pugi::xml_node& pobjElement) : mElement(pobjElement) {}

  template <class T>
  void Field(const char* pstrName, const T& pValue, const std::type_identity_t<T>& pUsual) {
    if (!(pValue == pUsual)) mElement.append_attribute(pstrName) = ToSectionText(pValue).c_str();
  }
  template <class T, class Set>
  void Property(const char* pstrName, const T& pValue, const std::type_identity_t<T>& pUsual, Set&& /*pSet*/) {
    Field(pstrName, pValue, pUsual);
  }

 private:
  pugi::xml_node mElement;
};

}  // namespace vantrel
