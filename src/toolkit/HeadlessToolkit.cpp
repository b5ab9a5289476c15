#include "toolkit/HeadlessToolkit.h"

namespace vantrel {

bool HeadlessToolkit::Choose(const MenuItem& pobjMenu, std::string_view pstrId) {
  for (const auto& item : pobjMenu.Items) {
    if (!item->Enabled || !item->Visible) continue;
    if (item->Id != pstrId) {
      if (Choose(*item, pstrId)) return true;
    } else if (item->Items.empty() && !item->IsSeparator()) {
      item->OnClick.Raise();
      return true;
    }
  }
  return false;
}

void HeadlessToolkit::ShowPopup(MenuItem& pobjMenu) {
  ++PopupsShown;
  const auto play = OnPopup;  // what it does may take it away
  if (play) play(pobjMenu);
}

void HeadlessToolkit::Pointer(PointerShape pShape) {
  if (pShape != CurrentPointer()) Pointers.push_back(pShape);
}

}  // namespace vantrel
