#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vantrel {

/// What is wrong with a text as XML, and at which byte of its UTF-8 form.
class XmlFault : public std::runtime_error {
 public:
  XmlFault(const std::string& pstrWhat, std::size_t plngOffset) : std::runtime_error(pstrWhat), mOffset(plngOffset) {}
  std::size_t Offset() const { return mOffset; }

 private:
  std::size_t mOffset;
};

}  // namespace vantrel
