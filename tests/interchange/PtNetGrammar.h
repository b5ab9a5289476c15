#pragma once

#include <string>

namespace vantrel::test {

/// The first thing in a document that the grammar of place/transition nets (ISO/IEC 15909-2, RELAX NG grammars of 2009) does not allow;
/// empty for a valid one. What is inside the parts of tools is anybody's.
std::string FaultOfPtNet(const std::string& pstrDocument);

}  // namespace vantrel::test
