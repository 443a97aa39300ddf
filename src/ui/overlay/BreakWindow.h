#pragma once

#include "BreakViewModel.h"
#include "FreedMemory.h"
#include "VeltoWindows.h"
#include "settings/SettingsEnums.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <memory>

class QQmlEngine;
class QQuickWindow;
class QScreen;

namespace velto {

class BackgroundImageProvider;
class BreakManager;
class ScreenLocking;
class SettingsManager;
class SoundPlaying;

// The screens a break covers: every screen in the system's order, or only the primary one (the first screen
// when none is primary); none when there are no screens.
[[nodiscard]] QList<QScreen*> breakTargetScreens(ScreenDisplayMode mode, const QList<QScreen*>& screens,
                                                 QScreen* primary);

// Covers the screens with the break screen while a break runs, and plays the chimes and the lock around it.
// One frameless window per screen, above panels and other windows, on every workspace, out of the taskbar.
// The QML engine is made for the first window and kept for later breaks; once the last window of a break has
// gone, the break's picture and whatever else it freed go back to the system. Main thread.
class BreakWindow final : public QObject, public BreakOverlay {
    Q_OBJECT

public:
    // Seconds a window takes to fade in or out.
    static constexpr int fadeMilliseconds = 300;
    // Longest wait, after a fade-out, for the frame that lets go of the picture.
    static constexpr int lastFrameMilliseconds = 250;

    // None of the collaborators is owned; a null sounds or lock means that effect is absent.
    BreakWindow(SettingsManager* settings, BreakManager* breakManager, SoundPlaying* sounds, ScreenLocking* lock,
                QObject* parent = nullptr);
    ~BreakWindow() override;

    // Adds one window per target screen to windows(), fading in, then the start chime and the lock.
    void show(BreakType breakType) override;
    // The end chime, then every window in windows() fades out and goes away; windows() is empty at once.
    void hide() override;
    [[nodiscard]] bool isShowing() const override { return !m_windows.isEmpty(); }
    // Reads the customImage or desktop picture the next windows show; show() calls it for each break.
    void prepareBackgroundImage();
    // A break window covering screen, not yet shown. Null when the break screen cannot be built.
    [[nodiscard]] QQuickWindow* makeBreakWindow(QScreen* screen, BreakType breakType);

    [[nodiscard]] const QList<QQuickWindow*>& windows() const { return m_windows; }
    // Handed to each break screen for its Skip delay; see BreakViewModel.
    void setDelayedAction(BreakViewModel::DelayedAction delayedAction) { m_delayedAction = std::move(delayedAction); }
    [[nodiscard]] QQmlEngine* engineIfCreated() const { return m_engine.get(); }

    // Selects Qt Quick's software renderer unless the user chose another through QT_QUICK_BACKEND: it needs
    // no GPU driver, so a session without OpenGL cannot abort Velto, and costs far less than Mesa's llvmpipe.
    // Takes effect for windows made afterwards.
    static void useSoftwareRendering();

private:
    QQmlEngine& engine();
    void fadeOut(QQuickWindow* window);
    [[nodiscard]] static QObject* fadeTarget(QQuickWindow* window);
    void releaseBetweenBreaks();

    QPointer<SettingsManager> m_settings;
    QPointer<BreakManager> m_breakManager;
    SoundPlaying* m_sounds = nullptr;
    ScreenLocking* m_lock = nullptr;
    WindowEngine m_engine;
    BackgroundImageProvider* m_images = nullptr; // owned by the engine
    QUrl m_imageSource;
    QList<QQuickWindow*> m_windows;
    BreakViewModel::DelayedAction m_delayedAction;
    // Windows hidden and fading out, not yet destroyed.
    int m_fadingWindows = 0;
};

} // namespace velto
