#pragma once

#include <QColor>
#include <QIcon>
#include <QString>

namespace velto {

// Icons for the tray menu, by the symbol names the menu presentation uses. The desktop's icon theme is asked
// first where it has a fitting icon; otherwise Velto's own small drawings, tinted for the menu's text colour.
// An unknown name gives the timer symbol. Main thread.
class MenuSymbols final {
public:
    [[nodiscard]] static QIcon icon(const QString& symbolName, const QColor& tint);
    // Whether Velto ships a drawing for this name.
    [[nodiscard]] static bool isKnown(const QString& symbolName);
};

} // namespace velto
