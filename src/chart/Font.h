// The look of a text.
#pragma once

#include <cstdint>
#include <string>

namespace vantrel {

struct Font {
  std::string Name = "Arial";
  std::int32_t Size = 8;  ///< points; 0 stands for the surface's usual size
  bool Bold = false, Italic = false, Underline = false, Strikethrough = false;

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace vantrel
