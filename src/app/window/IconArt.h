// The pictures of the window's commands.
#pragma once

#include <string_view>
#include <vector>

namespace vantrel {

struct IconArt {
  std::string_view Name;
  std::string_view Svg;
};

/// The files of the folder icons/, drawn in one ink, #334155.
const std::vector<IconArt>& WindowIcons();

}  // namespace vantrel
