#pragma once

#include <optional>
#include <string>

#include <pugixml.hpp>

namespace vantrel {

/// The kind of an arc that place/transition nets do not have (inhibitor, reset, read, test, transport, or an unknown word), as the file
/// spells it; empty for an ordinary arc. Editors name the kind in an attribute `type`, in a child `type` (attribute `value` or a text) or
/// in a child `arctype`; any one of them makes the arc foreign.
std::optional<std::string> ForeignArcKind(const pugi::xml_node& pobjArc);

/// True for an element that some editors write for an arc of another kind: `inhibitorArc`, `resetArc`, … with both ends.
bool IsForeignArcElement(const pugi::xml_node& pobjElement);

}  // namespace vantrel
