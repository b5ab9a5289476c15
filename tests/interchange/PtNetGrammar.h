#pragma once

#include <string>

namespace vantrel::test {

/// The first thing in a document that the grammar of place/transition nets (ISO/IEC 15909-2, RELAX NG grammars of 2009) does not allow;
/// empty for a valid one. Sections of tools may contain anything.
std::string FaultOfPtNet(const std::string& pstrDocument);

}  // namespace vantrel::test
