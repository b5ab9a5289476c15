#pragma once

#include <QColor>
#include <QIcon>
#include <string_view>

namespace vantrel {

/// The picture of a command in an ink that suits the palette, sharp on every screen. Empty for an unknown name.
QIcon ActionIcon(std::string_view pstrName, const QColor& pobjInk);
/// The program's own picture.
QIcon ProgramIcon();

}  // namespace vantrel
