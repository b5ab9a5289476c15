// The control's pop-up menus.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "designer/Vantrel.h"

namespace vantrel {

/// Builds the menus of the control's commands. Each menu is returned with its entries enabled and checked for the moment; entries that a
/// host adds, and entries that it hides, stay as they are. Share this object while a menu shows: a command may end the control, and the
/// menus with it.
class PopupMenus {
 public:
  explicit PopupMenus(Vantrel& pobjControl);

  [[nodiscard]] MenuItem& Design();
  [[nodiscard]] MenuItem& Test();
  [[nodiscard]] MenuItem& Role() { return mRole; }

 private:
  using Ids = std::span<const std::string_view>;

  void Build(MenuItem& pobjMenu, Ids pcolIds);
  void Follow(const MenuItem& pobjMenu) const;

  Ref<Vantrel> mobjControl;
  MenuItem mDesign{"Design"}, mTest{"Test"}, mRole{"Role"};
  std::vector<Subscription> mcolSubscriptions;
};

}  // namespace vantrel
