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

  /// Shows a menu where the mouse is and comes back when it is closed; the entry that the user chose has raised its OnClick
  /// by then. The menu must outlive the call, whatever the entry does.
  virtual void ShowPopup(MenuItem& pobjMenu) = 0;
  /// The pointer over the chart; the hourglass over the whole program.
  virtual void Pointer(PointerShape pShape) = 0;
  /// Lets the user choose a colour; the given one when he cancels. The custom colours are offered, too, and he may change them.
  virtual Color SelectColor(Color plngColor, CustomColors& pcolCustom) = 0;
  /// Lets pending user-interface events take effect once, those of mouse and keyboard excepted.
  virtual void ProcessEvents() = 0;
  virtual std::vector<std::string> FontNames() const = 0;
};

}  // namespace vantrel
