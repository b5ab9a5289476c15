// Menus as Qt's.
#pragma once

class QMenu;

namespace vantrel {

class MenuItem;

/// Fills an empty menu with an entry's entries: sub-menus, check marks, separators; hidden entries are left out, and separators
/// that separate nothing. The data of an action is its MenuItem as `void*`; nothing is connected.
void FillMenu(QMenu& pobjMenu, MenuItem& pobjItem);

}  // namespace vantrel
