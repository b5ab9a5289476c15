// Menus as Qt's.
#pragma once

class QMenu;

namespace vantrel {

class MenuItem;

/// Fills an empty menu with the sub-entries of an entry: sub-menus, check marks, separators. Leaves out hidden entries and separators
/// that separate nothing. The data of an action is its MenuItem as `void*`; the caller connects the actions.
void FillMenu(QMenu& pobjMenu, MenuItem& pobjItem);

}  // namespace vantrel
