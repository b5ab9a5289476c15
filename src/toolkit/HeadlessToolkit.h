// A toolkit without a window system.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/Toolkit.h"

namespace vantrel {

/// Answers from a script and notes what it is asked: for tests, and for hosts that drive the designer without showing it.
/// Without a script pop-ups close at once and colours stay.
class HeadlessToolkit final : public Toolkit {
 public:
  std::function<void(MenuItem&)> OnPopup;      ///< plays the user of an open pop-up; see Choose
  std::optional<Color> ChosenColor;            ///< what the user chooses; without it they cancel
  std::vector<std::string> Fonts = {"Arial"};  ///< of this system
  std::vector<PointerShape> Pointers;          ///< every pointer shown, oldest first; repetitions count once
  std::int32_t PopupsShown = 0;                ///< calls of ShowPopup

  [[nodiscard]] PointerShape CurrentPointer() const { return Pointers.empty() ? vntPointerDefault : Pointers.back(); }

  /// Clicks the entry with that id, here or in a sub-menu, as a user can: only what is enabled and visible, down from
  /// the menu itself. False when there was nothing to click. The menu may be gone afterwards.
  static bool Choose(const MenuItem& pobjMenu, std::string_view pstrId);

  void ShowPopup(MenuItem& pobjMenu) override;
  void Pointer(PointerShape pShape) override;
  Color SelectColor(Color plngColor, CustomColors&) override { return ChosenColor.value_or(plngColor); }
  std::vector<std::string> FontNames() const override { return Fonts; }
};

}  // namespace vantrel
