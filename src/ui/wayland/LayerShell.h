#pragma once

#include <QMargins>
#include <QSize>

class QScreen;
class QWindow;

namespace velto::LayerShell {

enum class Layer { Top, Overlay };

// Where a window sits on its output's layer: anchored to these edges (all four: the whole output), this far
// from them, this size (0 in an anchored direction: the output's), taking the keyboard or never.
[[nodiscard]] constexpr Qt::Edges allEdges()
{
    return Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge;
}

struct Placement {
    Layer layer = Layer::Overlay;
    Qt::Edges anchors = allEdges();
    QMargins margins;
    QSize size;
    bool takesKeyboard = false;
    // -1: over panels and docks, never moved for them.
    int exclusiveZone = -1;
};

// Whether windows can be put on layers here: a Wayland session whose compositor offers the layer shell
// (sway and other wlroots compositors, KWin) and a Qt that gives bypass windows no shell role of its own (the
// environment switch set before the application was made). Main thread.
[[nodiscard]] bool isAvailable();

// Gives a window marked Qt::BypassWindowManagerHint, not yet shown, its place on the screen's layer, and waits for
// the compositor to size it. False where that cannot be done: the caller then shows the window its usual way.
bool place(QWindow* window, QScreen* screen, const Placement& placement);

// Whether the window has its layer (until it hides).
[[nodiscard]] bool isPlaced(QWindow* window);

// Moves a placed window away from its anchors, as slides and swipes do; the compositor applies it with the
// window's next frame.
void setMargins(QWindow* window, const QMargins& margins);

} // namespace velto::LayerShell
