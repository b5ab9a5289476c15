#pragma once

#include <cstddef>
#include <string_view>

namespace vantrel {

/// Checks that a text is a well-formed XML 1.0 document without entities of its own and with no element deeper than plngDepthLimit.
///
/// The XML library is lenient: it accepts `--` in comments, repeated attributes, several roots, unknown entities, and any depth, which a
/// recursive walk of its tree would not survive. This check refuses all of that in one pass without recursion, before a tree is built.
/// Throws XmlFault at the first fault.
void CheckXml(std::string_view pstrText, std::size_t plngDepthLimit);

}  // namespace vantrel
