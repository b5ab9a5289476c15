#pragma once

#include <optional>
#include <string>

#include <pugixml.hpp>

namespace vantrel {

/// The kind of an arc that no place/transition net has (inhibitor, reset, read, test, transport, or a word unknown here), as the file
/// spells it; nothing for an ordinary arc. Editors name the kind in an attribute `type`, in a child `type` (attribute `value` or a text) or
/// in a child `arctype`; any of them is enough to make the arc a foreign one.
std::optional<std::string> ForeignArcKind(const pugi::xml_node& pobjArc);

/// True for an element that some editors write for an arc of another kind: `inhibitorArc`, `resetArc`, … with both ends.
bool IsForeignArcElement(const pugi::xml_node& pobjElement);

}  // namespace vantrel
