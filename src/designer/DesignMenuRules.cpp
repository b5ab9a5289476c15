#include "designer/DesignMenuRules.h"

#include <initializer_list>

namespace vantrel {

namespace {

using Captions = std::initializer_list<const char*>;

void Enable(MenuItem& pobjMenu, Captions pcolCaptions, bool pblnOn = true) {
  for (const char* caption : pcolCaptions) pobjMenu.Find(caption)->Enabled = pblnOn;
}

void EnableForSelection(const Vantrel& pobjControl, MenuItem& pobjMenu) {
  const std::int32_t count = pobjControl.Selection()->Count();
  if (count == 0) return;
  const Element* current = pobjControl.CurrentControl().get();
  Enable(pobjMenu, {"Copy"}, current ? current->Family() != ctlLineFamily : count >= 2);
  if (pobjControl.LockControls()) return;
  Enable(pobjMenu, {"Delete"});
  Enable(pobjMenu, {"Align Horizontal", "Align Vertical"}, count >= 2);
}

void EnableForElement(const Vantrel& pobjControl, MenuItem& pobjMenu) {
  const Element* current = pobjControl.CurrentControl().get();
  if (!current) return;
  Enable(pobjMenu, {"Properties"});
  if (pobjControl.LockControls()) return;
  if (current->Family() == ctlLineFamily) {
    const auto segment = pobjControl.Workflow()->Vectors.Find(current->Tag());
    Enable(pobjMenu, {"Insert Elbow"});
    Enable(pobjMenu, {"Remove Elbow"}, segment && segment->Arc() && !segment->Arc()->BendPoints().empty());
  }
  if (current->Family() == ctlImageFamily) Enable(pobjMenu, {"Insert Arc"});
  Enable(pobjMenu, {"Delete"});
}

}  // namespace

void EnableDesignMenu(const Vantrel& pobjControl, MenuItem& pobjMenu) {
  Enable(pobjMenu,
         {"Copy", "Paste", "Delete", "Select All", "Insert Arc", "Insert Place", "Insert Transition", "Insert Elbow", "Remove Elbow",
          "Add Notation", "Test", "Align Horizontal", "Align Vertical", "Backcolor", "Properties"},
         false);
  const auto workflow = pobjControl.Workflow();
  if (!workflow) return;
  EnableForSelection(pobjControl, pobjMenu);
  Enable(pobjMenu, {"Paste"}, pobjControl.Clipboard && !pobjControl.Clipboard->IsEmpty() && !pobjControl.LockControls());
  Enable(pobjMenu, {"Select All"}, !workflow->Transitions.IsEmpty() || !workflow->Places.IsEmpty());
  EnableForElement(pobjControl, pobjMenu);
  if (!pobjControl.LockControls()) Enable(pobjMenu, {"Insert Place", "Insert Transition", "Backcolor", "Add Notation"});
  Enable(pobjMenu, {"Test", "Save"});
}

}  // namespace vantrel
