#pragma once

#include <string_view>
#include <type_traits>

#include "interchange/XmlWriter.h"
#include "interchange/section/SectionText.h"

namespace vantrel {

/// The writing side of SectionFields: writes a field as an attribute of the open element, unless it has its default value.
class SectionWriter {
 public:
  explicit SectionWriter(XmlWriter& pobjXml) : mXml(pobjXml) {}

  template <class T>
  void Field(std::string_view pstrName, const T& pValue, const std::type_identity_t<T>& pUsual) {
    if (!(pValue == pUsual)) mXml.Attribute(pstrName, ToSectionText(pValue));
  }
  template <class T, class Set>
  void Property(std::string_view pstrName, const T& pValue, const std::type_identity_t<T>& pUsual, Set&& /*pSet*/) {
    Field(pstrName, pValue, pUsual);
  }

 private:
  XmlWriter& mXml;
};

}  // namespace vantrel
