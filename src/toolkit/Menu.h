// Menus, independent of what shows them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "util/Event.h"

namespace vantrel {

/// An entry of a menu; one with entries of its own is a sub-menu. A pop-up menu is an entry that nobody lists.
class MenuItem {
 public:
  explicit MenuItem(std::string pstrCaption = {}) : Caption(std::move(pstrCaption)) {}
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  std::string Caption;  ///< "-" for a separator
  bool Enabled = true, Checked = false, Visible = true;
  std::vector<std::unique_ptr<MenuItem>> Items;

  /// The user chose the entry (only while it is enabled and visible), or the host clicks it for him.
  Event<> OnClick;

  bool IsSeparator() const { return Caption == "-"; }
  MenuItem& Add(std::string pstrCaption) { return *Items.emplace_back(std::make_unique<MenuItem>(std::move(pstrCaption))); }
  MenuItem& AddSeparator() { return Add("-"); }
  /// The entry with that caption, here or in a sub-menu, or null.
  MenuItem* Find(std::string_view pstrCaption) {
    for (const auto& item : Items) {
      if (item->Caption == pstrCaption) return item.get();
      if (MenuItem* const inner = item->Find(pstrCaption)) return inner;
    }
    return nullptr;
  }
};

}  // namespace vantrel
