#pragma once

#include <optional>
#include <vector>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlXml.h"

namespace vantrel {

/// The centre of a place or a transition: `graphics/position`, in pixels, or nothing. Throws PnmlError for numbers that are none.
std::optional<PnmlPoint> ReadPosition(const PnmlXml& pobjXml, const pugi::xml_node& pobjNode);

/// Where the file puts the caption: `name/graphics/offset`, in pixels, or nothing. Throws PnmlError for numbers that are none.
std::optional<PnmlPoint> ReadNameOffset(const PnmlXml& pobjXml, const pugi::xml_node& pobjNode);

/// The bend points of an arc: the positions in its `graphics`, or the `arcpath` elements without the first and the last, which old files
/// put at the ends of the line. Throws PnmlError for numbers that are none.
std::vector<PnmlPoint> ReadBends(const PnmlXml& pobjXml, const pugi::xml_node& pobjArc);

/// Makes all caption offsets of a net relative to their nodes. The standard wants them so, but some editors write places on the page;
/// a net whose offsets lie nearer to the nodes than to zero is taken for one of those.
void RelateNameOffsets(PnmlNet& pobjNet);

}  // namespace vantrel
