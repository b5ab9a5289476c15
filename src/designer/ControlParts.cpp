#include "designer/ControlParts.h"

#include "designer/PopupMenus.h"

namespace vantrel {

ControlParts::ControlParts(Vantrel& pobjControl) : Host(pobjControl), Menus(std::make_shared<PopupMenus>(pobjControl)) {
  State.Host = &Host;
}

ControlParts::~ControlParts() {
  TokenAdded.Disconnect();
  if (Workflow) Workflow->ShownBy(nullptr);
}

}  // namespace vantrel
