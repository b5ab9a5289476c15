#include <cstddef>
#include <cstdint>
#include <string_view>

#include "interchange/PnmlImport.h"

/// Any bytes are either a net that becomes a workflow, or a PnmlError.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pobjData, std::size_t plngSize) {
  vantrel::PnmlOptions options;
  options.SkipUnsupported = plngSize % 2 == 0;
  try {
    const auto net = vantrel::PnmlReader(options).ReadBytes({reinterpret_cast<const char*>(pobjData), plngSize}, "input");
    vantrel::BuildWorkflow(net);
  } catch (const vantrel::PnmlError&) {
  }
  return 0;
}
