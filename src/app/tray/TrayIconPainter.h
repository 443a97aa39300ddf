#pragma once

#include "shell/MenuBarPresentation.h"

#include <QIcon>
#include <QImage>

namespace velto {

// Draws the tray icon: a badge that reads on light and dark panels alike, with the plain Velto mark, or a ring
// that empties with the interval around the minutes left.
class TrayIconPainter final {
public:
    [[nodiscard]] static QImage paint(const TrayIconFace& face, int size);
    // The sizes panels ask for, 16 to 48 pixels.
    [[nodiscard]] static QIcon icon(const TrayIconFace& face);
};

} // namespace velto
