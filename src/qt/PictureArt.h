// The designer's own pictures.
#pragma once

#include <string_view>
#include <vector>

namespace vantrel {

struct PictureArt {
  std::string_view Key;
  std::string_view Svg;
};

/// What VantrelImages lists, drawn: the files of the folder pictures/.
const std::vector<PictureArt>& DesignerPictures();

}  // namespace vantrel
