#pragma once

#include <optional>
#include <vector>

#include "interchange/PnmlDocument.h"
#include "interchange/PnmlXml.h"

namespace vantrel {

/// The centre of a place or a transition: `graphics/position`, in pixels, if given. Throws PnmlError for invalid numbers.
std::optional<PnmlPoint> ReadPosition(const PnmlXml& pobjXml, const pugi::xml_node& pobjNode);

/// The offset of the caption: `name/graphics/offset`, in pixels, if given. Throws PnmlError for invalid numbers.
std::optional<PnmlPoint> ReadNameOffset(const PnmlXml& pobjXml, const pugi::xml_node& pobjNode);

/// The bend points of an arc: the positions in its `graphics`, or the `arcpath` elements without the first and the last, which old files
/// put at the ends of the line. Throws PnmlError for invalid numbers.
std::vector<PnmlPoint> ReadBends(const PnmlXml& pobjXml, const pugi::xml_node& pobjArc);

/// Makes all caption offsets of a net relative to their nodes. That is the standard, but some editors write positions on the page. A net
/// whose offsets are nearer to the nodes than to zero is taken for one of theirs.
void RelateNameOffsets(PnmlNet& pobjNet);

}  // namespace vantrel
