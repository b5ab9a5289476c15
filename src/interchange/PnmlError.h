#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "util/Error.h"

namespace vantrel {

/// A place in a text, both counted from 1. Columns count bytes of an UTF-8 file and characters of any other.
struct TextPosition {
  std::size_t Line = 1;
  std::size_t Column = 1;
};

/// A net that cannot be read, or a file that cannot be written: Error 321. Its description is one line: `FILE: what (line L, column C)`,
/// without the bracket if the position is unknown.
class PnmlError : public Error {
 public:
  PnmlError(const std::string& pstrFile, const std::string& pstrWhat);
  PnmlError(const std::string& pstrFile, const std::string& pstrWhat, const TextPosition& pobjPosition);
};

/// Text of a file for a message: in double quotes, on one line, shortened if it is long.
std::string QuotedForMessage(std::string_view pstrText);

}  // namespace vantrel
