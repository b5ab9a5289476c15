// What the designer asks of a window system.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/Menu.h"
#include "toolkit/Pointer.h"
#include "util/Color.h"

namespace vantrel {

/// Implemented by the adapter of a window system, and by HeadlessToolkit. Message boxes go through MsgBox.
class Toolkit {
 public:
  using CustomColors = std::array<Color, 16>;

  Toolkit() = default;
  Toolkit(const Toolkit&) = delete;
  Toolkit& operator=(const Toolkit&) = delete;
  virtual ~Toolkit() = default;

  /// Shows a menu where the mouse is and returns when it is closed and the entry that the user chose has raised its OnClick. The
  /// menu must outlive the call, whatever the entry does.
  virtual void ShowPopup(MenuItem& pobjMenu) = 0;
  /// The pointer over the chart; the hourglass over the whole program.
  virtual void Pointer(PointerShape pShape) = 0;
  /// Lets the user choose a colour and offers the custom colours, which they may change. Returns the given colour when they cancel.
  [[nodiscard]] virtual Color SelectColor(Color plngColor, CustomColors& pcolCustom) = 0;
  [[nodiscard]] virtual std::vector<std::string> FontNames() const = 0;
};

}  // namespace vantrel
