#pragma once

#include <QList>
#include <QRect>
#include <QString>

#include <functional>

class QScreen;

namespace velto {

// The frame, in the X server's pixels, of the window that has the keyboard focus; empty when no window has
// it or the session does not say (X11 answers through _NET_ACTIVE_WINDOW; Wayland tells no application).
[[nodiscard]] QRect focusedWindowFrame();

// The screen that holds most of frame (given in the X server's pixels); fallback when frame is empty or on
// none of them.
[[nodiscard]] QScreen* screenHolding(const QRect& frame, const QList<QScreen*>& screens, QScreen* fallback);

// Where the session tells no application where the focused window is (Wayland), the name of the output it is
// on, as our own compositor connection knows it (empty when it does not). Set once, by whoever made that link.
void setFocusedOutputSource(std::function<QString()> outputName);

// The desktop's main screen: the one with the focused window, else the primary screen. It asks the X server
// two short questions, so it is for the moment a window is placed, not for every frame.
[[nodiscard]] QScreen* mainScreen();

} // namespace velto
