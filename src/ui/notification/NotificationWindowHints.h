#pragma once

class QWindow;

namespace velto {

// Asks an X11 window manager to keep the card on every workspace, out of taskbars and pagers, and never to give
// it the keyboard focus (no WM_TAKE_FOCUS: with the input hint off, the card is a window that takes no input
// focus at all). The window must be created and not yet shown. Does nothing on other platforms.
void applyNotificationWindowHints(QWindow* window);

} // namespace velto
