// Menus, independent of what shows them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "util/Event.h"

namespace vantrel {

/// An entry of a menu; one with entries of its own is a sub-menu. A pop-up menu is an entry that no other menu lists.
class MenuItem {
 public:
  explicit MenuItem(std::string pstrCaption = {}, std::string_view pstrId = {}) : Caption(std::move(pstrCaption)), Id(pstrId) {}
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  std::string Caption;  ///< "-" for a separator
  std::string Id;       ///< of the command that it runs; empty for separators and sub-menus
  bool Enabled = true, Checked = false, Visible = true;
  std::vector<std::unique_ptr<MenuItem>> Items;

  /// The user chose the entry (only while it is enabled and visible), or the host clicks it for them.
  Event<> OnClick;

  bool IsSeparator() const { return Caption == "-"; }
  MenuItem& Add(std::string pstrCaption, std::string_view pstrId = {}) {
    return *Items.emplace_back(std::make_unique<MenuItem>(std::move(pstrCaption), pstrId));
  }
  MenuItem& AddSeparator() { return Add("-"); }
  /// The entry with that id, here or in a sub-menu, or null.
  [[nodiscard]] MenuItem* Find(std::string_view pstrId) {
    for (const auto& item : Items) {
      if (item->Id == pstrId && !pstrId.empty()) return item.get();
      if (MenuItem* const inner = item->Find(pstrId)) return inner;
    }
    return nullptr;
  }
};

}  // namespace vantrel
