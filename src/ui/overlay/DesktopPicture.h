#pragma once

#include <QString>

namespace velto {

// The file of the desktop picture the session shows, read from KDE Plasma's or GNOME's settings; empty when
// neither says or the file does not exist. May start `gsettings` briefly, so call it once per break, not per frame.
[[nodiscard]] QString desktopPicturePath();

// The picture path in the text of Plasma's plasma-org.kde.plasma.desktop-appletsrc: the first "Image=" entry.
[[nodiscard]] QString plasmaWallpaperFromConfig(const QString& configText);
// The path in a `gsettings get org.gnome.desktop.background picture-uri` answer, such as 'file:///a/b.jpg'.
[[nodiscard]] QString gnomeWallpaperFromGsettings(const QString& answer);

} // namespace velto
