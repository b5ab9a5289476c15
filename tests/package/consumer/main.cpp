#include <string_view>

#include <vantrel/model/Workflow.h>
#include <vantrel/version.h>

int main() {
  const bool isVersion =
      std::string_view(VANTREL_VERSION) == PACKAGE_VERSION &&
      std::to_string(VANTREL_VERSION_MAJOR) + "." + std::to_string(VANTREL_VERSION_MINOR) + "." + std::to_string(VANTREL_VERSION_PATCH) ==
          PACKAGE_VERSION;
  return isVersion && vantrel::Workflow().Places.IsEmpty() ? 0 : 1;
}
